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
    /// The number of leading points that are the same as in the picture painted before; 0 if not known. Where
    /// it covers that whole curve, only the points behind it are drawn.
    qsizetype unchanged = 0;
};

/// What a throughput chart shows.
struct ThroughputContent {
    std::vector<ChartCurve> curves; ///< later ones lie above earlier ones, lines above all areas
    QList<QPointF> temperatures;    ///< seconds and degrees Celsius
    bool live = false;
    QColor temperature;
    QColor grid;
    QColor label;
    QString axisUnit{};   ///< below the largest label of the rates; none if empty
    bool marked = false;  ///< sustained parts, peaks and lowest points; not for live charts
    QColor ground{};      ///< around the marks
    double textScale = 1; ///< of the axes' labels
};

/// Paints throughput charts. Points appended to a live chart cost only their own drawing.
///
/// Threads: one at a time.
class ThroughputPicture {
public:
    static constexpr double lineWidth = 2.2; ///< logical pixels
    static constexpr double temperatureWidth = 1.2;

    /// Units: `size` in logical pixels, `scale` device pixels per logical one.
    QImage paint(const ThroughputContent& content, QSizeF size, double scale);

private:
    /// What has been drawn of one curve.
    struct Drawn {
        QColor color;
        QColor fill;
        qsizetype count = 0;            ///< points
        std::optional<QPointF> largest; ///< coordinates of these points
        double peak = 0;                ///< the largest y; the area's colours depend on it
        CurveRaster raster;
    };

    bool continuesLast(const ThroughputContent& content, QSizeF size, double scale) const;
    std::optional<QPointF> updateLargest(const ThroughputContent& content);
    void begin(const ThroughputContent& content, QSizeF size, double scale, const ThroughputScale& axes);
    void paintGrid(const ThroughputPlot& plot);
    void paintSustainedParts(const ThroughputContent& content, const ThroughputPlot& plot);
    int addPoints(const ThroughputContent& content);
    void compose(int fromColumn);
    void paintTemperatures(const ThroughputContent& content);

    QSizeF m_size;
    double m_scale = 0;
    QColor m_gridColor;
    QColor m_labelColor;
    QColor m_temperatureColor;
    QString m_axisUnit;
    double m_textScale = 1;
    std::optional<ThroughputScale> m_axes;
    std::vector<Drawn> m_curves;
    QImage m_grid;
    /// The temperatures as last painted, and for what. There is one a second, and the curves grow far more
    /// often.
    QImage m_temperatures;
    QList<QPointF> m_temperaturePoints;
    QImage m_picture;
};

} // namespace TarnwickKit::views
