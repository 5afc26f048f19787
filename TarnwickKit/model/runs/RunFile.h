#pragma once

#include "OndelCore/Export.h"
#include "TarnwickKit/model/runs/RunRecord.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string_view>
#include <vector>

namespace TarnwickKit::model {

/// What marks a file that carries one run from one application to another. The content alone proves that it
/// is one.
struct TarnwickFile {
    static constexpr std::string_view runExtension = "tarnwickrun";
};

/// The runs of a list of run files.
struct ONDEL_PUBLIC ImportedRuns {
    std::vector<RunRecord> runs; ///< in the files' order; at most as many as a history keeps
    std::optional<RunRecord> last;
    std::size_t readable = 0;
    std::vector<std::filesystem::path> unreadable{};

    /// Reads the files one by one. Threads: any; blocks on the file system. Files that do not answer take ten
    /// seconds together, and a tenth of a second each after that. Fails: unreadable files are listed.
    static ImportedRuns from(const std::vector<std::filesystem::path>& files);

    /// Adds the runs of later files.
    void append(ImportedRuns later);
};

} // namespace TarnwickKit::model
