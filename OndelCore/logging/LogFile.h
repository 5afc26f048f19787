#pragma once

#include <cstdint>
#include <filesystem>
#include <string_view>

namespace OndelCore::logging {

/// A log file larger than this gives way to a new one. Units: bytes.
inline constexpr std::int64_t rotationLimitBytes = 1'000'000;

/// Makes the folder of log files and those above it where there are none, for the owner alone (XDG Base
/// Directory). Fails: silently.
void makeLogFolder(const std::filesystem::path& folder);

/// Renames "ondel.log" to "ondel.1.log" beside it once it is larger than the limit; an older one goes. Where
/// something stands in the way of that, the file is emptied. Fails: false when the file is too large and
/// neither can be done: nothing more is to be appended.
bool rotateIfNeeded(const std::filesystem::path& file);

/// Appends whole lines, or makes the file with them, readable by its owner alone, and its folder if that has
/// gone. A disk that fills up in the middle leaves none of the batch. Fails: silently.
void appendToLogFile(const std::filesystem::path& file, std::string_view lines);

} // namespace OndelCore::logging
