#pragma once

#include "TarnwickKit/views/charts/CurveRaster.h"
#include "TarnwickKit/views/charts/ThroughputScale.h"

#include <QColor>
#include <QImage>
#include <QList>
#include <QPointF>
#include <QSizeF>

#include <optional>
#include <vector>

namespace TarnwickKit::views {

/// One curve as it is painted.
struct ChartCurve {
    QColor color;
    QColor fill;           ///< the area's colour at the curve's highest point; it fades towards the floor
    QList<QPointF> points; ///< seconds and decimal megabytes per second

    bool operator==(const ChartCurve&) const = default;
};

/// What a throughput chart shows.
struct ThroughputContent {
    std::vector<ChartCurve> curves; ///< later ones lie above earlier ones, lines above all areas
    bool live = false;
    QColor grid;
    QColor label;

    bool operator==(const ThroughputContent&) const = default;
};

/// Paints throughput charts, and what is merely added to a live one at the price of what is new.
///
/// Threads: one at a time.
class ThroughputPicture {
public:
    static constexpr double lineWidth = 2.2; ///< logical pixels

    /// Units: `size` in logical pixels, `scale` device pixels per logical one.
    QImage paint(const ThroughputContent& content, QSizeF size, double scale);

private:
    bool isMoreOf(const ThroughputContent& content, QSizeF size, double scale,
                  const ThroughputScale& axes) const;
    void begin(const ThroughputContent& content, QSizeF size, double scale, const ThroughputScale& axes);
    void paintGrid(const ThroughputPlot& plot);
    void compose(int fromColumn);

    ThroughputContent m_content;
    QSizeF m_size;
    double m_scale = 0;
    std::optional<ThroughputScale> m_axes;
    std::vector<CurveRaster> m_rasters; ///< one per curve
    std::vector<double> m_peaks;        ///< largest y per curve
    QImage m_grid;
    QImage m_picture;
};

} // namespace TarnwickKit::views
