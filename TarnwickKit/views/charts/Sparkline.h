#pragma once

#include "OndelControls/ImageItem.h"

#include <QColor>
#include <QList>
#include <QPointF>

namespace TarnwickKit::views {

/// A bare curve from edge to edge, without axes; nothing with fewer than two points.
class Sparkline : public OndelControls::ImageItem {
    Q_OBJECT
    QML_ELEMENT

    /// Units: seconds and decimal megabytes per second.
    Q_PROPERTY(QList<QPointF> points READ points WRITE setPoints NOTIFY changed)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY changed)

public:
    using ImageItem::ImageItem;

    const QList<QPointF>& points() const { return m_points; }
    void setPoints(const QList<QPointF>& points);
    const QColor& color() const { return m_color; }
    void setColor(const QColor& color);
    Q_SIGNAL void changed();

protected:
    Picture paint(double scale) override;

private:
    QList<QPointF> m_points;
    QColor m_color;
};

} // namespace TarnwickKit::views
