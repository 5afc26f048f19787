#include "TarnwickKit/views/charts/ThroughputPicture.h"

#include "TarnwickKit/views/charts/CurveReading.h"
#include "TarnwickKit/views/charts/PixelBlend.h"
#include "TarnwickKit/views/style/Typeface.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

namespace TarnwickKit::views {

namespace {

constexpr double labelEnd = 36; ///< of the labels left of the plot; logical pixels

/// Draws text anchored at its leading edge (0), its centre (0.5) or its trailing edge (1), and vertically
/// centred.
void drawLabel(QPainter& painter, const QString& text, QPointF place, double anchor) {
    const QFontMetricsF metrics(painter.font());
    const double left = place.x() - anchor * metrics.horizontalAdvance(text);
    painter.drawText(QPointF(left, place.y() + (metrics.ascent() - metrics.descent()) / 2), text);
}

/// The font of the axes. Larger than this, it would not fit beside and below the plot.
QFont axisFont(double textScale) { return Typeface::mono(std::min(9 * textScale, 15.0)); }

/// The same, made smaller until `text` is no wider than `room`.
QFont fontFor(const QString& text, double room, double textScale) {
    QFont font = axisFont(textScale);
    while (font.pixelSize() > 1 && QFontMetricsF(font).horizontalAdvance(text) > room)
        font.setPixelSize(font.pixelSize() - 1);
    return font;
}

QString degrees(double celsius) { return QString::number(celsius) + QStringLiteral(" °C"); }

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

/// Triangles above the highest and below the lowest point of each curve.
void paintExtremes(QImage& picture, const ThroughputContent& content, const ThroughputPlot& plot) {
    constexpr double half = 4; // of a side
    constexpr double gap = 3;
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const ChartCurve& curve : content.curves) {
        const auto extremes = CurveExtremes::of(curve.points);
        if (!extremes)
            continue;
        painter.setPen(QPen(content.ground, 1));
        painter.setBrush(curve.color);
        const auto triangle = [&](QPointF point, double up) {
            const QPointF tip = plot.map(point) - QPointF(0, gap * up);
            painter.drawPolygon(QPolygonF{tip, tip + QPointF(-half, -1.5 * half * up),
                                          tip + QPointF(half, -1.5 * half * up)});
        };
        triangle(extremes->highest, 1);
        triangle(extremes->lowest, -1);
    }
}

} // namespace

QImage ThroughputPicture::paint(const ThroughputContent& content, QSizeF size, double scale) {
    const bool continues = continuesLast(content, size, scale);
    if (!continues)
        m_curves.assign(content.curves.size(), {});
    const ThroughputScale axes(updateLargest(content), content.live);
    const bool startsAnew = !continues || axes != m_axes;
    if (startsAnew)
        begin(content, size, scale, axes);

    const int changedFrom = addPoints(content);
    compose(startsAnew ? 0 : changedFrom);
    if (startsAnew || m_temperaturePoints != content.temperatures)
        paintTemperatures(content);
    QImage picture = m_picture;
    if (!m_temperatures.isNull())
        QPainter(&picture).drawImage(0, 0, m_temperatures);
    if (content.marked && !content.live)
        paintExtremes(picture, content, {m_size, *m_axes});
    if (!content.live)
        *this = {}; // a finished run does not grow, and the coverages of a wide chart take megabytes
    return picture;
}

/// Whether the content is that of the last picture, or more of it.
bool ThroughputPicture::continuesLast(const ThroughputContent& content, QSizeF size, double scale) const {
    if (size != m_size || scale != m_scale || content.grid != m_gridColor || content.label != m_labelColor ||
        content.temperature != m_temperatureColor || content.axisUnit != m_axisUnit ||
        content.textScale != m_textScale)
        return false;
    return std::ranges::equal(content.curves, m_curves, [](const ChartCurve& now, const Drawn& drawn) {
        return now.color == drawn.color && now.fill == drawn.fill && now.unchanged == drawn.count;
    });
}

std::optional<QPointF> ThroughputPicture::updateLargest(const ThroughputContent& content) {
    QList<QPointF> largest; // of each curve
    for (std::size_t i = 0; i < m_curves.size(); ++i) {
        Drawn& drawn = m_curves[i];
        drawn.largest = largestOf(content.curves[i].points, drawn.count, drawn.largest);
        if (drawn.largest)
            largest.append(*drawn.largest);
    }
    return largestOf(largest);
}

void ThroughputPicture::begin(const ThroughputContent& content, QSizeF size, double scale,
                              const ThroughputScale& axes) {
    m_size = size;
    m_scale = scale;
    m_axes = axes;
    m_gridColor = content.grid;
    m_labelColor = content.label;
    m_temperatureColor = content.temperature;
    m_axisUnit = content.axisUnit;
    m_textScale = content.textScale;

    const QSize pixels = inPixels(size, scale);
    const ThroughputPlot plot{size, axes};
    m_grid = QImage(pixels, QImage::Format_ARGB32_Premultiplied);
    m_grid.fill(Qt::transparent);
    m_grid.setDevicePixelRatio(scale);
    if (content.marked && !content.live)
        paintSustainedParts(content, plot);
    paintGrid(plot);
    m_picture = m_grid.copy();
    for (std::size_t i = 0; i < m_curves.size(); ++i) {
        Drawn& drawn = m_curves[i];
        drawn.color = content.curves[i].color;
        drawn.fill = content.curves[i].fill;
        drawn.count = 0;
        drawn.raster = CurveRaster(pixels.width(), pixels.height(), lineWidth * scale, plot.floor() * scale);
    }
}

