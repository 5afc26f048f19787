#pragma once

#include "OndelAppSupport/updates/UpdateError.h"

#include <QObject>

#include <functional>
#include <stop_token>
#include <thread>

namespace OndelAppSupport::updates {

/// A thread of the updater's own for what may take long, one piece of work at a time.
/// Threads: the one that made it, which must run an event loop. Owner: the thread. The destructor stops the
/// work and waits for it.
class UpdateWorker : public QObject {
    Q_OBJECT

public:
    using Step = std::function<void()>;
    /// Has a step done on the worker's owner's thread, unless the work was stopped meanwhile.
    using Post = std::function<void(Step)>;
    /// Runs on the thread. Gives the last step. May throw UpdateError and Stopped.
    using Work = std::function<Step(const Post& post, const std::stop_token& stop)>;

    /// Work that is not over is stopped and waited for first.
    void begin(Work work);
    /// Returns at once; nothing is heard of the work any more.
    void stop();
    bool isWorking() const { return m_isWorking; }

    Q_SIGNAL void failed(const OndelAppSupport::updates::UpdateError& error);

private:
    void run(const Work& work, const Post& post, const std::stop_token& stop);

    bool m_isWorking = false;
    int m_round = 0;
    std::jthread m_thread;
};

} // namespace OndelAppSupport::updates
