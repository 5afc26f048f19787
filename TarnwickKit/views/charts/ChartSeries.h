#pragma once

#include "TarnwickKit/views/charts/ThroughputPicture.h"

#include <QColor>
#include <QList>
#include <QObject>
#include <QPointF>
#include <QQmlEngine>
#include <QString>

namespace TarnwickKit::views {

/// One curve of a throughput chart. The object itself is the series' identity.
class ChartSeries : public QObject {
    Q_OBJECT
    QML_ELEMENT

    /// What the curve is called in the chart's text.
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY changed)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY changed)
    /// The area's colour at the curve's highest point.
    Q_PROPERTY(QColor fill READ fill WRITE setFill NOTIFY changed)
    /// Units: seconds and decimal megabytes per second.
    Q_PROPERTY(QList<QPointF> points READ points WRITE setPoints NOTIFY changed)

public:
    using QObject::QObject;

    const QString& name() const { return m_name; }
    void setName(const QString& name) { set(m_name, name); }
    const QColor& color() const { return m_curve.color; }
    void setColor(const QColor& color) { set(m_curve.color, color); }
    const QColor& fill() const { return m_curve.fill; }
    void setFill(const QColor& fill) { set(m_curve.fill, fill); }
    const QList<QPointF>& points() const { return m_curve.points; }
    void setPoints(const QList<QPointF>& points) { set(m_curve.points, points); }
    Q_SIGNAL void changed();

    const ChartCurve& curve() const { return m_curve; }

private:
    template <typename Value>
    void set(Value& member, const Value& value) {
        if (member == value)
            return;
        member = value;
        Q_EMIT changed();
    }

    QString m_name;
    ChartCurve m_curve;
};

} // namespace TarnwickKit::views
