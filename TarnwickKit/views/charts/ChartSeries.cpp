#include "TarnwickKit/views/charts/ChartSeries.h"

namespace TarnwickKit::views {

namespace {

template <typename Sample>
QList<QPointF> points(std::span<const Sample> samples, double Sample::* time, double Sample::* rate) {
    QList<QPointF> result;
    result.reserve(static_cast<qsizetype>(samples.size()));
    for (const Sample& sample : samples)
        result.append({sample.*time, sample.*rate / 1'000'000});
    return result;
}

} // namespace

QList<QPointF> pointsOf(std::span<const OndelCore::benchmark::ThroughputSample> samples) {
    using OndelCore::benchmark::ThroughputSample;
    return points(samples, &ThroughputSample::elapsed, &ThroughputSample::bytesPerSecond);
}

QList<QPointF> pointsOf(std::span<const model::RunSample> samples) {
    return points(samples, &model::RunSample::t, &model::RunSample::v);
}

void ChartSeries::setPoints(const QList<QPointF>& points) {
    if (points == m_curve.points)
        return;
    m_curve.points = points;
    m_curve.unchanged = 0;
    Q_EMIT changed();
}

void ChartSeries::append(const QList<QPointF>& points) {
    m_curve.points.append(points);
    Q_EMIT changed();
}

void LiveSeries::setRun(LiveRun* run) {
    if (run == m_run)
        return;
    if (m_run)
        m_run->disconnect(this);
    m_run = run;
    if (run) {
        connect(run, &LiveRun::restarted, this, [this, run] { setPoints(run->points()); });
        connect(run, &LiveRun::grown, this, &LiveSeries::append);
        setPoints(run->points());
    }
    Q_EMIT runChanged();
}

void RunSeries::setRun(const model::RunRecord& run) {
    if (run == m_run)
        return;
    m_run = run;
    updatePoints();
    Q_EMIT runChanged();
}

void RunSeries::setCurve(Curve curve) {
    if (curve == m_curve)
        return;
    m_curve = curve;
    updatePoints();
    Q_EMIT curveChanged();
}

void RunSeries::updatePoints() {
    setPoints(pointsOf(m_curve == Write ? m_run.writeSamples : m_run.readSamples));
}

} // namespace TarnwickKit::views
