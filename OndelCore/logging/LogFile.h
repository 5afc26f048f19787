#pragma once

#include <cstdint>
#include <filesystem>
#include <string_view>

namespace OndelCore::logging {

/// A log file larger than this gives way to a new one. Units: bytes.
inline constexpr std::int64_t rotationLimitBytes = 1'000'000;

/// Renames "ondel.log" to "ondel.1.log" beside it once it is larger than the limit; an older one goes.
/// Fails: silently.
void rotateIfNeeded(const std::filesystem::path& file);

/// Appends whole lines, or makes the file with them, readable by its owner alone. A disk that fills up in the
/// middle leaves none of the batch. Fails: silently.
void appendToLogFile(const std::filesystem::path& file, std::string_view lines);

} // namespace OndelCore::logging
