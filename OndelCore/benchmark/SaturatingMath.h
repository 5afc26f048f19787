#pragma once

#include <cstdint>
#include <limits>

namespace OndelCore::benchmark {

// A plan may hold any number. Where arithmetic on it leaves 64 bits, the nearest number they hold stands for
// the result: a size that no disk has stays one that no disk has.

constexpr std::int64_t saturated(bool isNegative) {
    return isNegative ? std::numeric_limits<std::int64_t>::min() : std::numeric_limits<std::int64_t>::max();
}

constexpr std::int64_t saturatingAdd(std::int64_t a, std::int64_t b) {
    std::int64_t sum = 0;
    return __builtin_add_overflow(a, b, &sum) ? saturated(a < 0) : sum;
}

constexpr std::int64_t saturatingSubtract(std::int64_t a, std::int64_t b) {
    std::int64_t difference = 0;
    return __builtin_sub_overflow(a, b, &difference) ? saturated(a < 0) : difference;
}

constexpr std::int64_t saturatingMultiply(std::int64_t a, std::int64_t b) {
    std::int64_t product = 0;
    return __builtin_mul_overflow(a, b, &product) ? saturated((a < 0) != (b < 0)) : product;
}

} // namespace OndelCore::benchmark
