#include "TarnwickKit/views/runs/LiveRun.h"

#include "TarnwickKit/model/format/BenchmarkText.h"
#include "TarnwickKit/model/format/Format.h"
#include "TarnwickKit/model/format/Plural.h"
#include "TarnwickKit/views/charts/ChartSeries.h"

#include <QCoreApplication>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <span>
#include <utility>

namespace TarnwickKit::views {

using model::AnalyzerModel;
using model::LiveProgress;
using OndelCore::benchmark::BenchmarkTest;
using OndelCore::benchmark::ThroughputSample;

namespace Format = model::Format;

namespace {

struct LiveRunText {
    Q_DECLARE_TR_FUNCTIONS(LiveRunText)
};

constexpr std::chrono::milliseconds pace(40);
constexpr int ticksPerBeat = 2;
constexpr int ticksPerTelling = 13; ///< a little more than half a second
constexpr int tellingsPerSpeaking = 2;
/// A sequential test that tells nothing for so long stands still. Other tests tell of every few hundredth
/// operation, which may take seconds.
constexpr int ticksOfStandstill = 40;

LiveTest itemOf(const LiveProgress::Test& test) {
    LiveTest item{.title = model::shortTitle(test.test), .figure = {}, .sentence = {}};
    item.isDone = test.stage == LiveProgress::Stage::done;
    item.isRunning = test.stage == LiveProgress::Stage::running;
    if (item.isDone && test.result > 0)
        item.figure = model::rateFigure(test.test, test.result) + u' ' + model::rateUnit(test.test);
    const QString state = item.isDone      ? /*: Of a test */ LiveRunText::tr("done")
                          : item.isRunning ? /*: Of a test */ LiveRunText::tr("running")
                                           : /*: Of a test that has not begun */ LiveRunText::tr("to come");
    //: %1 is the name of a test, %2 what it does (done, running, to come), %3 its rate
    item.sentence = item.figure.isEmpty() ? LiveRunText::tr("%1: %2").arg(item.title, state)
                                          : LiveRunText::tr("%1: %2, %3").arg(item.title, state, item.figure);
    return item;
}

} // namespace

QString timeLeftText(double left, bool isOfRun) {
    const auto minutes = static_cast<int>(std::lround(left / 60));
    if (left <= 5)
        return isOfRun ? LiveRunText::tr("A few seconds left")
                       : LiveRunText::tr("A few seconds left of this test");
    if (left <= 95) {
        const int seconds = 5 * static_cast<int>(std::ceil(left / 5));
        return isOfRun ? LiveRunText::tr("About %n s left", nullptr, seconds)
                       : LiveRunText::tr("About %n s left of this test", nullptr, seconds);
    }
    if (minutes < 100)
        return isOfRun ? LiveRunText::tr("About %n min left", nullptr, minutes)
                       : LiveRunText::tr("About %n min left of this test", nullptr, minutes);
    const auto hours = static_cast<int>(std::lround(left / 3600));
    return isOfRun ? LiveRunText::tr("About %n h left", nullptr, hours)
                   : LiveRunText::tr("About %n h left of this test", nullptr, hours);
}

LiveRun::LiveRun(QObject* parent)
    : QObject(parent) {
    m_time.start();
    m_clock.setInterval(pace);
    connect(&m_clock, &QTimer::timeout, this, &LiveRun::tick);
    m_clock.start();
}

void LiveRun::setAnalyzer(AnalyzerModel* analyzer) {
    if (!turnTo(m_analyzer, analyzer, this))
        return;
    // Each run and each test announces itself. It is read at once: the curve of one test must not be seen in
    // the colours of the next.
    const auto readOther = [this] {
        m_isOther = true;
        if (!m_countsRun)
            m_countdown.reset();
        read();
        listTests();
        tell();
        speak();
    };
    if (analyzer) {
        const auto note = [this] { m_hasNews = true; };
        connect(analyzer, &AnalyzerModel::liveSamplesChanged, this, note);
        connect(analyzer, &AnalyzerModel::progressChanged, this, note);
        connect(analyzer, &AnalyzerModel::liveTemperaturesChanged, this, note);
        connect(analyzer, &AnalyzerModel::liveTestChanged, this, readOther);
    }
    Q_EMIT analyzerChanged();
    readOther();
}

void LiveRun::tick() {
    ++m_stillTicks;
    if (std::exchange(m_hasNews, false))
        read();
    ++m_ticks;
    if (m_ticks % ticksPerTelling == 0)
        tell();
    if (m_ticks % (ticksPerTelling * tellingsPerSpeaking) == 0)
        speak();
    if (m_ticks % ticksPerBeat != 0)
        return;
    ++m_beat;
    Q_EMIT beatChanged();
}

void LiveRun::read() {
    m_stillTicks = 0;
    m_completedBytes = m_analyzer ? static_cast<double>(m_analyzer->completedBytes()) : 0;
    m_totalBytes = m_analyzer ? static_cast<double>(m_analyzer->totalBytes()) : 0;
    if (m_analyzer && !m_analyzer->liveProgress().points().empty())
        readOperations();
    else
        readPoints();
    readTemperatures();
    readTimeLeft();
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

/// The curve of a test whose events tell no rates. It has few points.
void LiveRun::readOperations() {
    m_isOther = false;
    QList<QPointF> points;
    for (const auto& [elapsed, rate] : m_analyzer->liveProgress().points())
        points.append({elapsed, rate});
    if (points == std::exchange(m_points, points))
        return;
    Q_EMIT restarted();
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

void LiveRun::readTimeLeft() {
    const auto left = m_analyzer ? m_analyzer->liveProgress().timeLeft() : std::nullopt;
    if (!left)
        return; // it counts on
    if (left->isOfRun != m_countsRun)
        m_countdown.reset();
    m_countsRun = left->isOfRun;
    m_countdown.note(static_cast<double>(m_time.elapsed()) / 1000, left->seconds);
}

void LiveRun::tell() {
    const auto test = m_analyzer ? m_analyzer->liveTest() : std::nullopt;
    m_unit = test ? model::rateUnit(*test) : QString();
    m_share = m_totalBytes > 0 ? std::clamp(m_completedBytes / m_totalBytes, 0.0, 1.0) : 0;
    m_figure = test ? rateNow(*test) : QString();
    const auto bytes = [](double count) { return Format::bytes(static_cast<std::int64_t>(count)); };
    if (test == BenchmarkTest::fileOps) {
        const int all = model::plural(static_cast<std::int64_t>(m_totalBytes));
        m_amount = LiveRunText::tr("%1 of %2 operations", nullptr, all)
                       .arg(Format::grouped(m_completedBytes), Format::grouped(m_totalBytes));
    } else {
        //: Sizes: how much is done of how much
        m_amount = LiveRunText::tr("%1 of %2").arg(bytes(m_completedBytes), bytes(m_totalBytes));
    }
    tellRun();
    Q_EMIT told();
}

/// At the end of its file a test flushes; at which rate is not known.
QString LiveRun::rateNow(BenchmarkTest test) const {
    auto rate = m_analyzer->liveProgress().rate();
    const bool isSequential = test == BenchmarkTest::sequentialWrite || test == BenchmarkTest::sequentialRead;
    if (isSequential && m_stillTicks > ticksOfStandstill) {
        if (m_share >= 1)
            return {};
        rate = 0;
    }
    return rate ? model::rateFigure(test, *rate) : QString();
}

void LiveRun::tellRun() {
    const auto fraction = m_analyzer ? m_analyzer->liveProgress().fraction() : std::nullopt;
    QStringList parts;
    if (m_analyzer && !m_analyzer->liveTest())
        parts << LiveRunText::tr("Preparing…"); // the data file may take minutes
    else if (fraction)
        parts << model::Format::percent(QString::number(static_cast<int>(100 * *fraction)));
    if (const auto left = m_countdown.left(static_cast<double>(m_time.elapsed()) / 1000))
        parts << timeLeftText(*left, m_countsRun);
    m_runLine = parts.join(QStringLiteral(" · "));
}

void LiveRun::speak() {
    m_spokenPercent = static_cast<int>(100 * m_share);
    Q_EMIT spoken();
}

void LiveRun::listTests() {
    QList<LiveTest> tests;
    if (m_analyzer)
        for (const LiveProgress::Test& test : m_analyzer->liveProgress().tests())
            tests.append(itemOf(test));
    if (tests == std::exchange(m_tests, tests))
        return;
    Q_EMIT testsChanged();
}

} // namespace TarnwickKit::views
