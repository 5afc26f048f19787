#pragma once

namespace OndelCore::platform {

/// Gives the calling thread a name for debuggers (at most 15 bytes on Linux) and lets it give way to threads
/// that people wait for. Fails: silently; the thread then runs as any other.
void enterBackground(const char* name);

} // namespace OndelCore::platform
