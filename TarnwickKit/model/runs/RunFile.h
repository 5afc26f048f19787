#pragma once

#include "TarnwickKit/model/runs/RunRecord.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace TarnwickKit::model {

/// What marks a file that carries one run from one application to another. The content alone proves that it
/// is one.
struct TarnwickFile {
    static constexpr std::string_view runExtension = "tarnwickrun";
};

/// The content of a file of runs. Fails: as readRegularFile, and above RunRecordJson's limit.
std::optional<std::string> readRunFile(const std::filesystem::path& path);
std::optional<std::string> readRunFile(const std::filesystem::path& path, std::error_code& error);

/// What a list of run files brought.
struct ImportedRuns {
    std::vector<RunRecord> runs; ///< in the files' order, of those that a history would keep of them
    std::optional<RunRecord> last;
    std::size_t readable = 0;
    std::size_t unreadable = 0;

    /// Reads the files one by one. Threads: any; blocks on the file system. Files that do not answer hold it
    /// up for ten seconds together and a tenth of a second each after that. Fails: a file that cannot be read
    /// is counted.
    static ImportedRuns from(const std::vector<std::filesystem::path>& files);

    /// Adds what later files brought.
    void append(ImportedRuns later);
};

} // namespace TarnwickKit::model
