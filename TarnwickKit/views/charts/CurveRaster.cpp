#include "TarnwickKit/views/charts/CurveRaster.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace TarnwickKit::views {

namespace {

constexpr float soft = 0.5f; ///< half a pixel, over which an edge fades

float unit(float value) { return std::clamp(value, 0.0f, 1.0f); }

float lengthOf(float x, float y) { return std::sqrt(x * x + y * y); } // hypot is ten times slower

/// A segment in the frame of its own direction.
struct Segment {
    float startX, startY, alongX, alongY, length, reach;
    bool roundStart, roundEnd;

    float coverage(float x, float y) const {
        const float dx = x - startX;
        const float dy = y - startY;
        const float along = dx * alongX + dy * alongY;
        const float across = std::abs(dx * alongY - dy * alongX);
        if (along < 0 && roundStart)
            return unit(reach + soft - lengthOf(along, across));
        if (along > length && roundEnd)
            return unit(reach + soft - lengthOf(along - length, across));
        const float ends =
            (roundStart ? 1 : unit(along + soft)) * (roundEnd ? 1 : unit(length - along + soft));
        return unit(reach + soft - across) * ends;
    }
};

/// The integral of a value clamped to 0…1.
double clampedIntegral(double value) {
    if (value <= 0)
        return 0;
    return value < 1 ? value * value / 2 : value - 0.5;
}

/// The average coverage of `row` when the area's upper edge is a straight line from `upper` to `lower`.
double filled(int row, double upper, double lower) {
    const double below = row + 1;
    if (lower - upper < 1e-6)
        return std::clamp(below - upper, 0.0, 1.0);
    return (clampedIntegral(below - upper) - clampedIntegral(below - lower)) / (lower - upper);
}

int clampedFloor(double value, int lowest, int highest) {
    return static_cast<int>(std::clamp(std::floor(value), double(lowest), double(highest)));
}

} // namespace

CurveRaster::CurveRaster(int width, int height, double lineWidth, double floor, Caps caps)
    : m_width(std::max(0, width))
    , m_height(std::max(0, height))
    , m_reach(lineWidth / 2)
    , m_floor(floor)
    , m_caps(caps)
    , m_line(at(0, m_height))
    , m_area(at(0, m_height)) {}

int CurveRaster::takeChangedFrom() { return std::exchange(m_changedFrom, m_width); }

void CurveRaster::add(QPointF point) {
    if (m_count > 0 && !m_line.empty()) {
        // Each segment but the first draws the round join at its start.
        const bool isRound = m_caps == Caps::Round;
        stroke(m_last, point, m_count > 1 || isRound, isRound);
        fillBeneath(m_last, point);
        const double left = std::min(m_last.x(), point.x()) - m_reach - 1;
        m_changedFrom = std::min(m_changedFrom, clampedFloor(left, 0, m_width));
    }
    m_last = point;
    ++m_count;
}

void CurveRaster::stroke(QPointF from, QPointF to, bool roundStart, bool roundEnd) {
    const QPointF way = to - from;
    const double length = std::hypot(way.x(), way.y());
    const QPointF along = length > 1e-9 ? way / length : QPointF(1, 0);
    const Segment segment{float(from.x()), float(from.y()), float(along.x()), float(along.y()),
                          float(length),   float(m_reach),  roundStart,       roundEnd};

    const double margin = m_reach + 0.5;
    const int lastRow = clampedFloor(std::max(from.y(), to.y()) + margin, -1, m_height - 1);
    const double leftEnd = std::min(from.x(), to.x()) - margin;
    const double rightEnd = std::max(from.x(), to.x()) + margin;
    // Where a row crosses the band along the segment; a level segment's band is as wide as the segment.
    const bool isLevel = std::abs(along.y()) < 1e-9;
    const double slant = isLevel ? 0 : along.x() / along.y();
    const double half = isLevel ? rightEnd - leftEnd : margin / std::abs(along.y());
    for (int row = clampedFloor(std::min(from.y(), to.y()) - margin, 0, m_height); row <= lastRow; ++row) {
        const double middle = from.x() + (row + 0.5 - from.y()) * slant;
        const double left = std::max(leftEnd, middle - half);
        const double right = std::min(rightEnd, middle + half);
        const int last = clampedFloor(right, -1, m_width - 1);
        std::uint8_t* pixels = m_line.data() + at(0, row);
        for (int column = clampedFloor(left, 0, m_width); column <= last; ++column) {
            if (pixels[column] == 255)
                continue;
            const float coverage = segment.coverage(float(column) + soft, float(row) + soft);
            pixels[column] = std::max(pixels[column], static_cast<std::uint8_t>(coverage * 255 + 0.5f));
        }
    }
}

void CurveRaster::fillBeneath(QPointF from, QPointF to) {
    // A segment that runs backwards subtracts the area beneath it.
    const double sign = from.x() <= to.x() ? 1 : -1;
    if (sign < 0)
        std::swap(from, to);
    const double slope = (to.y() - from.y()) / (to.x() - from.x());
    const int last = clampedFloor(to.x(), -1, m_width - 1);
    for (int column = clampedFloor(from.x(), 0, m_width); column <= last; ++column) {
        const double left = std::max(from.x(), double(column));
        const double right = std::min(to.x(), column + 1.0);
        if (right > left)
            fillColumn(column, from.y() + (left - from.x()) * slope, from.y() + (right - from.x()) * slope,
                       sign * (right - left));
    }
}

void CurveRaster::fillColumn(int column, double y0, double y1, double share) {
    const double upper = std::min(y0, y1);
    const double lower = std::max(y0, y1);
    double before = 0;
    const int last = clampedFloor(lower + 1, 0, m_height - 1); // the first row that is full
    for (int row = clampedFloor(upper, 0, m_height); row <= last; ++row) {
        const double now = filled(row, upper, lower);
        m_area[at(column, row)] += float(share * (now - before));
        before = now;
    }
}

} // namespace TarnwickKit::views
