#pragma once

#include "TarnwickKit/views/window/ModelObserver.h"

#include <QList>
#include <QObject>
#include <QPointF>
#include <QQmlEngine>
#include <QTimer>
#include <QtNumeric>

namespace TarnwickKit::views {

/// The progress of the running test, updated at most 25 times per second. A run reports more than twice as
/// often, and each update redraws the window beside the measurement. What changes with `moved` and `beat` is
/// drawn in one frame.
class LiveRun : public QObject {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(
        TarnwickKit::model::AnalyzerModel* analyzer READ analyzer WRITE setAnalyzer NOTIFY analyzerChanged)
    Q_PROPERTY(double completedBytes READ completedBytes NOTIFY moved)
    Q_PROPERTY(double totalBytes READ totalBytes NOTIFY moved)
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

    /// The running test's curve. Units: seconds and decimal megabytes per second.
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
    void readTemperatures();

    ModelObserver m_analyzer;
    QTimer m_clock;
    int m_ticks = 0;
    int m_beat = 0;
    bool m_hasNews = false;
    bool m_isOther = false; ///< the samples are of another run or test than the points
    double m_completedBytes = 0;
    double m_totalBytes = 0;
    QList<QPointF> m_points;
    OndelCore::benchmark::ThroughputSample m_lastSample; ///< that of the last point
    QList<QPointF> m_temperatures;
};

} // namespace TarnwickKit::views
