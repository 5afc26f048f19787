#include "TarnwickKit/views/runs/LiveRun.h"

#include "TarnwickKit/views/charts/ChartSeries.h"

#include <chrono>
#include <utility>

namespace TarnwickKit::views {

using model::AnalyzerModel;

namespace {

constexpr std::chrono::milliseconds pace(40);
constexpr int ticksPerBeat = 2;

} // namespace

LiveRun::LiveRun(QObject* parent)
    : QObject(parent) {
    m_clock.setInterval(pace);
    connect(&m_clock, &QTimer::timeout, this, &LiveRun::tick);
    m_clock.start();
}

void LiveRun::setAnalyzer(AnalyzerModel* analyzer) {
    if (!turnTo(m_analyzer, analyzer, this))
        return;
    if (analyzer) {
        const auto note = [this] { m_hasNews = true; };
        connect(analyzer, &AnalyzerModel::liveSamplesChanged, this, note);
        connect(analyzer, &AnalyzerModel::progressChanged, this, note);
        // The curve of one test is not to be seen in the colours of the next.
        connect(analyzer, &AnalyzerModel::liveTestChanged, this, &LiveRun::read);
    }
    Q_EMIT analyzerChanged();
    read();
}

void LiveRun::tick() {
    if (std::exchange(m_hasNews, false))
        read();
    if (++m_ticks % ticksPerBeat != 0)
        return;
    ++m_beat;
    Q_EMIT beatChanged();
}

void LiveRun::read() {
    m_completedBytes = m_analyzer ? static_cast<double>(m_analyzer->completedBytes()) : 0;
    m_totalBytes = m_analyzer ? static_cast<double>(m_analyzer->totalBytes()) : 0;
    m_points = m_analyzer ? pointsOf(m_analyzer->liveSamples()) : QList<QPointF>();
    Q_EMIT moved();
}

} // namespace TarnwickKit::views
