#pragma once

#include "OndelCore/benchmark/BenchmarkResult.h"
#include "TarnwickKit/model/runs/RunRecord.h"

#include <QList>
#include <QPointF>

#include <vector>

namespace TarnwickKit::views {

/// A curve's points, one per sample in order: seconds as they are, bytes per second as decimal megabytes.
QList<QPointF> pointsOf(const std::vector<OndelCore::benchmark::ThroughputSample>& samples);
QList<QPointF> pointsOf(const std::vector<model::RunSample>& samples);

} // namespace TarnwickKit::views
