#pragma once

#include <QObject>

#include <chrono>
#include <functional>
#include <memory>
#include <stop_token>
#include <vector>

namespace OndelAppSupport::https {

/// Work that may hang, on a thread of its own, for an object with an event loop. A dead proxy or name server
/// takes minutes, and the wait for it cannot be interrupted.
/// Threads: that of `owner`. Owner: `owner`, which outlives this. A thread that does not end when it is
/// stopped is abandoned together with what its work captured. Nothing waits for it, not even the end of the
/// process, so work must own what it uses.
class AbandonableWork {
public:
    using Step = std::function<void()>;
    /// Runs a step on the owner's thread, unless the work has been abandoned.
    using Post = std::function<void(Step)>;
    /// Runs on the thread. Throws nothing.
    using Work = std::function<void(const Post& post, const std::stop_token& stop)>;

    explicit AbandonableWork(QObject* owner)
        : m_owner(owner) {}
    ~AbandonableWork() { abandon(); }
    AbandonableWork(const AbandonableWork&) = delete;
    AbandonableWork& operator=(const AbandonableWork&) = delete;

    /// Abandons earlier work. Fails: silently, where no thread can be started; no step is run then.
    void begin(Work work);
    /// Returns at once. Steps that the work still posts are run.
    void requestStop();
    /// Requests a stop and returns at once. No further step is run.
    void abandon();
    /// Waits until all threads started here have ended. Fails: false after `patience`.
    bool awaitEnd(std::chrono::milliseconds patience);

private:
    struct Round;

    QObject* m_owner;
    std::shared_ptr<Round> m_round;
    std::vector<std::shared_ptr<Round>> m_abandoned;
};

} // namespace OndelAppSupport::https
