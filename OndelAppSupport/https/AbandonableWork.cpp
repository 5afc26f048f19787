#include "OndelAppSupport/https/AbandonableWork.h"

#include "OndelCore/platform/process/DetachedThread.h"
#include "OndelCore/platform/process/SystemCalls.h"

#include <QMetaObject>

#include <algorithm>
#include <condition_variable>
#include <mutex>
#include <utility>

namespace OndelAppSupport::https {

/// Shared by the thread, which may outlive everything else, and the steps posted to the owner.
struct AbandonableWork::Round {
    std::stop_source stop;
    std::mutex mutex; ///< guards the members below
    std::condition_variable ended;
    QObject* owner;
    bool isOver = false;

    explicit Round(QObject* listener)
        : owner(listener) {}

    bool hasOwner() {
        const std::lock_guard lock(mutex);
        return owner != nullptr;
    }

    /// The lock keeps the owner alive: its destructor abandons this round first.
    static void post(const std::shared_ptr<Round>& round, Step step) {
        const std::lock_guard lock(round->mutex);
        if (!round->owner)
            return;
        const auto posted = [round, step = std::move(step)] {
            if (round->hasOwner())
                step();
        };
        QMetaObject::invokeMethod(round->owner, posted, Qt::QueuedConnection);
    }

    void end() {
        const std::lock_guard lock(mutex);
        isOver = true;
        ended.notify_all();
    }

    bool awaitEnd(std::chrono::steady_clock::time_point latest) {
        std::unique_lock lock(mutex);
        return ended.wait_until(lock, latest, [this] { return isOver; });
    }
};

void AbandonableWork::begin(Work work) {
    abandon();
    auto round = std::make_shared<Round>(m_owner);
    m_round = round;
    const bool runs = OndelCore::platform::runDetached([round, work = std::move(work)]() mutable {
        OndelCore::platform::enterBackground("ondel-network");
        const Post post = [round](Step step) { Round::post(round, std::move(step)); };
        std::exchange(work, nullptr)(post,
                                     round->stop.get_token()); // destroys what it captured before the end
        round->end();
    });
    if (!runs)
        round->end();
}

void AbandonableWork::requestStop() {
    if (m_round)
        m_round->stop.request_stop();
}

void AbandonableWork::abandon() {
    if (!m_round)
        return;
    {
        const std::lock_guard lock(m_round->mutex);
        m_round->owner = nullptr;
    }
    m_round->stop.request_stop();
    std::erase_if(m_abandoned, [](const auto& round) { return round->awaitEnd({}); });
    m_abandoned.push_back(std::exchange(m_round, nullptr));
}

bool AbandonableWork::awaitEnd(std::chrono::milliseconds patience) {
    const auto latest = std::chrono::steady_clock::now() + patience;
    return (!m_round || m_round->awaitEnd(latest)) &&
           std::ranges::all_of(m_abandoned, [&](const auto& round) { return round->awaitEnd(latest); });
}

} // namespace OndelAppSupport::https
