#pragma once

#include <QColor>
#include <QImage>
#include <QList>
#include <QPointF>
#include <QSizeF>

namespace TarnwickKit::views {

/// How far a sparkline's picture reaches beyond its frame on each side, where the line's own width needs it.
///
/// Units: logical pixels.
constexpr int sparklineMargin = 2;

/// An empty picture for a frame of `size` logical pixels and `scale` device pixels per logical one.
QImage sparklineCanvas(QSizeF size, double scale);

/// Lays a line through `points` over the picture; nothing with fewer than two.
void paintSparkline(QImage& canvas, const QList<QPointF>& points, const QColor& color, QSizeF size,
                    double scale);

} // namespace TarnwickKit::views
