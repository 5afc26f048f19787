#include "OndelAppSupport/updates/UpdateWorker.h"

#include "OndelAppSupport/updates/HttpsGet.h"
#include "OndelCore/platform/BackgroundThread.h"

#include <QMetaObject>

namespace OndelAppSupport::updates {

void UpdateWorker::begin(Work work) {
    const int round = ++m_round;
    m_isWorking = true;
    Post post = [this, round](Step step) {
        const auto heard = [this, round, step = std::move(step)] {
            if (round == m_round)
                step();
        };
        QMetaObject::invokeMethod(this, heard, Qt::QueuedConnection);
    };
    m_thread = std::jthread([this, work = std::move(work),
                             post = std::move(post)](const std::stop_token& stop) { run(work, post, stop); });
}

void UpdateWorker::stop() {
    m_thread.request_stop();
    m_isWorking = false;
    ++m_round;
}

void UpdateWorker::run(const Work& work, const Post& post, const std::stop_token& stop) {
    OndelCore::platform::enterBackground("ondel-updates");
    try {
        post([this, last = work(post, stop)] {
            m_isWorking = false;
            last();
        });
    } catch (const UpdateError& error) {
        post([this, error] {
            m_isWorking = false;
            Q_EMIT failed(error);
        });
    } catch (const Stopped&) { // and nobody listens
    }
}

} // namespace OndelAppSupport::updates
