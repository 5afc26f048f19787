#pragma once

#include "OndelCore/benchmark/BenchmarkResult.h"

#include <QList>
#include <QPointF>

#include <vector>

namespace TarnwickKit::views {

/// A curve's points: seconds as they are, bytes per second as decimal megabytes.
QList<QPointF> pointsOf(const std::vector<OndelCore::benchmark::ThroughputSample>& samples);

} // namespace TarnwickKit::views
