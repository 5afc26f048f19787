#include "TarnwickKit/views/charts/Sparkline.h"

#include "TarnwickKit/views/charts/ChartSeries.h"
#include "TarnwickKit/views/charts/PixelBlend.h"

#include <algorithm>

namespace TarnwickKit::views {

namespace {

constexpr double sparklineWidth = 2; // of the line; logical pixels
constexpr QPointF sparklinePlace(-sparklineMargin, -sparklineMargin);

} // namespace

SparklineScale::SparklineScale(QSizeF size, const QList<QPointF>& points)
    : canvas(size) {
    for (const QPointF& point : points) {
        xTop = std::max(xTop, point.x());
        yTop = std::max(yTop, point.y() * 1.1);
    }
}

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
    CurveRaster raster(canvas.width(), canvas.height(), sparklineWidth * scale, 0, CurveRaster::Caps::Round);
    for (const QPointF& point : points)
        raster.add((axes.map(point) - sparklinePlace) * scale);
    blendLine(canvas, raster, color, 0);
}

void Sparkline::setPoints(const QList<QPointF>& points) {
    if (take(m_points, points))
        Q_EMIT changed();
}

void Sparkline::setColor(const QColor& color) {
    if (take(m_color, color))
        Q_EMIT changed();
}

OndelControls::ImageItem::Picture Sparkline::paint(double scale) {
    if (m_points.size() < 2)
        return {};
    QImage image = sparklineCanvas(size(), scale);
    paintSparkline(image, m_points, m_color, size(), scale);
    return {image, sparklinePlace};
}

void DualSparkline::setRun(const model::RunRecord& run) {
    if (take(m_run, run))
        Q_EMIT runChanged();
}

/// The key must not be created before the engine has attached its data to the new item: both would be lost.
void DualSparkline::itemChange(ItemChange change, const ItemChangeData& value) {
    if (change == ItemSceneChange && value.window && !m_key) {
        m_key = PaletteKey::of(this);
        connect(m_key, &PaletteKey::paletteChanged, this, &DualSparkline::redraw);
    }
    ImageItem::itemChange(change, value);
}

OndelControls::ImageItem::Picture DualSparkline::paint(double scale) {
    if (m_run.readSamples.size() < 2 && m_run.writeSamples.size() < 2)
        return {};
    QImage image = sparklineCanvas(size(), scale);
    paintSparkline(image, pointsOf(m_run.readSamples), m_key->palette().teal, size(), scale);
    paintSparkline(image, pointsOf(m_run.writeSamples), m_key->palette().coral, size(), scale);
    return {image, sparklinePlace};
}

} // namespace TarnwickKit::views
