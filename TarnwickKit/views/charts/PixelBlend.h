#pragma once

#include "TarnwickKit/views/charts/CurveRaster.h"

#include <QColor>
#include <QImage>
#include <QRgb>
#include <QSizeF>

#include <cmath>
#include <cstdint>

namespace TarnwickKit::views {

inline QSize inPixels(QSizeF size, double scale) {
    return {static_cast<int>(std::ceil(size.width() * scale)),
            static_cast<int>(std::ceil(size.height() * scale))};
}

/// A premultiplied pixel scaled by a share of 0 to 255.
constexpr QRgb timesShare(QRgb pixel, std::uint32_t share) {
    std::uint32_t even = (pixel & 0xff00ff) * share;
    even = ((even + ((even >> 8) & 0xff00ff) + 0x800080) >> 8) & 0xff00ff;
    std::uint32_t odd = ((pixel >> 8) & 0xff00ff) * share;
    odd = (odd + ((odd >> 8) & 0xff00ff) + 0x800080) & 0xff00ff00;
    return even | odd;
}

/// One premultiplied pixel composited over another.
constexpr QRgb over(QRgb upper, QRgb lower) { return upper + timesShare(lower, 255 - (upper >> 24)); }

/// Draws a curve's line over a premultiplied picture, starting at column `from`.
inline void blendLine(QImage& picture, const CurveRaster& raster, const QColor& color, int from) {
    const QRgb pixel = qPremultiply(color.rgba());
    for (int row = 0; row < raster.height(); ++row) {
        const std::uint8_t* shares = raster.line(row);
        auto* pixels = reinterpret_cast<QRgb*>(picture.scanLine(row));
        for (int column = from; column < raster.width(); ++column)
            if (const std::uint32_t share = shares[column])
                pixels[column] = over(timesShare(pixel, share), pixels[column]);
    }
}

} // namespace TarnwickKit::views
