#include "TarnwickKit/views/charts/RunSeries.h"

#include "TarnwickKit/views/charts/CurvePoints.h"

namespace TarnwickKit::views {

void RunSeries::setRun(const model::RunRecord& run) {
    if (run == m_run)
        return;
    m_run = run;
    takePoints();
    Q_EMIT runChanged();
}

void RunSeries::setCurve(Curve curve) {
    if (curve == m_curve)
        return;
    m_curve = curve;
    takePoints();
    Q_EMIT curveChanged();
}

void RunSeries::takePoints() {
    setPoints(pointsOf(m_curve == Write ? m_run.writeSamples : m_run.readSamples));
}

} // namespace TarnwickKit::views
