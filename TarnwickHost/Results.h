#pragma once

#include "OndelCore/benchmark/BenchmarkPlan.h"
#include "OndelCore/benchmark/BenchmarkResult.h"

#include <QJsonObject>
#include <QString>

namespace TarnwickHost {

/// A run as aligned text for a terminal, in the words and units of the window. Empty for an empty result.
QString resultTable(const OndelCore::benchmark::BenchmarkPlan& plan,
                    const OndelCore::benchmark::BenchmarkResult& result);

/// A run as one object: the plan under "plan", each test that ran under its own name with every measured
/// field, its samples and the figures derived from them, and under "capabilities" what the file system did
/// when it was tried. A test that did not run has no key. Units: as the fields' own.
QJsonObject resultJson(const OndelCore::benchmark::BenchmarkPlan& plan,
                       const OndelCore::benchmark::BenchmarkResult& result);

} // namespace TarnwickHost
