#pragma once

#include "TarnwickKit/model/runs/RunRecord.h"

#include <span>
#include <string_view>
#include <vector>

namespace TarnwickHost {

/// The runs in the files named by `paths`, in that order. Fails: a file that holds none gets a line on
/// standard error and is left out.
std::vector<TarnwickKit::model::RunRecord> readRuns(std::span<const std::string_view> paths);

} // namespace TarnwickHost
