#pragma once

#include "OndelCore/benchmark/evidence/Evidence.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace OndelCore::benchmark {

/// Counts durations in log-linear buckets: 128 for each power of two, so that a bucket is less than 1 % of
/// its values wide. Of fixed size; adding neither allocates nor branches on what was added before.
class LatencyHistogram {
public:
    /// Units: nanoseconds. A negative duration counts as 0, one above 2^40 (18 minutes) as that.
    void add(std::int64_t nanoseconds) {
        const auto value = static_cast<std::uint64_t>(std::clamp(nanoseconds, std::int64_t{0}, largest));
        ++m_counts[bucketOf(value)];
        m_worst = std::max(m_worst, value);
    }

    /// Absent when nothing was added.
    std::optional<Latency> latency() const;

private:
    static constexpr int bits = 7;
    static constexpr std::uint64_t perOctave = 1U << bits;
    static constexpr std::int64_t largest = (std::int64_t{1} << 40) - 1;

    /// Values below 256 have buckets of their own.
    static std::size_t bucketOf(std::uint64_t value) {
        const int shift = std::max(0, static_cast<int>(std::bit_width(value)) - bits - 1);
        return static_cast<std::size_t>((static_cast<std::uint64_t>(shift) << bits) + (value >> shift));
    }
    static double middleOf(std::size_t bucket);
    double quantile(double share, std::uint64_t count) const;

    std::array<std::uint64_t, (40 - bits + 1) * perOctave> m_counts{};
    std::uint64_t m_worst = 0;
};

} // namespace OndelCore::benchmark
