#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace TarnwickKit::model {

/// The content of a file of runs: absent above RunRecordJson's limit. Otherwise as readRegularFile.
std::optional<std::string> readRunFile(const std::filesystem::path& path);

} // namespace TarnwickKit::model
