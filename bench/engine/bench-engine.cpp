// The engine's hot loops and what they are made of. The transfers go to a tmpfs (/dev/shm, else the temporary
// folder), so that the system call is short and our share of each operation shows. For rates beside other
// programs' see bench/side-by-side.

#include "OndelCore/benchmark/Runner.h"
#include "OndelCore/benchmark/UniformIndexGenerator.h"
#include "OndelCore/platform/process/SystemCalls.h"

#include <benchmark/benchmark.h>

#include <filesystem>

using namespace OndelCore::benchmark;

namespace {

std::filesystem::path memoryFolder() {
    return std::filesystem::is_directory("/dev/shm") ? "/dev/shm" : std::filesystem::temp_directory_path();
}

/// A run of one test; the time of the test alone counts, not that of the preparation.
template <class Duration>
void runTest(benchmark::State& state, const BenchmarkPlan& plan, Duration duration) {
    const CancelFlag flag;
    for (auto _ : state) {
        const BenchmarkResult result =
            runInFolder(EngineEnvironment{}, plan, memoryFolder(), flag, [](const BenchmarkProgress&) {});
        state.SetIterationTime(duration(result));
    }
}

BenchmarkPlan planOf(BenchmarkTest test) {
    return {.tests = {test},
            .size = BenchmarkSize::fixed(256 << 20),
            .randomOpCount = 100000,
            .fileOpCount = 20000};
}

void sequentialWriteOf1MiBBlocks(benchmark::State& state) {
    const auto plan = planOf(BenchmarkTest::sequentialWrite);
    runTest(state, plan, [](const auto& result) { return result.sequentialWrite->duration; });
    state.SetBytesProcessed(state.iterations() * (256 << 20));
}

void sequentialReadOf1MiBBlocks(benchmark::State& state) {
    const auto plan = planOf(BenchmarkTest::sequentialRead);
    runTest(state, plan, [](const auto& result) { return result.sequentialRead->duration; });
    state.SetBytesProcessed(state.iterations() * (256 << 20));
}

void randomReadOf4KiB(benchmark::State& state) {
    const auto plan = planOf(BenchmarkTest::randomRead);
    runTest(state, plan, [](const auto& result) { return result.randomRead->duration; });
    state.SetItemsProcessed(state.iterations() * plan.randomOpCount);
}

void randomWriteOf4KiB(benchmark::State& state) {
    const auto plan = planOf(BenchmarkTest::randomWrite);
    runTest(state, plan, [](const auto& result) { return result.randomWrite->duration; });
    state.SetItemsProcessed(state.iterations() * plan.randomOpCount);
}

void creationOf20000Files(benchmark::State& state) {
    const auto plan = planOf(BenchmarkTest::fileOps);
    runTest(state, plan, [](const auto& result) { return result.fileOps->create.duration; });
    state.SetItemsProcessed(state.iterations() * plan.fileOpCount);
}

void cancelPoll(benchmark::State& state) {
    const CancelFlag flag;
    for (auto _ : state)
        benchmark::DoNotOptimize(flag.isCancelled());
}

void indexDraw(benchmark::State& state) {
    UniformIndexGenerator draw(OndelCore::platform::fillRandom);
    for (auto _ : state)
        benchmark::DoNotOptimize(draw.below(262144));
}

void clockReading(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(OndelCore::platform::monotonicNanoseconds());
}

BENCHMARK(sequentialWriteOf1MiBBlocks)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(sequentialReadOf1MiBBlocks)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(randomReadOf4KiB)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(randomWriteOf4KiB)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(creationOf20000Files)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(cancelPoll);
BENCHMARK(indexDraw);
BENCHMARK(clockReading);

} // namespace

BENCHMARK_MAIN();
