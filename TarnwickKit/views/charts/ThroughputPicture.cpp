#include "TarnwickKit/views/charts/ThroughputPicture.h"

#include "TarnwickKit/views/charts/PixelBlend.h"
#include "TarnwickKit/views/style/TarnwickFonts.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace TarnwickKit::views {

namespace {

constexpr double labelEnd = 36; ///< of the labels left of the plot; logical pixels

/// Text held at its leading edge (0), its centre (0.5) or its trailing edge (1), and by its middle height.
void drawLabel(QPainter& painter, const QString& text, QPointF place, double anchor) {
    const QFontMetricsF metrics(painter.font());
    const double left = place.x() - anchor * metrics.horizontalAdvance(text);
    painter.drawText(QPointF(left, place.y() + (metrics.ascent() - metrics.descent()) / 2), text);
}

/// The font of the axes, or a smaller one of its kind in which `text` is no wider than `room`.
QFont fontFor(const QString& text, double room) {
    QFont font = Typeface::mono(9);
    while (font.pixelSize() > 1 && QFontMetricsF(font).horizontalAdvance(text) > room)
        font.setPixelSize(font.pixelSize() - 1);
    return font;
}

bool continues(const QList<QPointF>& longer, const QList<QPointF>& shorter) {
    return longer.size() >= shorter.size() && std::equal(shorter.begin(), shorter.end(), longer.begin());
}

double peakOf(const QList<QPointF>& points) {
    double peak = 0;
    for (const QPointF& point : points)
        peak = std::max(peak, point.y());
    return peak;
}

bool isDrawn(const ChartCurve& curve) { return curve.points.size() >= 2; }

/// The area's opacity over a row: full at the curve's highest point and above, none at the floor.
double fade(int row, double highest, double floor) {
    return floor > highest ? std::clamp((floor - (row + 0.5)) / (floor - highest), 0.0, 1.0) : 0;
}

void blendArea(QImage& picture, const CurveRaster& raster, const QColor& fill, double highest, int from) {
    const auto count = static_cast<std::size_t>(raster.width() - from);
    std::vector<float> coverage(count);
    const int floorRow = std::min(raster.height(), static_cast<int>(std::ceil(raster.floor())));
    QColor opaque = fill;
    opaque.setAlpha(255);
    const QRgb color = opaque.rgba();
    for (int row = 0; row < floorRow; ++row) {
        const float* step = raster.areaStep(row) + from;
        const double inside = std::min(1.0, raster.floor() - row);
        const auto opacity = static_cast<float>(fade(row, highest, raster.floor()) * inside * fill.alpha());
        auto* pixels = reinterpret_cast<QRgb*>(picture.scanLine(row)) + from;
        for (std::size_t i = 0; i < count; ++i) {
            coverage[i] += step[i];
            const float share = std::min(1.0f, std::abs(coverage[i])) * opacity;
            if (share >= 0.5f)
                pixels[i] = over(timesShare(color, static_cast<std::uint32_t>(share + 0.5f)), pixels[i]);
        }
    }
}

} // namespace

QImage ThroughputPicture::paint(const ThroughputContent& content, QSizeF size, double scale) {
    std::vector<QList<QPointF>> curves;
    for (const ChartCurve& curve : content.curves)
        curves.push_back(curve.points);
    const ThroughputScale axes(largestOf(curves), content.live);

    const bool isMore = isMoreOf(content, size, scale, axes);
    if (!isMore)
        begin(content, size, scale, axes);

    const ThroughputPlot plot{size, axes};
    int fromColumn = isMore ? m_picture.width() : 0;
    for (std::size_t i = 0; i < m_rasters.size(); ++i) {
        const QList<QPointF>& points = content.curves[i].points;
        const qsizetype known = isMore ? m_content.curves[i].points.size() : 0;
        for (qsizetype j = known; j < points.size(); ++j)
            m_rasters[i].add(plot.map(points[j]) * scale);
        fromColumn = std::min(fromColumn, m_rasters[i].takeChangedFrom());
        // The area's colours hang from the highest point.
        if (const double peak = peakOf(points); peak != std::exchange(m_peaks[i], peak))
            fromColumn = 0;
    }
    m_content = content;
    compose(fromColumn);
    QImage picture = m_picture;
    if (!content.live)
        *this = {}; // nothing is added to a finished run, and a wide chart's coverages are megabytes
    return picture;
}

