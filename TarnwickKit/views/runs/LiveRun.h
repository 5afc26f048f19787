#pragma once

#include "TarnwickKit/views/window/ModelObserver.h"

#include <QList>
#include <QObject>
#include <QPointF>
#include <QQmlEngine>
#include <QTimer>

namespace TarnwickKit::views {

/// How far a run is, at a pace that eyes follow. A run tells more than twice as much, at moments of its own,
/// and whatever changes has the window drawn beside the measurement: what moves with `moved` and `beat` moves
/// in one frame.
class LiveRun : public QObject {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(
        TarnwickKit::model::AnalyzerModel* analyzer READ analyzer WRITE setAnalyzer NOTIFY analyzerChanged)
    Q_PROPERTY(double completedBytes READ completedBytes NOTIFY moved)
    Q_PROPERTY(double totalBytes READ totalBytes NOTIFY moved)
    /// Counts up evenly, also while nothing is told.
    Q_PROPERTY(int beat READ beat NOTIFY beatChanged)

public:
    explicit LiveRun(QObject* parent = nullptr);

    model::AnalyzerModel* analyzer() const { return m_analyzer; }
    void setAnalyzer(model::AnalyzerModel* analyzer);
    Q_SIGNAL void analyzerChanged();

    double completedBytes() const { return m_completedBytes; }
    double totalBytes() const { return m_totalBytes; }
    /// The running test's curve. Units: seconds and decimal megabytes per second.
    QList<QPointF> points() const { return m_points; }
    Q_SIGNAL void moved();

    int beat() const { return m_beat; }
    Q_SIGNAL void beatChanged();

private:
    void tick();
    void read();

    ModelObserver m_analyzer;
    QTimer m_clock;
    int m_ticks = 0;
    int m_beat = 0;
    bool m_hasNews = false;
    double m_completedBytes = 0;
    double m_totalBytes = 0;
    QList<QPointF> m_points;
};

} // namespace TarnwickKit::views
