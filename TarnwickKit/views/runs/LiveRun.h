#pragma once

#include "TarnwickKit/model/session/SteadyCountdown.h"
#include "TarnwickKit/views/window/ModelObserver.h"

#include <QElapsedTimer>
#include <QList>
#include <QObject>
#include <QPointF>
#include <QQmlEngine>
#include <QTimer>
#include <QtNumeric>

namespace TarnwickKit::views {

/// One of the chosen tests during a run.
struct LiveTest {
    Q_GADGET
    QML_VALUE_TYPE(liveTest)
    Q_PROPERTY(QString title MEMBER title CONSTANT)
    Q_PROPERTY(QString figure MEMBER figure CONSTANT)
    Q_PROPERTY(QString sentence MEMBER sentence CONSTANT)
    Q_PROPERTY(bool isDone MEMBER isDone CONSTANT)
    Q_PROPERTY(bool isRunning MEMBER isRunning CONSTANT)

public:
    QString title;
    QString figure;   ///< of a test that is done, with its unit; else ""
    QString sentence; ///< for assistive technology
    bool isDone = false;
    bool isRunning = false;

    bool operator==(const LiveTest&) const = default;
};

/// How long something will take, as a rough sentence. `isOfRun`: else the running test alone.
/// Units: seconds.
QString timeLeftText(double left, bool isOfRun);

/// The progress of the running test and of its run. Its bar and its curve are updated at most 25 times per
/// second: a run reports more than twice as often, and each update redraws the window beside the measurement.
/// What changes with `moved` and `beat` is drawn in one frame. Texts change about twice per second.
class LiveRun : public QObject {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(
        TarnwickKit::model::AnalyzerModel* analyzer READ analyzer WRITE setAnalyzer NOTIFY analyzerChanged)
    Q_PROPERTY(double completedBytes READ completedBytes NOTIFY moved)
    Q_PROPERTY(double totalBytes READ totalBytes NOTIFY moved)

    /// The running test's rate and its unit; the rate is "" while nothing is measured.
    Q_PROPERTY(QString figure MEMBER m_figure NOTIFY told)
    Q_PROPERTY(QString unit MEMBER m_unit NOTIFY told)
    /// How much of the running test is done: "512 MiB of 1.0 GiB".
    Q_PROPERTY(QString amount MEMBER m_amount NOTIFY told)
    /// How much of it is done, 0 to 1.
    Q_PROPERTY(double share MEMBER m_share NOTIFY told)
    /// How much of the run is done, and how long it will take, where that is known: "42 % · About 25 s left".
    Q_PROPERTY(QString runLine MEMBER m_runLine NOTIFY told)
    /// The share of the running test for assistive technology, which reads each change aloud: at most one per
    /// second. Units: percent.
    Q_PROPERTY(int spokenPercent MEMBER m_spokenPercent NOTIFY spoken)
    Q_PROPERTY(QList<TarnwickKit::views::LiveTest> tests MEMBER m_tests NOTIFY testsChanged)

    /// The hottest drive's temperature now; NaN without a sensor. Units: degrees Celsius.
    Q_PROPERTY(double celsius READ celsius NOTIFY warmed)
    /// How it went during the running test. Units: seconds and degrees Celsius.
    Q_PROPERTY(QList<QPointF> temperatures READ temperatures NOTIFY warmed)
    /// Counts up at a constant rate, also while no progress is reported.
    Q_PROPERTY(int beat READ beat NOTIFY beatChanged)

public:
    explicit LiveRun(QObject* parent = nullptr);

    model::AnalyzerModel* analyzer() const { return m_analyzer; }
    void setAnalyzer(model::AnalyzerModel* analyzer);
    Q_SIGNAL void analyzerChanged();

    double completedBytes() const { return m_completedBytes; }
    double totalBytes() const { return m_totalBytes; }
    Q_SIGNAL void moved();
    Q_SIGNAL void told();
    Q_SIGNAL void spoken();
    Q_SIGNAL void testsChanged();

    /// The running test's curve. Units: seconds and decimal megabytes per second, outside of the sequential
    /// tests operations per second.
    const QList<QPointF>& points() const { return m_points; }
    /// `tail` was appended to the points.
    Q_SIGNAL void grown(const QList<QPointF>& tail);
    /// The points are others: another run or test, or the model has thinned its samples.
    Q_SIGNAL void restarted();

    double celsius() const { return m_temperatures.isEmpty() ? qQNaN() : m_temperatures.last().y(); }
    const QList<QPointF>& temperatures() const { return m_temperatures; }
    Q_SIGNAL void warmed();

    int beat() const { return m_beat; }
    Q_SIGNAL void beatChanged();

private:
    void tick();
    void read();
    void readPoints();
    void readOperations();
    void readTemperatures();
    void readTimeLeft();
    void tell();
    QString rateNow(OndelCore::benchmark::BenchmarkTest test) const;
    void tellRun();
    void speak();
    void listTests();

    ModelObserver m_analyzer;
    QTimer m_clock;
    QElapsedTimer m_time;
    int m_ticks = 0;
    int m_beat = 0;
    int m_stillTicks = 0; ///< since the last news
    bool m_hasNews = false;
    bool m_isOther = false; ///< the samples are of another run or test than the points
    double m_completedBytes = 0;
    double m_totalBytes = 0;
    QString m_figure;
    QString m_unit;
    QString m_amount;
    double m_share = 0;
    QString m_runLine;
    int m_spokenPercent = 0;
    QList<LiveTest> m_tests;
    model::SteadyCountdown m_countdown;
    bool m_countsRun = false; ///< it counts to the end of the run, else of the running test
    QList<QPointF> m_points;
    OndelCore::benchmark::ThroughputSample m_lastSample; ///< that of the last point
    QList<QPointF> m_temperatures;
};

} // namespace TarnwickKit::views
