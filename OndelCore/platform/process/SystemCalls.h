#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <system_error>

namespace OndelCore::platform {

// What takes one call of the system. Threads: any.

/// The uptime counter: it never goes back and no clock setting touches it. Units: nanoseconds.
std::int64_t monotonicNanoseconds();

/// Fills `size` bytes from the system's generator. Fails: stops the process, since a system without its
/// generator can do nothing right.
void fillRandom(void* bytes, std::size_t size);

/// A new random UUID (RFC 4122, version 4) in upper case without braces:
/// "1B4E28BA-2FA1-4D2B-883F-0016D3CCA427".
std::string newUuid();

/// The system's wording for an errno value, as strerror(3) has it.
std::string errorText(int error);

/// The value of errno.
std::error_code lastError();

/// Gives memory that this process has freed back to the system, after something large that is not soon done
/// again; the allocator would keep some of it. Takes less than a millisecond. Fails: silently.
void giveBackFreedMemory();

/// Gives the calling thread a name for debuggers (at most 15 bytes on Linux) and lowers its priority. Fails:
/// silently; the thread then runs as any other.
void enterBackground(const char* name);

} // namespace OndelCore::platform
