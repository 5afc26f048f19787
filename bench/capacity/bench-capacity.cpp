// What a capacity check is made of, and the check itself beside the sequential tests, on a tmpfs (/dev/shm,
// else the temporary folder). In turns, as rates are to be compared:
//
//   bench-capacity --benchmark_enable_random_interleaving=true --benchmark_repetitions=11
//     --benchmark_report_aggregates_only=true

#include "OndelCore/benchmark/Runner.h"
#include "OndelCore/capacity/BlockPattern.h"
#include "OndelCore/capacity/CheckRunner.h"

#include <benchmark/benchmark.h>

#include <cstddef>
#include <filesystem>
#include <span>
#include <vector>

namespace run = OndelCore::benchmark;
namespace capacity = OndelCore::capacity;

namespace {

constexpr std::int64_t mebibyte = 1048576;
constexpr std::int64_t moved = 1024 * mebibyte;

std::filesystem::path memoryFolder() {
    return std::filesystem::is_directory("/dev/shm") ? "/dev/shm" : std::filesystem::temp_directory_path();
}

/// `seconds` makes 1 GiB move, and tells the time of that alone.
template <class Seconds>
void timeOf(benchmark::State& state, Seconds seconds) {
    for (auto _ : state)
        state.SetIterationTime(seconds());
    state.SetBytesProcessed(state.iterations() * moved);
}

run::BenchmarkResult runOf(run::BenchmarkTest test) {
    const run::CancelFlag flag;
    return run::runInFolder({}, {.tests = {test}, .size = run::BenchmarkSize::fixed(moved)}, memoryFolder(),
                            flag, [](const auto&) {});
}

capacity::CapacityResult check() {
    return capacity::runCheck({}, {.folder = memoryFolder(), .size = moved}, {}, [](const auto&) {});
}

void sequentialWrite(benchmark::State& state) {
    timeOf(state, [] { return runOf(run::BenchmarkTest::sequentialWrite).sequentialWrite->duration; });
}
void sequentialRead(benchmark::State& state) {
    timeOf(state, [] { return runOf(run::BenchmarkTest::sequentialRead).sequentialRead->duration; });
}
void checkWrite(benchmark::State& state) {
    timeOf(state, [] { return check().write.duration; });
}
void checkRead(benchmark::State& state) {
    timeOf(state, [] { return check().read.duration; });
}

/// Over the same mebibyte, as the threads beside the transfers do.
template <class Work>
void overBlocks(benchmark::State& state, Work work) {
    const capacity::BlockPattern pattern;
    std::vector<std::byte> bytes(mebibyte);
    pattern.fill(bytes, 0);
    for (auto _ : state)
        work(pattern, std::span(bytes));
    state.SetBytesProcessed(state.iterations() * mebibyte);
}

void makingBlocks(benchmark::State& state) {
    overBlocks(state, [](const auto& pattern, auto bytes) {
        pattern.fill(bytes, 0);
        benchmark::ClobberMemory();
    });
}
void comparingBlocks(benchmark::State& state) {
    overBlocks(state, [](const auto& pattern, auto bytes) {
        benchmark::DoNotOptimize(pattern.countRight(bytes, 0));
    });
}
/// As of a device that wraps around: all are wrong, and each is another one.
void judgingBlocks(benchmark::State& state) {
    overBlocks(state, [](const auto& pattern, auto bytes) {
        for (std::size_t at = 0; at < bytes.size(); at += capacity::blockBytes)
            benchmark::DoNotOptimize(pattern.judge(bytes.subspan(at, capacity::blockBytes), 7000, 10000));
    });
}

BENCHMARK(makingBlocks);
BENCHMARK(comparingBlocks);
BENCHMARK(judgingBlocks);
BENCHMARK(sequentialWrite)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(checkWrite)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(sequentialRead)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(checkRead)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(1);

} // namespace

BENCHMARK_MAIN();
