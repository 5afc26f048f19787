#pragma once

#include <cstdint>
#include <filesystem>
#include <string_view>

namespace OndelCore::logging {

/// The size above which a log file is rotated. Units: bytes.
inline constexpr std::int64_t rotationLimitBytes = 1'000'000;

/// Makes the folder of log files and missing parents, accessible to the owner alone (XDG Base Directory).
/// Fails: silently.
void makeLogFolder(const std::filesystem::path& folder);

/// Renames "ondel.log" to "ondel.1.log" once it is larger than the limit, replacing an older one. If that is
/// impossible the file is emptied. Fails: false if the file is too large and neither worked: nothing may be
/// appended then.
bool rotateIfNeeded(const std::filesystem::path& file);

/// Appends whole lines. A missing file, readable by its owner alone, and its folder are made. If the disk
/// fills up, the whole batch is removed again. Fails: silently.
void appendToLogFile(const std::filesystem::path& file, std::string_view lines);

} // namespace OndelCore::logging
