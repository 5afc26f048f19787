#pragma once

#include "TarnwickKit/views/charts/CurveReading.h"
#include "TarnwickKit/views/charts/ThroughputCanvas.h"

#include <QPointer>
#include <QVariantList>

namespace TarnwickKit::views {

/// A curve's value at a chart's cursor.
struct ChartValue {
    Q_GADGET
    QML_VALUE_TYPE(chartValue)
    Q_PROPERTY(QString text MEMBER text CONSTANT)
    Q_PROPERTY(QColor color MEMBER color CONSTANT)
    Q_PROPERTY(double y MEMBER y CONSTANT)

public:
    QString text; ///< "Write: 412 MB/s"
    QColor color;
    double y = 0; ///< on the chart; logical pixels

    bool operator==(const ChartValue&) const = default;
};

/// The crosshair of a chart: a time, always that of a point, and the value of each curve at it.
class ChartCursor : public QObject {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(TarnwickKit::views::ThroughputCanvas* chart READ chart WRITE setChart NOTIFY chartChanged)
    Q_PROPERTY(bool active READ isActive NOTIFY moved)
    /// On the chart. Units: logical pixels.
    Q_PROPERTY(double x READ x NOTIFY moved)
    Q_PROPERTY(QString time READ time NOTIFY moved)
    /// ChartValue, one for each curve that has a value.
    Q_PROPERTY(QVariantList values READ values NOTIFY moved)
    /// All this for assistive technology.
    Q_PROPERTY(QString sentence READ sentence NOTIFY moved)

public:
    using QObject::QObject;

    ThroughputCanvas* chart() const { return m_chart; }
    void setChart(ThroughputCanvas* chart);
    Q_SIGNAL void chartChanged();

    bool isActive() const { return m_time.has_value(); }
    double x() const;
    QString time() const;
    QVariantList values() const;
    QString sentence() const;
    Q_SIGNAL void moved();

    /// To the point closest to a place. Units: logical pixels.
    Q_INVOKABLE void moveTo(double x);
    /// By points. Without a cursor it begins at the first point, or at the last one for a negative number.
    Q_INVOKABLE void step(int points);
    /// By a part of the time axis.
    Q_INVOKABLE void skip(double share);
    Q_INVOKABLE void leave();

private:
    ChartTimes times() const;
    void setTime(std::optional<double> time);

    QPointer<ThroughputCanvas> m_chart;
    std::optional<double> m_time;
};

} // namespace TarnwickKit::views
