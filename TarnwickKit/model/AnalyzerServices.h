#pragma once

#include "OndelCore/benchmark/BenchmarkEngine.h"

#include <QDateTime>

#include <filesystem>
#include <functional>
#include <stop_token>

namespace TarnwickKit::model {

/// What the model asks of the machine beneath it. `real()` is the machine itself; tests bend single answers.
struct AnalyzerServices {
    /// See BenchmarkEngine::run.
    std::function<QFuture<OndelCore::benchmark::BenchmarkResult>(
        OndelCore::benchmark::BenchmarkPlan, std::filesystem::path folder,
        OndelCore::benchmark::BenchmarkEngine::Progress, std::stop_token)>
        runBenchmark;
    /// See BenchmarkEngine::cleanupOrphans. Threads: called on a thread of its own.
    std::function<void(const std::filesystem::path& folder)> cleanupOrphans;
    /// The wall clock.
    std::function<QDateTime()> now;

    static AnalyzerServices real();
};

} // namespace TarnwickKit::model
