#pragma once

#include <QList>
#include <QPointF>
#include <QSizeF>
#include <QString>

#include <array>
#include <cstdint>
#include <optional>

namespace TarnwickKit::views {

/// The largest coordinates of `known` and of the points from index `first` on; absent when there are none.
///
/// Units: x in seconds, y in decimal megabytes per second.
std::optional<QPointF> largestOf(const QList<QPointF>& points, qsizetype first = 0,
                                 std::optional<QPointF> known = std::nullopt);

/// The axes of a throughput chart.
///
/// Units: seconds and decimal megabytes per second.
struct ThroughputScale {
    static constexpr int intervals = 5; ///< of the grid

    double xTop = 1;
    double yTop = 1000;

    /// The time axis of a `live` chart grows in steps of five seconds; a finished run fills the width
    /// exactly.
    ThroughputScale(std::optional<QPointF> largest, bool live);

    /// The labels of the grid lines, from the top down to 0.
    std::array<std::int64_t, intervals + 1> yLabels() const;
    /// The times labelled below the axis: 0, about the middle, the end.
    std::array<double, 3> xLabels() const;

    bool operator==(const ThroughputScale&) const = default;
};

/// A time as an axis label: "0s", "0.15s", "7.3s", "12s".
QString seconds(double time);

/// The position of a chart's plot on its canvas.
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
