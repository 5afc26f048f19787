#include "OndelCore/platform/process/OperationClock.h"

#include "OndelCore/platform/process/SystemCalls.h"

#include <cmath>
#include <fstream>
#include <limits>
#include <string>

namespace OndelCore::platform {

#ifdef __x86_64__

namespace {

/// The same instant on both clocks.
struct Instant {
    std::int64_t ticks = 0;
    std::int64_t nanoseconds = 0;
};

std::int64_t ticksNow() { return static_cast<std::int64_t>(__builtin_ia32_rdtsc()); }

/// Of several tries the one that was interrupted least.
Instant instantNow() {
    Instant best;
    std::int64_t leastGap = std::numeric_limits<std::int64_t>::max();
    for (int i = 0; i < 5; ++i) {
        const std::int64_t before = ticksNow();
        const std::int64_t nanoseconds = monotonicNanoseconds();
        const std::int64_t gap = ticksNow() - before;
        if (gap >= 0 && gap < leastGap) {
            leastGap = gap;
            best = {before + gap / 2, nanoseconds};
        }
    }
    return best;
}

/// The kernel gives up the counter as its clock when processors disagree about it, or when it stops.
bool kernelTrustsCounter() {
    std::ifstream source("/sys/devices/system/clocksource/clocksource0/current_clocksource");
    std::string name;
    return source >> name && name == "tsc";
}

class Counter {
public:
    Counter() {
        constexpr std::int64_t comparison = 5'000'000;
        if (!kernelTrustsCounter())
            return;
        m_first = instantNow();
        while (monotonicNanoseconds() - m_first.nanoseconds < comparison) {
        }
        m_anchor = instantNow();
        m_nanosecondsPerTick = nanosecondsPerTick();
    }

    std::int64_t nanoseconds() {
        if (m_nanosecondsPerTick <= 0) [[unlikely]]
            return monotonicNanoseconds();
        const auto passed = static_cast<std::int64_t>(static_cast<double>(ticksNow() - m_anchor.ticks) *
                                                      m_nanosecondsPerTick);
        if (passed < 0 || passed > longestPassed) [[unlikely]] {
            takeAnchor();
            return m_anchor.nanoseconds;
        }
        return m_anchor.nanoseconds + passed;
    }

private:
    static constexpr std::int64_t longestPassed = 250'000'000;

    /// Since the first instant.
    double nanosecondsPerTick() const {
        const std::int64_t ticks = m_anchor.ticks - m_first.ticks;
        return ticks > 0 ? static_cast<double>(m_anchor.nanoseconds - m_first.nanoseconds) /
                               static_cast<double>(ticks)
                         : 0;
    }

    /// The longer the time between the first instant and the anchor, the better the scale. While the machine
    /// is suspended one clock stands still and the other goes on or starts anew: then the old scale stays.
    void takeAnchor() {
        constexpr double plausibleChange = 1e-3;
        m_anchor = instantNow();
        const double scale = nanosecondsPerTick();
        if (std::abs(scale - m_nanosecondsPerTick) < plausibleChange * m_nanosecondsPerTick)
            m_nanosecondsPerTick = scale;
        else
            m_first = m_anchor;
    }

    Instant m_first;
    Instant m_anchor;
    double m_nanosecondsPerTick = 0; ///< 0: the counter is of no use
};

} // namespace

std::int64_t operationNanoseconds() {
    thread_local Counter counter;
    return counter.nanoseconds();
}

#else

std::int64_t operationNanoseconds() { return monotonicNanoseconds(); }

#endif

} // namespace OndelCore::platform
