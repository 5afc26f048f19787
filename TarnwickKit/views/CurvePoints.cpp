#include "TarnwickKit/views/CurvePoints.h"

namespace TarnwickKit::views {

QList<QPointF> pointsOf(const std::vector<OndelCore::benchmark::ThroughputSample>& samples) {
    QList<QPointF> points;
    points.reserve(static_cast<qsizetype>(samples.size()));
    for (const auto& sample : samples)
        points.append({sample.elapsed, sample.bytesPerSecond / 1'000'000});
    return points;
}

} // namespace TarnwickKit::views
