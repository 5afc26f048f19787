#pragma once

#include "OndelCore/benchmark/BenchmarkPlan.h"
#include "OndelCore/benchmark/BenchmarkProgress.h"
#include "TarnwickHost/Terminal.h"

#include <QString>

namespace TarnwickHost {

/// One test's progress as one line of at most `style.columns` characters: title, bar, percentage, amount and
/// rate, as much of it as fits. With the end unknown (total 0) there is no bar and no percentage.
QString progressLine(const OndelCore::benchmark::BenchmarkProgress& progress,
                     const OndelCore::benchmark::BenchmarkPlan& plan, LineStyle style);

} // namespace TarnwickHost
