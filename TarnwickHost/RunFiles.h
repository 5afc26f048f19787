#pragma once

#include "TarnwickKit/model/runs/RunRecord.h"

#include <span>
#include <string_view>
#include <vector>

namespace TarnwickHost {

struct ReadRuns {
    std::vector<TarnwickKit::model::RunRecord> runs;
    bool isWhole = true; ///< every file could be read
};

/// The runs in the files named by `paths`, in that order: of a run file its run, of a history all. "-" is
/// standard input, read to its end. Fails: a file without runs gets a line with the reason on standard error.
ReadRuns readRuns(std::span<const std::string_view> paths);

} // namespace TarnwickHost
