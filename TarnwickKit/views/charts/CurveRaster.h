#pragma once

#include <QPointF>

#include <cstdint>
#include <vector>

namespace TarnwickKit::views {

/// The share of each pixel that a curve's line and the area beneath it cover.
///
/// QPainter needs over ten milliseconds to stroke a line through thousands of jagged points, and a live chart
/// is drawn up to fifty times per second. Here a point costs only the pixels along its own segment. The
/// result does not depend on how the points are distributed over calls.
///
/// Units: device pixels, y downwards.
class CurveRaster {
public:
    enum class Caps { Butt, Round };

    CurveRaster() = default;
    /// `floor` is the lower edge of the area.
    CurveRaster(int width, int height, double lineWidth, double floor, Caps caps = Caps::Butt);

    /// Continues the line to `point`. Joins are round. What lies outside the picture is clipped.
    void add(QPointF point);

    int width() const { return m_width; }
    int height() const { return m_height; }

    /// 0 to 255 for each of a row's `width()` pixels.
    const std::uint8_t* line(int row) const { return m_line.data() + at(0, row); }

    /// The area's coverage of a pixel is the sum of the steps of all rows down to its own, 0 to 1 in
    /// magnitude.
    const float* areaStep(int row) const { return m_area.data() + at(0, row); }
    double floor() const { return m_floor; }

    /// The first column changed since the last call; `width()` if none.
    int takeChangedFrom();

private:
    void stroke(QPointF from, QPointF to, bool roundStart, bool roundEnd);
    void fillBeneath(QPointF from, QPointF to);
    void fillColumn(int column, double y0, double y1, double share);
    std::size_t at(int column, int row) const {
        return static_cast<std::size_t>(row) * static_cast<std::size_t>(m_width) +
               static_cast<std::size_t>(column);
    }

    int m_width = 0;
    int m_height = 0;
    double m_reach = 0; ///< half of the line's width
    double m_floor = 0;
    Caps m_caps = Caps::Butt;
    int m_count = 0;
    QPointF m_last;
    int m_changedFrom = 0;
    std::vector<std::uint8_t> m_line;
    std::vector<float> m_area;
};

} // namespace TarnwickKit::views
