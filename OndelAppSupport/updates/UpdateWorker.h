#pragma once

#include "OndelAppSupport/https/AbandonableWork.h"
#include "OndelAppSupport/updates/UpdateError.h"

#include <QObject>
#include <QTimer>

#include <chrono>
#include <functional>
#include <stop_token>

namespace OndelAppSupport::updates {

/// A thread of the updater's own for what may take long, one piece of work at a time.
/// Threads: the one that made it, which must run an event loop; nothing in here waits but the destructor, a
/// second at most. Owner: the thread, unless it hangs: then it is left behind.
class UpdateWorker : public QObject {
    Q_OBJECT

public:
    using Step = std::function<void()>;
    /// Has a step done on the worker's owner's thread, unless the work was stopped meanwhile.
    using Post = std::function<void(Step)>;
    /// Runs on the thread, and refers to nothing that may go before it. Gives the last step. May throw
    /// UpdateError and https::Stopped.
    using Work = std::function<Step(const Post& post, const std::stop_token& stop)>;

    UpdateWorker();
    ~UpdateWorker() override;

    /// Work that is not over is stopped and left behind. From work that has been silent for `patience`
    /// nothing more is heard either; it has failed with `hangs`.
    void begin(Work work, std::chrono::milliseconds patience, UpdateError::Cause hangs);
    /// Returns at once; nothing is heard of the work any more.
    void stop();
    bool isWorking() const { return m_isWorking; }

    Q_SIGNAL void failed(const OndelAppSupport::updates::UpdateError& error);

private:
    void end(const Step& last);

    bool m_isWorking = false;
    UpdateError::Cause m_hangs{};
    QTimer m_silence;
    https::AbandonableWork m_work;
};

} // namespace OndelAppSupport::updates
