#pragma once

#include "OndelCore/benchmark/BenchmarkError.h"
#include "TarnwickKit/model/session/AnalyzerModel.h"
#include "TarnwickKit/model/session/AnalyzerServices.h"
#include "support/TemporaryFolder.h"

#include <QCoreApplication>
#include <QPromise>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <vector>

namespace TarnwickKit::model {

using OndelCore::benchmark::BenchmarkEngine;
using OndelCore::benchmark::BenchmarkPlan;
using OndelCore::benchmark::BenchmarkResult;

/// A fake engine whose runs the test controls.
struct Engine {
    test::TemporaryFolder history;
    struct Call {
        BenchmarkPlan plan;
        std::filesystem::path folder;
        BenchmarkEngine::Progress progress;
        std::stop_token stop;
        QPromise<BenchmarkResult> promise;

        void finish(const BenchmarkResult& result) {
            promise.addResult(result);
            promise.finish();
        }
        void fail(auto error) {
            promise.setException(std::make_exception_ptr(error));
            promise.finish();
        }
    };
    std::vector<std::shared_ptr<Call>> calls;

    Call& last() { return *calls.back(); }

    /// Starts the model's next run and waits until the engine is called.
    void begin(AnalyzerModel& model);
    /// Ends it, and waits until the model has taken the result.
    void finish(const AnalyzerModel& model, const BenchmarkResult& result = {});

    AnalyzerServices services() {
        AnalyzerServices services;
        services.runBenchmark = [this](BenchmarkPlan plan, std::filesystem::path folder, auto progress,
                                       auto stop) {
            auto call = std::make_shared<Call>(plan, folder, progress, stop);
            call->promise.start();
            calls.push_back(call);
            return call->promise.future();
        };
        services.cleanupOrphans = [](const std::filesystem::path&) {};
        services.loadVolume = [](const auto&) { return std::nullopt; };
        services.probeCapabilities = [](const auto&) { return std::nullopt; };
        services.volumePatience = std::chrono::hours(1);
        services.readHealth = [](const auto&) { return std::nullopt; };
        services.driveIdentity = [](const auto&) { return DriveIdentity(); };
        services.historyFolder = history.path();
        services.now = [] { return QDateTime::currentDateTimeUtc(); };
        return services;
    }
};

/// Runs the event loop until `done`. The awaited event must be pending.
inline void turnUntil(const std::function<bool()>& done) {
    while (!done())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

inline void turnUntilEnded(const AnalyzerModel& model) {
    turnUntil([&] { return !model.isRunning(); });
}

inline void Engine::finish(const AnalyzerModel& model, const BenchmarkResult& result) {
    last().finish(result);
    turnUntilEnded(model);
}

inline void Engine::begin(AnalyzerModel& model) {
    const std::size_t before = calls.size();
    model.start();
    turnUntil([&] { return calls.size() > before; });
}

} // namespace TarnwickKit::model
