#pragma once

#include "OndelCore/benchmark/BenchmarkResult.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace OndelCore::benchmark {

/// The rate of a sequential test over its time, from its samples. Each interval counts by its length. Units:
/// seconds from the first transfer, bytes per second.
class RateCurve {
public:
    /// A curve without intervals if any sample makes no sense: a time that does not go on, a rate that is
    /// negative or not finite.
    explicit RateCurve(const std::vector<ThroughputSample>& samples);

    std::size_t size() const { return m_ends.size(); }
    double beginOf(std::size_t interval) const { return interval == 0 ? 0 : m_ends[interval - 1]; }
    double endOf(std::size_t interval) const { return m_ends[interval]; }
    /// The first interval that begins at `time` or later; `size()` without one.
    std::size_t firstFrom(double time) const;

    // Of the intervals from `first` up to `end`; there must be one at least.
    double duration(std::size_t first, std::size_t end) const { return endOf(end - 1) - beginOf(first); }
    double bytes(std::size_t first, std::size_t end) const { return m_bytes[end] - m_bytes[first]; }
    double rate(std::size_t first, std::size_t end) const { return bytes(first, end) / duration(first, end); }
    /// The standard deviation of the rate, of means over a fifth of a second where intervals are shorter:
    /// disks and throttles take their load in bursts.
    double spread(std::size_t first, std::size_t end) const;
    /// How much the straight line that fits them best rises from their begin to their end; negative: falls.
    double trend(std::size_t first, std::size_t end) const;

private:
    /// Where a step that begins with the interval `begin` ends, at `end` at the latest.
    std::size_t endOfStep(std::size_t begin, std::size_t end) const;

    std::vector<double> m_ends;
    std::vector<double> m_bytes{0}; ///< moved before each interval, and at last all
};

/// A rate that fell from one level to another and stayed there.
struct SpeedFall {
    double before = 0; ///< bytes per second
    double after = 0;
    double bytesBefore = 0;
};

/// The fall of a curve that has exactly two levels, the second at most 0.7 of the first and as long as a
/// fifth of the test. Absent for noise, dips, ramps, stairs and what comes back.
std::optional<SpeedFall> speedFall(const RateCurve& curve);

} // namespace OndelCore::benchmark
