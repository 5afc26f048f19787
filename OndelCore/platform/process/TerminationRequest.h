#pragma once

namespace OndelCore::platform {

/// Turns termination signals (SIGTERM, SIGINT, SIGHUP) into a descriptor that an event loop can wait for.
///
/// After the first call these signals no longer end the process: files must be removed first, and a second
/// signal must not interrupt that.
///
/// Returns a descriptor that becomes readable with the first signal and stays so. Do not close or read it.
/// Threads: the main one, before others exist. Fails: throws std::system_error.
int terminationRequestDescriptor();

} // namespace OndelCore::platform
