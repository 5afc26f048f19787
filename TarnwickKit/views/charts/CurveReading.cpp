#include "TarnwickKit/views/charts/CurveReading.h"

#include <algorithm>
#include <cmath>

namespace TarnwickKit::views {

// A run file may hold points in any order.
std::optional<double> rateAt(const QList<QPointF>& points, double time) {
    for (qsizetype index = 1; index < points.size(); ++index) {
        const auto [left, right] = std::minmax(
            points[index - 1], points[index], [](QPointF one, QPointF other) { return one.x() < other.x(); });
        if (time < left.x() || time > right.x())
            continue;
        const double width = right.x() - left.x();
        return width > 0 ? std::lerp(left.y(), right.y(), (time - left.x()) / width) : right.y();
    }
    return std::nullopt;
}

ChartTimes::ChartTimes(const QList<QList<QPointF>>& curves) {
    for (const QList<QPointF>& points : curves)
        if (points.size() >= 2)
            for (const QPointF& point : points)
                m_times << point.x();
    std::ranges::sort(m_times);
    m_times.erase(std::unique(m_times.begin(), m_times.end()), m_times.end());
}

std::optional<double> ChartTimes::nearest(double time) const {
    if (m_times.isEmpty())
        return std::nullopt;
    const auto after = std::ranges::lower_bound(m_times, time);
    if (after == m_times.end())
        return m_times.last();
    if (after == m_times.begin())
        return m_times.first();
    const double before = *std::prev(after);
    return time - before <= *after - time ? before : *after;
}

std::optional<double> ChartTimes::stepped(double time, int steps) const {
    if (m_times.isEmpty())
        return std::nullopt;
    // The point before or at the time for steps ahead, and the one at or after it for steps back.
    const auto at = steps > 0 ? std::ranges::upper_bound(m_times, time) - m_times.begin() - 1
                              : std::ranges::lower_bound(m_times, time) - m_times.begin();
    return m_times[std::clamp<qsizetype>(at + steps, 0, m_times.size() - 1)];
}

std::optional<SustainedPart> SustainedPart::of(const QList<QPointF>& points) {
    if (points.size() < 2 || !(points.last().x() > 0))
        return std::nullopt;
    return SustainedPart{points.last().x() * 2 / 3, points.last().x()};
}

std::optional<CurveExtremes> CurveExtremes::of(const QList<QPointF>& points) {
    if (points.size() < 2)
        return std::nullopt;
    const auto highest = std::ranges::max_element(points, {}, &QPointF::y);
    const auto lowest = std::ranges::min_element(points, {}, &QPointF::y);
    if (highest->y() == lowest->y())
        return std::nullopt;
    return CurveExtremes{*highest, *lowest};
}

} // namespace TarnwickKit::views
