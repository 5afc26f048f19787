#include "TarnwickKit/views/charts/Sparkline.h"

#include "TarnwickKit/views/charts/SparklinePicture.h"

namespace TarnwickKit::views {

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
    return {image, {-sparklineMargin, -sparklineMargin}};
}

} // namespace TarnwickKit::views
