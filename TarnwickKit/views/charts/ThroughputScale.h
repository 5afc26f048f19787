#pragma once

#include <QList>
#include <QPointF>
#include <QSizeF>
#include <QString>

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

namespace TarnwickKit::views {

/// The largest coordinates of a chart's points; absent without points.
///
/// Units: x in seconds, y in decimal megabytes per second.
std::optional<QPointF> largestOf(const std::vector<QList<QPointF>>& curves);

/// The axes of a throughput chart.
///
/// Units: seconds and decimal megabytes per second.
struct ThroughputScale {
    static constexpr int intervals = 5; ///< of the grid

    double xTop = 1;
    double yTop = 1000;

    /// A `live` chart's time axis grows in steps of five seconds, a finished run fills the width exactly.
    ThroughputScale(std::optional<QPointF> largest, bool live);

    /// What stands at the grid lines, from the top down to 0.
    std::array<std::int64_t, intervals + 1> yLabels() const;
    /// The times that are written below the axis: 0, about the middle, the end.
    std::array<double, 3> xLabels() const;

    bool operator==(const ThroughputScale&) const = default;
};

/// A time as the axis writes it: "0s", "0.15s", "7.3s", "12s".
QString seconds(double time);

/// Where a chart's plot lies on its canvas.
///
/// Units: logical pixels.
struct ThroughputPlot {
    static constexpr double left = 42;
    static constexpr double right = 8;
    static constexpr double top = 8;
    static constexpr double bottom = 20;

    QSizeF canvas;
    ThroughputScale scale;

    double width() const { return canvas.width() - left - right; }
    double height() const { return canvas.height() - top - bottom; }
    double floor() const { return height() + top; }
    double gridLine(int index) const { return index * height() / ThroughputScale::intervals + top; }
    double x(double time) const { return left + time / scale.xTop * width(); }
    QPointF map(QPointF point) const { return {x(point.x()), top + (1 - point.y() / scale.yTop) * height()}; }
};

} // namespace TarnwickKit::views
