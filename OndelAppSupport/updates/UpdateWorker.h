#pragma once

#include "OndelAppSupport/https/AbandonableWork.h"
#include "OndelAppSupport/updates/UpdateError.h"

#include <QObject>
#include <QTimer>

#include <chrono>
#include <functional>
#include <stop_token>

namespace OndelAppSupport::updates {

/// The updater's thread for long work, one piece at a time.
/// Threads: the creating one, with an event loop; only the destructor waits, a second at most. Owner: the
/// thread, which is abandoned if it hangs.
class UpdateWorker : public QObject {
    Q_OBJECT

public:
    using Step = std::function<void()>;
    /// Runs a step on the owner's thread, unless the work has been stopped.
    using Post = std::function<void(Step)>;
    /// Runs on the thread, owns what it uses and returns the last step. May throw UpdateError and
    /// https::Stopped.
    using Work = std::function<Step(const Post& post, const std::stop_token& stop)>;

    UpdateWorker();
    ~UpdateWorker() override;

    /// Stops and abandons unfinished work. Work that posts no step for `patience` is stopped as well and
    /// fails with `hangs`.
    void begin(Work work, std::chrono::milliseconds patience, UpdateError::Cause hangs);
    /// Returns at once. No further step is run.
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
