#include "TarnwickKit/views/capacity/RateCurves.h"

#include "TarnwickKit/views/charts/CurveRaster.h"
#include "TarnwickKit/views/charts/PixelBlend.h"

#include <algorithm>
#include <utility>

namespace TarnwickKit::views {

void RateCurves::setWrite(const QList<QPointF>& points) {
    if (take(m_write, points))
        Q_EMIT changed();
}

void RateCurves::setRead(const QList<QPointF>& points) {
    if (take(m_read, points))
        Q_EMIT changed();
}

void RateCurves::setWriteColor(const QColor& color) {
    if (take(m_writeColor, color))
        Q_EMIT changed();
}

void RateCurves::setReadColor(const QColor& color) {
    if (take(m_readColor, color))
        Q_EMIT changed();
}

double RateCurves::highest() const {
    double top = 0;
    for (const QList<QPointF>* points : {&m_write, &m_read})
        for (const QPointF& point : *points)
            top = std::max(top, point.y());
    return top;
}

OndelControls::ImageItem::Picture RateCurves::paint(double scale) {
    constexpr double lineWidth = 2;
    QImage image(inPixels(size(), scale), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    const double top = std::max(1e-9, highest());
    const double room = height() - lineWidth;
    for (const auto& [points, color] : {std::pair(&m_write, m_writeColor), std::pair(&m_read, m_readColor)}) {
        if (points->size() < 2)
            continue;
        CurveRaster raster(image.width(), image.height(), lineWidth * scale, 0, CurveRaster::Caps::Round);
        for (const QPointF& point : *points)
            raster.add(QPointF(std::clamp(point.x(), 0.0, 1.0) * width(),
                               lineWidth / 2 + (1 - point.y() / top) * room) *
                       scale);
        blendLine(image, raster, color, 0);
    }
    return {image, {}};
}

} // namespace TarnwickKit::views
