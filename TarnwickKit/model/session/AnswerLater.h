#pragma once

#include "OndelCore/platform/process/DetachedThread.h"

#include <QFutureWatcher>
#include <QObject>
#include <QPromise>

#include <type_traits>
#include <utility>

namespace TarnwickKit::model {

/// Puts a question that may take its time on a thread of its own, and gives the answer to `take`.
/// Threads: `receiver`'s, which runs an event loop; `take` is called from there, never before this returns.
/// Owner: the question keeps what it captured until it is answered; nobody waits for it, and without
/// `receiver` the answer is dropped. Fails: where the machine has no thread left the receiver's thread asks.
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

} // namespace TarnwickKit::model
