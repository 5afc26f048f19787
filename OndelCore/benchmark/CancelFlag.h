#pragma once

#include <mutex>

namespace OndelCore::benchmark {

/// Tells a blocking worker to stop. It goes from false to true once and never back.
/// Threads: any.
class CancelFlag {
public:
    void cancel() {
        const std::lock_guard guard(m_lock);
        m_flag = true;
    }
    bool isCancelled() const {
        const std::lock_guard guard(m_lock);
        return m_flag;
    }

private:
    mutable std::mutex m_lock;
    bool m_flag = false;
};

} // namespace OndelCore::benchmark
