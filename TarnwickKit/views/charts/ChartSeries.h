#pragma once

#include "OndelCore/benchmark/BenchmarkResult.h"
#include "TarnwickKit/model/runs/RunRecord.h"
#include "TarnwickKit/views/charts/ThroughputPicture.h"
#include "TarnwickKit/views/runs/LiveRun.h"

#include <QColor>
#include <QList>
#include <QObject>
#include <QPointF>
#include <QPointer>
#include <QQmlEngine>
#include <QString>

#include <span>

namespace TarnwickKit::views {

/// A curve's points, one per sample in order. Units: seconds and decimal megabytes per second.
QList<QPointF> pointsOf(std::span<const OndelCore::benchmark::ThroughputSample> samples);
QList<QPointF> pointsOf(std::span<const model::RunSample> samples);

/// One curve of a throughput chart. The object itself is the series' identity.
class ChartSeries : public QObject {
    Q_OBJECT
    QML_ELEMENT

    /// The curve's name in the chart's text summary.
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY changed)
    /// That of the points' rates, in the same summary.
    Q_PROPERTY(QString unit READ unit WRITE setUnit NOTIFY changed)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY changed)
    /// The area's colour at the curve's highest point.
    Q_PROPERTY(QColor fill READ fill WRITE setFill NOTIFY changed)
    /// Units: seconds, and decimal megabytes per second unless there is another unit.
    Q_PROPERTY(QList<QPointF> points READ points WRITE setPoints NOTIFY changed)

public:
    using QObject::QObject;

    const QString& name() const { return m_name; }
    void setName(const QString& name) { set(m_name, name); }
    const QString& unit() const { return m_unit; }
    void setUnit(const QString& unit) { set(m_unit, unit); }
    const QColor& color() const { return m_curve.color; }
    void setColor(const QColor& color) { set(m_curve.color, color); }
    const QColor& fill() const { return m_curve.fill; }
    void setFill(const QColor& fill) { set(m_curve.fill, fill); }
    const QList<QPointF>& points() const { return m_curve.points; }
    void setPoints(const QList<QPointF>& points);
    void append(const QList<QPointF>& points);
    Q_SIGNAL void changed();

    const ChartCurve& curve() const { return m_curve; }
    /// The chart has painted the points as they are.
    void setPainted() { m_curve.unchanged = m_curve.points.size(); }

private:
    template <typename Value>
    void set(Value& member, const Value& value) {
        if (member == value)
            return;
        member = value;
        Q_EMIT changed();
    }

    QString m_name;
    QString m_unit = QStringLiteral("MB/s");
    ChartCurve m_curve;
};

/// The curve of the running test.
class LiveSeries : public TarnwickKit::views::ChartSeries {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(TarnwickKit::views::LiveRun* run READ run WRITE setRun NOTIFY runChanged)

public:
    using ChartSeries::ChartSeries;

    LiveRun* run() const { return m_run; }
    void setRun(LiveRun* run);
    Q_SIGNAL void runChanged();

private:
    QPointer<LiveRun> m_run;
};

/// One of the two curves of a saved run.
class RunSeries : public TarnwickKit::views::ChartSeries {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(TarnwickKit::model::RunRecord run READ run WRITE setRun NOTIFY runChanged)
    Q_PROPERTY(Curve curve READ curve WRITE setCurve NOTIFY curveChanged)

public:
    enum Curve { Write, Read };
    Q_ENUM(Curve)

    using ChartSeries::ChartSeries;

    const model::RunRecord& run() const { return m_run; }
    void setRun(const model::RunRecord& run);
    Q_SIGNAL void runChanged();
    Curve curve() const { return m_curve; }
    void setCurve(Curve curve);
    Q_SIGNAL void curveChanged();

private:
    void updatePoints();

    model::RunRecord m_run;
    Curve m_curve = Write;
};

} // namespace TarnwickKit::views
