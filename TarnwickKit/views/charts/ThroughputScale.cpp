#include "TarnwickKit/views/charts/ThroughputScale.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace TarnwickKit::views {

namespace {

double roundedUp(double value, double step) { return std::ceil(value / step) * step; }

double topOf(double largest) {
    if (!(largest > 0))
        return 1000;
    const double step = largest > 2000 ? 1000 : largest > 400 ? 500 : 100;
    return std::max(step, roundedUp(largest, step));
}

std::int64_t integerPart(double value) {
    constexpr double limit = 9.2e18; // a run file may hold any number
    return static_cast<std::int64_t>(std::clamp(value, -limit, limit));
}

} // namespace

std::optional<QPointF> largestOf(const QList<QPointF>& points, qsizetype first,
                                 std::optional<QPointF> known) {
    for (qsizetype i = first; i < points.size(); ++i) {
        const QPointF& point = points[i];
        known = known ? QPointF(std::max(known->x(), point.x()), std::max(known->y(), point.y())) : point;
    }
    return known;
}

ThroughputScale::ThroughputScale(std::optional<QPointF> largest, bool live) {
    const double end = largest ? largest->x() : 1;
    xTop = live ? std::max(5.0, roundedUp(end, 5)) : std::max(0.05, end);
    yTop = largest ? topOf(largest->y()) : 1000;
}

std::array<std::int64_t, ThroughputScale::intervals + 1> ThroughputScale::yLabels() const {
    std::array<std::int64_t, intervals + 1> labels{};
    for (int i = 0; i <= intervals; ++i)
        labels[static_cast<std::size_t>(i)] = integerPart((intervals - i) * yTop / intervals);
    return labels;
}

std::array<double, 3> ThroughputScale::xLabels() const {
    const double middle = xTop / 2;
    return {0, xTop >= 2 ? std::floor(middle) : middle, xTop};
}

QString seconds(double time) {
    // QString::number writes a decimal point whatever the locale.
    if (time == 0)
        return QStringLiteral("0s");
    if (time < 1)
        return QString::number(time, 'f', 2) + QLatin1Char('s');
    const double tenths = std::round(time * 10);
    const bool isWhole = std::fmod(tenths, 10) == 0;
    return QString::number(tenths / 10, 'f', isWhole ? 0 : 1) + QLatin1Char('s');
}

} // namespace TarnwickKit::views
