#include "OndelCore/benchmark/evidence/LatencyHistogram.h"

#include <cmath>
#include <numeric>

namespace OndelCore::benchmark {

double LatencyHistogram::middleOf(std::size_t bucket) {
    const std::size_t shift = bucket < 2 * perOctave ? 0 : (bucket >> bits) - 1;
    const auto lowest = static_cast<double>((bucket - (shift << bits)) << shift);
    return lowest + (std::ldexp(1.0, static_cast<int>(shift)) - 1) / 2;
}

/// The value that `share` of all do not exceed.
double LatencyHistogram::quantile(double share, std::uint64_t count) const {
    const auto rank = static_cast<std::uint64_t>(std::ceil(share * static_cast<double>(count)));
    std::uint64_t below = 0;
    std::size_t bucket = 0;
    while ((below += m_counts[bucket]) < rank)
        ++bucket;
    return std::min(middleOf(bucket), static_cast<double>(m_worst)) * 1e-9;
}

std::optional<Latency> LatencyHistogram::latency() const {
    const std::uint64_t count = std::accumulate(m_counts.begin(), m_counts.end(), std::uint64_t{0});
    if (count == 0)
        return std::nullopt;
    return Latency{quantile(0.5, count), quantile(0.99, count), quantile(0.999, count),
                   static_cast<double>(m_worst) * 1e-9};
}

} // namespace OndelCore::benchmark
