#pragma once

#include "OndelCore/benchmark/BenchmarkPlan.h"
#include "OndelCore/benchmark/BenchmarkProgress.h"
#include "OndelCore/benchmark/BenchmarkResult.h"
#include "OndelCore/benchmark/CancelFlag.h"
#include "OndelCore/benchmark/EngineEnvironment.h"
#include "OndelCore/platform/process/Signals.h"

#include <QFuture>
#include <QPromise>

#include <exception>
#include <filesystem>
#include <memory>
#include <stop_token>
#include <thread>
#include <utility>

namespace OndelCore::benchmark {

// What BenchmarkEngine is made of, for the engine itself, its tests and its benchmarks. Callers include
// BenchmarkEngine.h.

/// Runs `work`, a blocking function that takes the run's CancelFlag, on a thread of its own. A stop request
/// sets the flag; that is the only way from the caller to the work. The future finishes once, on that thread,
/// with what the work returned or threw, after everything that the work held is gone.
template <class Work>
auto runBlocking(Work work, std::stop_token stop)
    -> QFuture<decltype(work(std::declval<const CancelFlag&>()))> {
    using Value = decltype(work(std::declval<const CancelFlag&>()));
    const auto promise = std::make_shared<QPromise<Value>>();
    QFuture<Value> future = promise->future();
    promise->start();
    const auto body = [promise, stop](Work received) {
        platform::keepSignalsOffThisThread();
        try {
            const Work task = std::move(received);
            CancelFlag flag;
            const std::stop_callback onStop(stop, [&flag] { flag.cancel(); });
            promise->addResult(task(std::as_const(flag)));
        } catch (...) {
            promise->setException(std::current_exception());
        }
        promise->finish();
    };
    try {
        std::thread(body, std::move(work)).detach();
    } catch (...) {
        promise->setException(std::current_exception());
        promise->finish();
    }
    return future;
}

/// One whole run: proves that `folder` can be written, makes the working folder, executes the plan in it and
/// removes it, whatever comes. `folder` is opened once; a path that leads elsewhere later changes nothing.
///
/// Threads: the transfers run on one of its own, for which it waits. Fails: throws BenchmarkError, Cancelled,
/// or std::system_error when the working folder cannot be made.
BenchmarkResult runInFolder(const EngineEnvironment& system, const BenchmarkPlan& plan,
                            const std::filesystem::path& folder, const CancelFlag& flag,
                            const ProgressListener& progress);

} // namespace OndelCore::benchmark
