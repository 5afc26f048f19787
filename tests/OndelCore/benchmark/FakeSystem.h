#pragma once

#include "OndelCore/benchmark/Runner.h"
#include "support/TemporaryFolder.h"

#include <filesystem>
#include <iterator>
#include <set>
#include <string>
#include <vector>

namespace test {

/// An engine environment whose clock ticks one second per reading and whose disk has room, with a diary of
/// what the engine asked: "clock", "write 4096", "pread 4096 @ 8192", "flush", "progress sequentialWrite
/// 1/2".
struct FakeSystem : OndelCore::benchmark::EngineEnvironment {
    FakeSystem();
    FakeSystem(const FakeSystem&) = delete;

    OndelCore::benchmark::BenchmarkResult run(const OndelCore::benchmark::BenchmarkPlan& plan,
                                              const std::filesystem::path& folder);
    /// What the run failed with: the text of the exception; empty when it did not fail.
    std::string failureOf(const OndelCore::benchmark::BenchmarkPlan& plan,
                          const std::filesystem::path& folder);

    std::vector<std::string> diary;
    OndelCore::benchmark::CancelFlag flag;
    /// Called at each progress event, before it is written down.
    OndelCore::benchmark::ProgressListener onProgress = [](const auto&) {};
    std::int64_t seconds = 0;
};

/// The figures alone.
OndelCore::benchmark::BenchmarkResult withoutEvidence(OndelCore::benchmark::BenchmarkResult result);

/// Everything in the folder, hidden or not.
inline std::size_t entriesIn(const std::filesystem::path& folder) {
    return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(folder), {}));
}

/// What this process has open, "4 -> /tmp/data", but for the system's own files: the thread that watches the
/// circumstances of a real run may read one a moment longer.
std::set<std::string> openDescriptors();

/// Where many short runs cost little: each of them flushes a probe.
inline std::filesystem::path inMemory() {
    return std::filesystem::is_directory("/dev/shm") ? "/dev/shm" : "";
}

inline const std::set<OndelCore::benchmark::BenchmarkTest>
    everyTest(OndelCore::benchmark::allBenchmarkTests.begin(), OndelCore::benchmark::allBenchmarkTests.end());

/// A plan of small numbers: these tests alone, blocks of one page, no cache bypass, a sample per transfer.
OndelCore::benchmark::BenchmarkPlan smallPlan(std::set<OndelCore::benchmark::BenchmarkTest> tests,
                                              OndelCore::benchmark::BenchmarkSize size);

} // namespace test
