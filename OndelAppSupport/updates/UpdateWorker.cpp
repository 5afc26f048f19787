#include "OndelAppSupport/updates/UpdateWorker.h"

#include "OndelAppSupport/https/HttpsExchange.h"

#include <utility>

namespace OndelAppSupport::updates {

UpdateWorker::UpdateWorker()
    : m_work(this) {
    m_silence.setSingleShot(true);
    connect(&m_silence, &QTimer::timeout, this, [this] {
        stop();
        Q_EMIT failed(UpdateError(m_hangs));
    });
}

UpdateWorker::~UpdateWorker() {
    m_work.abandon();
    m_work.awaitEnd(std::chrono::seconds(1)); // so that no partial download stays
}

void UpdateWorker::begin(Work work, std::chrono::milliseconds patience, UpdateError::Cause hangs) {
    m_isWorking = true;
    m_hangs = hangs;
    m_silence.start(patience);
    m_work.begin([this, work = std::move(work)](const https::AbandonableWork::Post& post,
                                                const std::stop_token& stop) {
        const Post postStep = [this, &post](Step step) {
            post([this, step = std::move(step)] {
                m_silence.start();
                step();
            });
        };
        Step last;
        try {
            last = work(postStep, stop);
        } catch (const UpdateError& error) {
            last = [this, error] { Q_EMIT failed(error); };
        } catch (const https::Stopped&) {
            return; // no further step is run
        }
        post([this, last = std::move(last)] { end(last); });
    });
}

void UpdateWorker::stop() {
    m_silence.stop();
    m_work.abandon();
    m_isWorking = false;
}

void UpdateWorker::end(const Step& last) {
    m_silence.stop();
    m_isWorking = false;
    last();
}

} // namespace OndelAppSupport::updates