/// Draws the points that are not drawn yet. Answers the first column of the picture that changes.
int ThroughputPicture::addPoints(const ThroughputContent& content) {
    const ThroughputPlot plot{m_size, *m_axes};
    int changedFrom = m_picture.width();
    for (std::size_t i = 0; i < m_curves.size(); ++i) {
        Drawn& drawn = m_curves[i];
        const QList<QPointF>& points = content.curves[i].points;
        for (; drawn.count < points.size(); ++drawn.count)
            drawn.raster.add(plot.map(points[drawn.count]) * m_scale);
        changedFrom = std::min(changedFrom, drawn.raster.takeChangedFrom());
        // The colours of the whole area depend on the highest point.
        const double peak = drawn.largest ? std::max(0.0, drawn.largest->y()) : 0;
        if (peak != std::exchange(drawn.peak, peak))
            changedFrom = 0;
    }
    return changedFrom;
}

void ThroughputPicture::paintGrid(const ThroughputPlot& plot) {
    QPainter painter(&m_grid);
    const auto labels = plot.scale.yLabels();
    // A rate read from a file may be of any size. The first label is the largest and decides the font of all.
    painter.setFont(fontFor(QString::number(labels.front()), labelEnd, m_textScale));
    for (int i = 0; i <= ThroughputScale::intervals; ++i) {
        const double y = plot.gridLine(i);
        // Aligned to whole pixels, otherwise some lines are sharp and others blurred over two rows.
        const double upper = std::round((y - 0.5) * m_scale) / m_scale;
        painter.fillRect(QRectF(ThroughputPlot::left, upper, plot.width(), 1), m_gridColor);
        painter.setPen(m_labelColor);
        drawLabel(painter, QString::number(labels[static_cast<std::size_t>(i)]), {labelEnd, y}, 1);
    }
    painter.setFont(fontFor(m_axisUnit, labelEnd, m_textScale));
    drawLabel(painter, m_axisUnit, {labelEnd, plot.gridLine(0) + 11 * m_textScale}, 1);
    painter.setFont(axisFont(m_textScale));
    const auto times = plot.scale.xLabels();
    for (std::size_t i = 0; i < times.size(); ++i)
        drawLabel(painter, seconds(times[i]), {plot.x(times[i]), plot.floor() + 12},
                  static_cast<double>(i) / 2);
}

/// A shade over the plot's height, and a line below the floor that tells whose it is.
void ThroughputPicture::paintSustainedParts(const ThroughputContent& content, const ThroughputPlot& plot) {
    constexpr double lineHeight = 2;
    QPainter painter(&m_grid);
    double line = plot.floor() + 1.5;
    for (const ChartCurve& curve : content.curves) {
        const auto part = SustainedPart::of(curve.points);
        if (!part)
            continue;
        QColor shade = curve.color;
        shade.setAlphaF(0.08f);
        const double left = plot.x(part->from);
        const double width = plot.x(part->to) - left;
        painter.fillRect(QRectF(left, ThroughputPlot::top, width, plot.height()), shade);
        painter.fillRect(QRectF(left, line, width, lineHeight), curve.color);
        line += lineHeight + 1;
    }
}

/// A degree has the same height in every chart: the grid's lines are 20 degrees apart.
void ThroughputPicture::paintTemperatures(const ThroughputContent& content) {
    constexpr double top = 100;
    m_temperaturePoints = content.temperatures;
    m_temperatures = {};
    if (content.temperatures.isEmpty())
        return;
    const ThroughputPlot plot{m_size, *m_axes};
    QPolygonF line;
    for (const QPointF& point : content.temperatures)
        line << QPointF(plot.x(std::min(point.x(), m_axes->xTop)),
                        plot.floor() - std::clamp(point.y() / top, 0.0, 1.0) * plot.height());
    m_temperatures = QImage(m_picture.size(), m_picture.format());
    m_temperatures.setDevicePixelRatio(m_scale);
    m_temperatures.fill(Qt::transparent);
    QPainter painter(&m_temperatures);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(content.temperature, temperatureWidth));
    painter.drawPolyline(line);
    painter.setFont(axisFont(m_textScale));
    const double end = ThroughputPlot::left + plot.width();
    drawLabel(painter, degrees(top), {end, plot.gridLine(0) + 8 * m_textScale}, 1);
    drawLabel(painter, degrees(0), {end, plot.floor() - 8 * m_textScale}, 1);
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
    for (const Drawn& curve : m_curves)
        if (curve.count >= 2)
            blendArea(m_picture, curve.raster, curve.fill, plot.map({0, curve.peak}).y() * m_scale,
                      fromColumn);
    for (const Drawn& curve : m_curves)
        if (curve.count >= 2)
            blendLine(m_picture, curve.raster, curve.color, fromColumn);
}

} // namespace TarnwickKit::views
