#pragma once

#include "OndelCore/benchmark/BenchmarkPlan.h"
#include "OndelCore/benchmark/BenchmarkResult.h"

#include <QString>

namespace TarnwickHost {

/// A run as aligned text for a terminal, in the words and units of the window. Empty for an empty result.
QString resultTable(const OndelCore::benchmark::BenchmarkPlan& plan,
                    const OndelCore::benchmark::BenchmarkResult& result);

} // namespace TarnwickHost
