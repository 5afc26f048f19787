#pragma once

#include "TarnwickHost/Terminal.h"
#include "TarnwickKit/model/runs/RunRecord.h"

#include <QString>

#include <span>
#include <string_view>
#include <vector>

namespace TarnwickHost {

/// The runs in the files named by `paths`, in that order. Fails: a file that holds none gets a line on
/// standard error and is left out.
std::vector<TarnwickKit::model::RunRecord> readRuns(std::span<const std::string_view> paths);

/// Stored runs as text for a terminal: each with its title, date, figures, volume and settings, numbered when
/// there are several, and then their comparison as bars. No line is wider than `style.columns`, which counts
/// as 24 below that; what does not fit goes on below or is cut. Empty for no runs.
QString runTexts(const std::vector<TarnwickKit::model::RunRecord>& runs, LineStyle style);

} // namespace TarnwickHost
