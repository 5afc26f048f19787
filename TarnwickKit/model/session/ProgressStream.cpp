#include "TarnwickKit/model/session/ProgressStream.h"

#include <QMetaObject>

#include <mutex>
#include <utility>

namespace TarnwickKit::model {

using OndelCore::benchmark::BenchmarkProgress;

struct ProgressStream::Queue {
    std::mutex lock;
    Batch events;                           ///< guarded by `lock`
    bool wakeUpPosted = false;              ///< guarded by `lock`
    QObject* receiver;                      ///< guarded by `lock`; null once cancelled
    std::function<void(const Batch&)> take; ///< receiver's thread only

    void send(const BenchmarkProgress& progress, const std::shared_ptr<Queue>& self) {
        const std::lock_guard guard(lock);
        if (!receiver)
            return;
        events.push_back(progress);
        if (std::exchange(wakeUpPosted, true))
            return;
        // Posted under the lock: the receiver cannot go away in between.
        QMetaObject::invokeMethod(receiver, [self] { self->drain(); }, Qt::QueuedConnection);
    }

    void drain() {
        Batch batch;
        {
            const std::lock_guard guard(lock);
            batch.swap(events);
            wakeUpPosted = false;
        }
        if (!batch.empty())
            take(batch);
    }
};

ProgressStream::ProgressStream(std::function<void(const Batch&)> take)
    : m_queue(std::make_shared<Queue>())
    , m_receiver(std::make_unique<QObject>()) {
    m_queue->receiver = m_receiver.get();
    m_queue->take = std::move(take);
}

ProgressStream::~ProgressStream() { cancel(); }

std::function<void(const BenchmarkProgress&)> ProgressStream::sender() const {
    return [queue = m_queue](const BenchmarkProgress& progress) { queue->send(progress, queue); };
}

void ProgressStream::cancel() {
    const std::lock_guard guard(m_queue->lock);
    m_queue->receiver = nullptr;
    m_queue->events.clear();
}

} // namespace TarnwickKit::model
