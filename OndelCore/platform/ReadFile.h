#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>

namespace OndelCore::platform {

/// The whole content of a regular file, for files that come from outside: a pipe or a device, which might
/// never answer or never end, is refused, also when it takes the file's place at the last moment.
/// Threads: any; blocks on the file system. Fails: absent, also for a file of more than `most` bytes and for
/// one that changes its length meanwhile.
std::optional<std::string> readRegularFile(const std::filesystem::path& path, std::size_t most);

} // namespace OndelCore::platform
