#include "OndelCore/benchmark/BenchmarkEngine.h"

#include "OndelCore/benchmark/Runner.h"
#include "OndelCore/benchmark/WorkingFolder.h"

#include <cstdio>
#include <cstdlib>
#include <thread>

namespace OndelCore::benchmark {

namespace {

/// Before anything is written, so that the process leaves nothing behind when it stops here.
void stopAtNegativeCounts(const BenchmarkPlan& plan) {
    const bool random =
        plan.tests.contains(BenchmarkTest::randomRead) || plan.tests.contains(BenchmarkTest::randomWrite);
    const bool files = plan.tests.contains(BenchmarkTest::fileOps);
    if ((random && plan.randomOpCount < 0) || (files && plan.fileOpCount < 0)) {
        std::fputs("BenchmarkPlan: a negative count of operations or files\n", stderr);
        std::abort();
    }
}

} // namespace

QFuture<BenchmarkResult> BenchmarkEngine::run(BenchmarkPlan plan, std::filesystem::path folder,
                                              Progress progress, std::stop_token stop) const {
    stopAtNegativeCounts(plan);
    if (!progress)
        progress = [](const BenchmarkProgress&) {};
    return runBlocking(
        [plan = std::move(plan), folder = std::move(folder),
         progress = std::move(progress)](const CancelFlag& flag) {
            return runInFolder(EngineEnvironment{}, plan, folder, flag, progress);
        },
        std::move(stop));
}

BenchmarkResult BenchmarkEngine::measure(const BenchmarkPlan& plan, const std::filesystem::path& folder,
                                         const Progress& progress, std::stop_token stop) const {
    return run(plan, folder, progress, std::move(stop)).takeResult();
}

void BenchmarkEngine::cleanupOrphans(const std::filesystem::path& folder) {
    WorkingFolder::removeOrphansIn(folder);
}

std::size_t BenchmarkEngine::cleanupOrphans(const std::filesystem::path& folder,
                                            std::chrono::milliseconds patience) {
    constexpr std::chrono::milliseconds pause{50};
    const auto end = std::chrono::steady_clock::now() + patience;
    for (;;) {
        const std::size_t inUse = WorkingFolder::removeOrphansIn(folder);
        if (inUse == 0 || std::chrono::steady_clock::now() >= end)
            return inUse;
        std::this_thread::sleep_for(pause);
    }
}

} // namespace OndelCore::benchmark
