#pragma once

#include <condition_variable>
#include <cstdint>
#include <functional>
#include <mutex>
#include <stop_token>
#include <thread>

namespace OndelCore::capacity {

/// Time without the stretches in which the whole process stood still (SIGSTOP, a frozen container), which say
/// nothing about a disk. A thread that only sleeps wakes ten times a second. Where it missed a second it was
/// the process, since a slow disk keeps no such thread from waking.
///
/// Without a thread to be had, nothing is taken off. Threads: any.
class StandstillClock {
public:
    /// `nanoseconds`: the uptime counter; outlives the object.
    explicit StandstillClock(const std::function<std::int64_t()>& nanoseconds);

    /// Units: nanoseconds.
    std::int64_t now();
    double seconds() { return static_cast<double>(now()) * 1e-9; }

private:
    std::int64_t look();
    void beat(const std::stop_token& stop);

    const std::function<std::int64_t()>& m_nanoseconds;
    std::mutex m_lock;
    std::condition_variable_any m_end;
    std::int64_t m_lastBeat;
    std::int64_t m_lastLook;
    std::int64_t m_stoodStill = 0;
    bool m_isBeating = false;
    std::jthread m_heart;
};

} // namespace OndelCore::capacity
