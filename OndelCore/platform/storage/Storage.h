#pragma once

#include <cstdint>
#include <optional>
#include <system_error>

namespace OndelCore::platform {

/// Bytes that an unprivileged user may still write on the file system that holds the open `descriptor`; above
/// what 64 bits hold, the largest they hold. Threads: any. Fails: absent.
std::optional<std::int64_t> freeBytes(int descriptor);

/// Returns when the descriptor's data has reached the medium, the drive's own cache included, as far as the
/// system can bring that about. Fails: the system's error; no error is a good end.
std::error_code flushToMedium(int descriptor);

} // namespace OndelCore::platform
