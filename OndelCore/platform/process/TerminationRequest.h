#pragma once

namespace OndelCore::platform {

/// Turns the system's requests to end (SIGTERM, SIGINT, SIGHUP) into something an event loop can wait for.
///
/// From the first call on, none of them ends the process by itself: a program that measures has files to
/// remove first, and a second, impatient request must not cut that short.
///
/// Returns a descriptor that becomes readable with the first request and stays so; it is never to be closed
/// or read. Threads: the main one, before others exist. Fails: throws std::system_error.
int terminationRequestDescriptor();

} // namespace OndelCore::platform
