#pragma once

#include "OndelCore/Export.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <system_error>

namespace OndelCore::platform {

// Thin wrappers of single system calls. Threads: any.

/// The uptime counter: monotonic, and independent of clock settings. Units: nanoseconds.
std::int64_t monotonicNanoseconds();

/// Fills `size` bytes from the system's random generator. Fails: aborts the process.
void fillRandom(void* bytes, std::size_t size);

/// A new random UUID (RFC 4122, version 4) in upper case without braces:
/// "1B4E28BA-2FA1-4D2B-883F-0016D3CCA427".
ONDEL_KIT std::string newUuid();

/// The system's text for an errno value, as strerror(3).
ONDEL_KIT std::string errorText(int error);

/// The value of errno.
std::error_code lastError();

/// Returns freed memory to the system, which the allocator would otherwise keep. For use after a large task
/// that is not repeated soon. Takes less than a millisecond. Fails: silently.
ONDEL_KIT void giveBackFreedMemory();

/// Gives the calling thread a name for debuggers (at most 15 bytes on Linux) and lowers its priority. Fails:
/// silently; the thread then runs as any other.
ONDEL_KIT void enterBackground(const char* name);

} // namespace OndelCore::platform
