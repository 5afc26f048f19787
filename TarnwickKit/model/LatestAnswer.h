#pragma once

#include "OndelCore/platform/DetachedThread.h"

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
/// captured; neither the end of this object nor that of the process waits for it.
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
        const std::future<void> arrival = answered.get_future();
        const bool isAsked =
            OndelCore::platform::runDetached([question = std::move(question), promise = std::move(promise),
                                              answered = std::move(answered)]() mutable {
                promise.addResult(question());
                promise.finish();
                answered.set_value();
            });

        m_watcher.reset();
        if (!isAsked)
            return false;
        if (patience.count() > 0 && arrival.wait_for(patience) == std::future_status::ready) {
            take(answer.result());
            return true;
        }
        m_watcher.reset(new QFutureWatcher<Answer>);
        QObject::connect(m_watcher.get(), &QFutureWatcherBase::finished,
                         [answer, take = std::move(take)] { take(answer.result()); });
        m_watcher->setFuture(answer);
        return false;
    }

private:
    /// An answer may be dropped while it is being taken.
    struct DropLater {
        void operator()(QObject* watcher) const {
            watcher->disconnect();
            watcher->deleteLater();
        }
    };
    std::unique_ptr<QFutureWatcher<Answer>, DropLater> m_watcher;
};

} // namespace TarnwickKit::model
