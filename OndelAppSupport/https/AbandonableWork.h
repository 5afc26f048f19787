#pragma once

#include <QObject>

#include <chrono>
#include <functional>
#include <memory>
#include <stop_token>
#include <vector>

namespace OndelAppSupport::https {

/// Work on a thread of its own that may hang, for an object that lives on an event loop. A dead proxy or name
/// server takes minutes, and nothing breaks off the wait for it.
/// Threads: that of `owner`. Owner: `owner`, which outlives this. A thread that does not end when it is
/// stopped is left behind with what its work captured. It reports to nobody, and nothing waits for it, the
/// end of the process included: work must not refer to what may go before it.
class AbandonableWork {
public:
    using Step = std::function<void()>;
    /// Has a step done on the owner's thread, unless the work was abandoned meanwhile.
    using Post = std::function<void(Step)>;
    /// Runs on the thread. Throws nothing.
    using Work = std::function<void(const Post& post, const std::stop_token& stop)>;

    explicit AbandonableWork(QObject* owner)
        : m_owner(owner) {}
    ~AbandonableWork() { abandon(); }
    AbandonableWork(const AbandonableWork&) = delete;
    AbandonableWork& operator=(const AbandonableWork&) = delete;

    /// Earlier work is abandoned. Fails: silently, where the machine has no thread left; no step is heard
    /// then.
    void begin(Work work);
    /// Returns at once. The last steps of the work are still done.
    void requestStop();
    /// Requests a stop and returns at once. Nothing is heard of the work any more.
    void abandon();
    /// Waits until all threads that were begun here have ended. Fails: false after `patience`.
    bool awaitEnd(std::chrono::milliseconds patience);

private:
    struct Round;

    QObject* m_owner;
    std::shared_ptr<Round> m_round;
    std::vector<std::shared_ptr<Round>> m_abandoned;
};

} // namespace OndelAppSupport::https
