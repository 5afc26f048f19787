#pragma once

#include <QColor>
#include <QRgb>

#include <cstdint>

namespace TarnwickKit::views {

/// A premultiplied pixel times a share of 0 to 255.
constexpr QRgb timesShare(QRgb pixel, std::uint32_t share) {
    std::uint32_t even = (pixel & 0xff00ff) * share;
    even = ((even + ((even >> 8) & 0xff00ff) + 0x800080) >> 8) & 0xff00ff;
    std::uint32_t odd = ((pixel >> 8) & 0xff00ff) * share;
    odd = (odd + ((odd >> 8) & 0xff00ff) + 0x800080) & 0xff00ff00;
    return even | odd;
}

/// One premultiplied pixel laid over another.
constexpr QRgb over(QRgb upper, QRgb lower) { return upper + timesShare(lower, 255 - (upper >> 24)); }

} // namespace TarnwickKit::views
