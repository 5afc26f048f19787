#pragma once

#include <QPointF>

#include <cstdint>
#include <vector>

namespace TarnwickKit::views {

/// How much of each pixel a curve's line and the area beneath it cover.
///
/// A line through thousands of jagged points costs a painter's stroker over ten milliseconds, and a live
/// chart has fifty frames a second. Here a point costs only the pixels along its own segment, and the
/// coverages of a curve that grows by a point are those of the curve before it and of that one segment:
/// however the points arrive, the picture is the same.
///
/// Units: device pixels, y downwards.
class CurveRaster {
public:
    enum class Caps { Butt, Round };

    CurveRaster() = default;
    /// `floor` is where the area ends below.
    CurveRaster(int width, int height, double lineWidth, double floor, Caps caps = Caps::Butt);

    /// Goes on to `point`. Corners are round. What lies outside is cut off.
    void add(QPointF point);

    int width() const { return m_width; }
    int height() const { return m_height; }

    /// 0 to 255 for each of a row's `width()` pixels.
    const std::uint8_t* line(int row) const { return m_line.data() + at(0, row); }

    /// The area's coverage of a row is the sum of all rows down to it, 0 to 1 in magnitude.
    const float* areaStep(int row) const { return m_area.data() + at(0, row); }
    double floor() const { return m_floor; }

    /// The first column that points have changed since the last call; `width()` if none.
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
