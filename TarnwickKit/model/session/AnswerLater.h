#pragma once

#include "OndelCore/platform/process/DetachedThread.h"

#include <QFutureWatcher>
#include <QObject>
#include <QPromise>

#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <type_traits>
#include <utility>

namespace TarnwickKit::model {

/// Asks a slow question on a thread of its own and passes the answer to `take`.
/// Threads: `receiver`'s, which runs an event loop; `take` is called from that loop.
/// Owner: the question keeps its captures until it is answered. Nobody waits for it; if `receiver` is gone,
/// the answer is dropped. Fails: without a free thread, the question is asked on the receiver's thread.
template <typename Question, typename Take>
void answerLater(QObject* receiver, Question question, Take take) {
    using Answer = std::invoke_result_t<Question>;
    QPromise<Answer> promise;
    promise.start();
    auto* watcher = new QFutureWatcher<Answer>(receiver);
    QObject::connect(watcher, &QFutureWatcherBase::finished, receiver, [watcher, question, take] {
        watcher->deleteLater();
        const bool wasAsked = watcher->future().resultCount() > 0;
        take(wasAsked ? watcher->result() : question());
    });
    watcher->setFuture(promise.future());
    OndelCore::platform::runDetached([question, promise = std::move(promise)]() mutable {
        promise.addResult(question());
        promise.finish();
    });
}

/// Asks questions that may never be answered, each on a thread of its own, and takes only the answer to the
/// latest one.
/// Threads: the one that makes it, which runs an event loop. Owner: a pending question keeps its captures;
/// neither this object's end nor the process's waits for it (see runDetached for what a question may do).
template <typename Answer>
class LatestAnswer {
public:
    using Take = std::function<void(const Answer&)>;

    /// Passes the answer to `take`: before this returns, if it comes within `patience`, else from the event
    /// loop. Returns whether it has been taken. `question` must not throw. Fails: without a free thread
    /// nothing is asked.
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

    /// Waits up to `patience` for the answer to the latest question and takes it. Does nothing if it has been
    /// taken already, or nothing was asked.
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
