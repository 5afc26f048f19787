#pragma once

#include <concepts>
#include <cstdint>
#include <limits>
#include <utility>

namespace OndelCore {

// Arithmetic on untrusted numbers from plans and file systems. Results beyond 64 bits are clamped to the
// nearest representable number.

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

constexpr std::int64_t saturatingMultiply(std::integral auto a, std::integral auto b) {
    std::int64_t product = 0;
    return __builtin_mul_overflow(a, b, &product) ? saturated(std::cmp_less(a, 0) != std::cmp_less(b, 0))
                                                  : product;
}

} // namespace OndelCore
