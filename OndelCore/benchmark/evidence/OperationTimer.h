#pragma once

#include "OndelCore/benchmark/evidence/Evidence.h"
#include "OndelCore/benchmark/evidence/LatencyHistogram.h"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <optional>
#include <utility>

namespace OndelCore::benchmark {

/// The longest time that a test stood still, and how often it stood for over a second.
class Pauses {
public:
    /// Units: nanoseconds.
    void add(std::int64_t duration) {
        constexpr std::int64_t second = 1'000'000'000;
        m_longest = std::max(m_longest, duration);
        m_long += duration > second ? 1 : 0;
    }
    void tell(TestEvidence& evidence) const {
        evidence.longestPause = static_cast<double>(m_longest) * 1e-9;
        evidence.longPauses = m_long;
    }

private:
    std::int64_t m_longest = 0;
    std::int64_t m_long = 0;
};

/// Times single operations with one reading of the clock for each. Does not allocate.
class OperationTimer {
public:
    /// `nanoseconds`: the clock; outlives the object. Its first reading, which may take long, is made here.
    explicit OperationTimer(const std::function<std::int64_t()>& nanoseconds)
        : m_nanoseconds(nanoseconds)
        , m_last(nanoseconds()) {}

    /// What lies between the end of the last operation and this call belongs to no operation.
    void begin() { m_last = m_nanoseconds(); }
    void endedOne() {
        const std::int64_t now = m_nanoseconds();
        const std::int64_t duration = now - std::exchange(m_last, now);
        m_histogram.add(duration);
        m_pauses.add(duration);
    }

    std::optional<Latency> latency() const { return m_histogram.latency(); }
    /// The same, and forgets the operations so far; their pauses stay.
    std::optional<Latency> takeLatency() { return std::exchange(m_histogram, {}).latency(); }
    void tell(TestEvidence& evidence) const { m_pauses.tell(evidence); }

private:
    const std::function<std::int64_t()>& m_nanoseconds;
    std::int64_t m_last;
    LatencyHistogram m_histogram;
    Pauses m_pauses;
};

} // namespace OndelCore::benchmark
