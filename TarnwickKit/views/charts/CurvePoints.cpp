#include "TarnwickKit/views/charts/CurvePoints.h"

namespace TarnwickKit::views {

namespace {

template <typename Sample>
QList<QPointF> points(const std::vector<Sample>& samples, double Sample::* time, double Sample::* rate) {
    QList<QPointF> result;
    result.reserve(static_cast<qsizetype>(samples.size()));
    for (const Sample& sample : samples)
        result.append({sample.*time, sample.*rate / 1'000'000});
    return result;
}

} // namespace

QList<QPointF> pointsOf(const std::vector<OndelCore::benchmark::ThroughputSample>& samples) {
    using OndelCore::benchmark::ThroughputSample;
    return points(samples, &ThroughputSample::elapsed, &ThroughputSample::bytesPerSecond);
}

QList<QPointF> pointsOf(const std::vector<model::RunSample>& samples) {
    return points(samples, &model::RunSample::t, &model::RunSample::v);
}

} // namespace TarnwickKit::views
