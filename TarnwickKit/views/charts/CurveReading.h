#pragma once

#include <QList>
#include <QPointF>

#include <optional>

namespace TarnwickKit::views {

/// A curve's rate at a time, on the straight line between its points as it is drawn. Absent beyond the
/// curve's ends, and for a curve of fewer than two points, which is not drawn.
///
/// Units: seconds, and the points' own unit of rates.
std::optional<double> rateAt(const QList<QPointF>& points, double time);

/// The times of the points of several curves.
class ChartTimes {
public:
    explicit ChartTimes(const QList<QList<QPointF>>& curves);

    /// The time closest to `time`; absent without any.
    std::optional<double> nearest(double time) const;
    /// The time that is `steps` points after `time`, or before it for a negative number; the first or the
    /// last one beyond that.
    std::optional<double> stepped(double time, int steps) const;

private:
    QList<double> m_times; ///< ascending, each once
};

/// The part of a curve that its sustained rate is taken from: the points from two thirds of the last one's
/// time on. The curve of a saved run may end a little earlier than the measurement.
struct SustainedPart {
    double from = 0;
    double to = 0;

    static std::optional<SustainedPart> of(const QList<QPointF>& points);
    bool operator==(const SustainedPart&) const = default;
};

/// The first point with the highest rate, and the first with the lowest one. Absent if the curve is not
/// drawn, or level.
struct CurveExtremes {
    QPointF highest;
    QPointF lowest;

    static std::optional<CurveExtremes> of(const QList<QPointF>& points);
    bool operator==(const CurveExtremes&) const = default;
};

} // namespace TarnwickKit::views
