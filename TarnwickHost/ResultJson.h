#pragma once

#include "OndelCore/benchmark/BenchmarkPlan.h"
#include "OndelCore/benchmark/BenchmarkResult.h"

#include <QJsonObject>

namespace TarnwickHost {

/// A run as one object: the plan under "plan", each test that ran under its own name with every measured
/// field, its samples and the figures derived from them, and under "capabilities" what the file system did
/// when it was tried. A test that did not run has no key. Units: as the fields' own.
QJsonObject resultJson(const OndelCore::benchmark::BenchmarkPlan& plan,
                       const OndelCore::benchmark::BenchmarkResult& result);

} // namespace TarnwickHost