bool ThroughputPicture::isMoreOf(const ThroughputContent& content, QSizeF size, double scale,
                                 const ThroughputScale& axes) const {
    if (size != m_size || scale != m_scale || axes != m_axes || content.grid != m_content.grid ||
        content.label != m_content.label || content.curves.size() != m_content.curves.size())
        return false;
    return std::ranges::equal(content.curves, m_content.curves, [](const auto& now, const auto& before) {
        return now.color == before.color && now.fill == before.fill && continues(now.points, before.points);
    });
}

void ThroughputPicture::begin(const ThroughputContent& content, QSizeF size, double scale,
                              const ThroughputScale& axes) {
    m_size = size;
    m_scale = scale;
    m_axes = axes;
    m_content.grid = content.grid;
    m_content.label = content.label;

    const QSize pixels = inPixels(size, scale);
    const ThroughputPlot plot{size, axes};
    m_grid = QImage(pixels, QImage::Format_ARGB32_Premultiplied);
    m_grid.fill(Qt::transparent);
    m_grid.setDevicePixelRatio(scale);
    paintGrid(plot);
    m_picture = m_grid.copy();
    m_rasters.assign(content.curves.size(),
                     CurveRaster(pixels.width(), pixels.height(), lineWidth * scale, plot.floor() * scale));
    m_peaks.assign(content.curves.size(), 0);
}

void ThroughputPicture::paintGrid(const ThroughputPlot& plot) {
    QPainter painter(&m_grid);
    const auto labels = plot.scale.yLabels();
    // A rate read from a file may be of any size; the largest label, the first, says what all are set in.
    painter.setFont(fontFor(QString::number(labels.front()), labelEnd));
    for (int i = 0; i <= ThroughputScale::intervals; ++i) {
        const double y = plot.gridLine(i);
        // On whole pixels, else some lines would be sharp and others smeared over two rows.
        const double upper = std::round((y - 0.5) * m_scale) / m_scale;
        painter.fillRect(QRectF(ThroughputPlot::left, upper, plot.width(), 1), m_content.grid);
        painter.setPen(m_content.label);
        drawLabel(painter, QString::number(labels[static_cast<std::size_t>(i)]), {labelEnd, y}, 1);
    }
    painter.setFont(Typeface::mono(9));
    const auto times = plot.scale.xLabels();
    for (std::size_t i = 0; i < times.size(); ++i)
        drawLabel(painter, seconds(times[i]), {plot.x(times[i]), plot.floor() + 12},
                  static_cast<double>(i) / 2);
}

void ThroughputPicture::compose(int fromColumn) {
    if (fromColumn >= m_picture.width())
        return;
    for (int row = 0; row < m_picture.height(); ++row) {
        const auto* grid = reinterpret_cast<const QRgb*>(m_grid.constScanLine(row));
        std::copy(grid + fromColumn, grid + m_grid.width(),
                  reinterpret_cast<QRgb*>(m_picture.scanLine(row)) + fromColumn);
    }
    const ThroughputPlot plot{m_size, *m_axes};
    for (std::size_t i = 0; i < m_rasters.size(); ++i)
        if (isDrawn(m_content.curves[i]))
            blendArea(m_picture, m_rasters[i], m_content.curves[i].fill,
                      plot.map({0, m_peaks[i]}).y() * m_scale, fromColumn);
    for (std::size_t i = 0; i < m_rasters.size(); ++i)
        if (isDrawn(m_content.curves[i]))
            blendLine(m_picture, m_rasters[i], m_content.curves[i].color, fromColumn);
}

} // namespace TarnwickKit::views
