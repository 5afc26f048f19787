#include "OndelCore/capacity/StandstillClock.h"

#include "OndelCore/platform/process/Signals.h"

#include <chrono>
#include <system_error>
#include <utility>

namespace OndelCore::capacity {

namespace {
constexpr std::int64_t beatPeriod = 100'000'000;
constexpr std::int64_t standstill = 1'000'000'000;
} // namespace

StandstillClock::StandstillClock(const std::function<std::int64_t()>& nanoseconds)
    : m_nanoseconds(nanoseconds)
    , m_lastBeat(nanoseconds())
    , m_lastLook(m_lastBeat) {
    try {
        m_heart = std::jthread([this](const std::stop_token& stop) { beat(stop); });
    } catch (const std::system_error&) { // NOLINT(bugprone-empty-catch): no thread to be had
    }
}

std::int64_t StandstillClock::now() {
    const std::lock_guard guard(m_lock);
    return look();
}

/// Whoever is the first to run again takes the time off, from when anybody ran last: so time never goes back.
std::int64_t StandstillClock::look() {
    const std::int64_t now = m_nanoseconds();
    const std::int64_t gap = now - std::exchange(m_lastLook, now);
    if (m_isBeating && gap > standstill && now - m_lastBeat > standstill) {
        m_stoodStill += gap;
        m_lastBeat = now;
    }
    return now - m_stoodStill;
}

void StandstillClock::beat(const std::stop_token& stop) {
    platform::keepSignalsOffThisThread();
    std::unique_lock guard(m_lock);
    m_lastBeat = m_nanoseconds();
    m_isBeating = true;
    while (!m_end.wait_for(guard, stop, std::chrono::nanoseconds(beatPeriod),
                           [&stop] { return stop.stop_requested(); })) {
        look();
        m_lastBeat = m_lastLook;
    }
}

} // namespace OndelCore::capacity
