#include "TarnwickKit/views/charts/SparklinePicture.h"

#include "TarnwickKit/views/charts/PixelBlend.h"
#include "TarnwickKit/views/charts/ThroughputScale.h"

namespace TarnwickKit::views {

namespace {

constexpr double lineWidth = 2; // logical pixels

} // namespace

QImage sparklineCanvas(QSizeF size, double scale) {
    constexpr QSizeF margins(2 * sparklineMargin, 2 * sparklineMargin);
    QImage canvas(inPixels(size + margins, scale), QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::transparent);
    return canvas;
}

void paintSparkline(QImage& canvas, const QList<QPointF>& points, const QColor& color, QSizeF size,
                    double scale) {
    if (points.size() < 2)
        return;
    const SparklineScale axes(size, points);
    CurveRaster raster(canvas.width(), canvas.height(), lineWidth * scale, 0, CurveRaster::Caps::Round);
    for (const QPointF& point : points)
        raster.add((axes.map(point) + QPointF(sparklineMargin, sparklineMargin)) * scale);
    blendLine(canvas, raster, color, 0);
}

} // namespace TarnwickKit::views
