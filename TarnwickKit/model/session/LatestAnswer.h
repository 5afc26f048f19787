#pragma once

#include "OndelCore/platform/process/DetachedThread.h"

#include <QFutureWatcher>
#include <QPromise>

#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <utility>

namespace TarnwickKit::model {

/// Puts questions that may take long or never be answered, each on a thread of its own, and takes the answer
/// of the latest one only.
/// Threads: the one that makes it, which runs an event loop. Owner: a question under way keeps what it
/// captured; the end of this object does not wait for it, nor does that of the process (see runDetached for
/// what a question may do).
template <typename Answer>
class LatestAnswer {
public:
    using Take = std::function<void(const Answer&)>;

    /// `take` gets what `question` answers: before this returns, if that comes within `patience`, and else
    /// from the event loop. True: it has been taken. Fails: nothing is taken where the machine has no thread
    /// left. `question` must not throw.
    bool ask(std::function<Answer()> question, Take take, std::chrono::milliseconds patience = {}) {
        QPromise<Answer> promise;
        promise.start();
        const QFuture<Answer> answer = promise.future();
        std::promise<void> answered;
        std::future<void> arrival = answered.get_future();
        const bool isAsked =
            OndelCore::platform::runDetached([question = std::move(question), promise = std::move(promise),
                                              answered = std::move(answered)]() mutable {
                promise.addResult(question());
                promise.finish();
                answered.set_value();
            });

        m_watcher.reset();
        m_take = nullptr;
        if (!isAsked)
            return false;
        if (patience.count() > 0 && arrival.wait_for(patience) == std::future_status::ready) {
            take(answer.result());
            return true;
        }
        m_arrival = std::move(arrival);
        m_take = [answer, take = std::move(take)] { take(answer.result()); };
        m_watcher.reset(new QFutureWatcher<Answer>);
        QObject::connect(m_watcher.get(), &QFutureWatcherBase::finished, [this] { takeOnce(); });
        m_watcher->setFuture(answer);
        return false;
    }

    /// Takes what the latest question answers before this returns, if that comes within `patience`. Does
    /// nothing when it has been taken already, or nothing was asked.
    void awaitAnswer(std::chrono::milliseconds patience) {
        if (m_take && m_arrival.wait_for(patience) == std::future_status::ready)
            takeOnce();
    }

private:
    void takeOnce() {
        m_watcher.reset();
        if (const auto take = std::exchange(m_take, nullptr))
            take();
    }

    /// An answer may be dropped while it is being taken.
    struct DropLater {
        void operator()(QObject* watcher) const {
            watcher->disconnect();
            watcher->deleteLater();
        }
    };
    std::unique_ptr<QFutureWatcher<Answer>, DropLater> m_watcher;
    std::future<void> m_arrival;
    std::function<void()> m_take; ///< empty: nothing is waited for
};

} // namespace TarnwickKit::model
