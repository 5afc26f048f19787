#pragma once

#include <QtGlobal>

#include <cstdint>

namespace TarnwickKit::model {

/// A double without a fraction as an integer. Fails: one that is not finite or does not fit is a programming
/// fault and stops the process.
inline std::int64_t wholeNumber(double value) {
    // 2^63 is the least double above the largest integer; its negative is the smallest integer itself.
    constexpr double limit = 9223372036854775808.0;
    if (!(value >= -limit && value < limit))
        qFatal("a figure is not finite or does not fit into 64 bits");
    return static_cast<std::int64_t>(value);
}

} // namespace TarnwickKit::model
