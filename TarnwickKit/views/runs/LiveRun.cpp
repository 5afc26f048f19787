#include "TarnwickKit/views/runs/LiveRun.h"

#include "TarnwickKit/views/charts/ChartSeries.h"

#include <chrono>
#include <span>
#include <utility>

namespace TarnwickKit::views {

using model::AnalyzerModel;
using OndelCore::benchmark::ThroughputSample;

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
        connect(analyzer, &AnalyzerModel::liveTemperaturesChanged, this, note);
        // Each run and each test announces itself here. It is read at once: the curve of one test must not be
        // seen in the colours of the next.
        connect(analyzer, &AnalyzerModel::liveTestChanged, this, [this] {
            m_isOther = true;
            read();
        });
    }
    Q_EMIT analyzerChanged();
    m_isOther = true;
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
    readPoints();
    readTemperatures();
    Q_EMIT moved();
}

/// Appends the samples that are new. The model thins its samples from time to time; the sample at the place
/// of the last point is then another one, since time only increases.
void LiveRun::readPoints() {
    std::span<const ThroughputSample> samples;
    if (m_analyzer)
        samples = m_analyzer->liveSamples();
    const auto known = static_cast<std::size_t>(m_points.size());
    const bool isSame = known == 0 || (samples.size() >= known && samples[known - 1] == m_lastSample);
    const bool grows = !std::exchange(m_isOther, false) && isSame;
    const QList<QPointF> tail = pointsOf(samples.subspan(grows ? known : 0));
    if (!samples.empty())
        m_lastSample = samples.back();
    if (!grows) {
        m_points = tail;
        Q_EMIT restarted();
    } else if (!tail.isEmpty()) {
        m_points.append(tail);
        Q_EMIT grown(tail);
    }
}

/// There is about one a second.
void LiveRun::readTemperatures() {
    QList<QPointF> temperatures;
    if (m_analyzer)
        for (const auto& [elapsed, celsius] : m_analyzer->liveTemperatures())
            temperatures.append({elapsed, celsius});
    if (temperatures == std::exchange(m_temperatures, temperatures))
        return;
    Q_EMIT warmed();
}

} // namespace TarnwickKit::views
