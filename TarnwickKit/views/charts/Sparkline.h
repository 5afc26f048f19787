#pragma once

#include "OndelControls/ImageItem.h"
#include "TarnwickKit/model/runs/RunRecord.h"
#include "TarnwickKit/views/style/PaletteKey.h"

#include <QColor>
#include <QImage>
#include <QList>
#include <QPointF>
#include <QSizeF>

namespace TarnwickKit::views {

/// The axes of a sparkline: the curve fills its canvas, with 10 % of headroom above the peak. Neither axis
/// ends below 1.
struct SparklineScale {
    QSizeF canvas;
    double xTop = 1;
    double yTop = 1;

    SparklineScale(QSizeF canvas, const QList<QPointF>& points);
    QPointF map(QPointF point) const {
        return {point.x() / xTop * canvas.width(), (1 - point.y() / yTop) * canvas.height()};
    }
};

/// How far a sparkline's picture extends beyond its frame on each side, to hold half of the line's width.
///
/// Units: logical pixels.
constexpr int sparklineMargin = 2;

/// An empty picture for a frame of `size` logical pixels and `scale` device pixels per logical one.
QImage sparklineCanvas(QSizeF size, double scale);

/// Draws a line through `points` over the picture; nothing with fewer than two.
void paintSparkline(QImage& canvas, const QList<QPointF>& points, const QColor& color, QSizeF size,
                    double scale);

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

/// The two curves of a saved run, write above read, each scaled by its own peak. One item instead of two,
/// since a history shows fifty of them.
class DualSparkline : public OndelControls::ImageItem {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(TarnwickKit::model::RunRecord run READ run WRITE setRun NOTIFY runChanged)

public:
    using ImageItem::ImageItem;

    const model::RunRecord& run() const { return m_run; }
    void setRun(const model::RunRecord& run);
    Q_SIGNAL void runChanged();

protected:
    Picture paint(double scale) override;
    void itemChange(ItemChange change, const ItemChangeData& value) override;

private:
    model::RunRecord m_run;
    PaletteKey* m_key = nullptr;
};

} // namespace TarnwickKit::views
