#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>

namespace OndelCore::platform {

/// Bytes that an unprivileged user may still write on the file system that holds `path`; above what 64 bits
/// hold, the largest they hold. Threads: any. Fails: absent.
std::optional<std::int64_t> freeBytes(const std::filesystem::path& path);

/// Returns when the descriptor's data has reached the medium, the drive's own cache included, as far as the
/// system can bring that about. Fails: silently.
void flushToMedium(int descriptor);

/// Removes `path`, and what is in it if it is a folder. Symbolic links go, what they point to stays; so does
/// whatever another file system, mounted inside, holds. What cannot be removed does not keep the rest.
/// Threads: any. Fails: silently.
void removeTree(const std::filesystem::path& path);

} // namespace OndelCore::platform
