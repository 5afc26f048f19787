#pragma once

#include <cstdint>
#include <optional>
#include <system_error>

namespace OndelCore::platform {

/// Bytes available to an unprivileged user on the file system of the open `descriptor`, saturated at the
/// largest 64-bit number. Threads: any. Fails: absent.
std::optional<std::int64_t> freeBytes(int descriptor);

/// The size of that file system, used or not. Threads: any. Fails: absent.
std::optional<std::int64_t> totalBytes(int descriptor);

/// Flushes the descriptor's data to the medium, through the drive's own cache. Fails: the system's error.
/// Success is no error.
std::error_code flushToMedium(int descriptor);

} // namespace OndelCore::platform
