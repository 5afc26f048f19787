#include "TarnwickKit/views/Sparkline.h"

#include "TarnwickKit/views/ThroughputPicture.h"

namespace TarnwickKit::views {

void Sparkline::setPoints(const QList<QPointF>& points) {
    if (take(m_points, points))
        Q_EMIT changed();
}

void Sparkline::setColor(const QColor& color) {
    if (take(m_color, color))
        Q_EMIT changed();
}

ImageItem::Picture Sparkline::paint(double scale) {
    return {sparklineImage(m_points, m_color, size(), scale), {-sparklineMargin, -sparklineMargin}};
}

} // namespace TarnwickKit::views
