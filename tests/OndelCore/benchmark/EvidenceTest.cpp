// What a run observes beside its figures.

#include "FakeSystem.h"
#include "OndelCore/benchmark/evidence/LatencyHistogram.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <random>
#include <vector>

using namespace OndelCore::benchmark;
using namespace OndelCore::platform;
using test::FakeSystem;
using test::smallPlan;
using enum BenchmarkTest;

namespace {

double exactQuantile(const std::vector<std::int64_t>& sorted, double share) {
    const auto rank = static_cast<std::size_t>(std::ceil(share * static_cast<double>(sorted.size())));
    return static_cast<double>(sorted.at(rank - 1)) * 1e-9;
}

TEST(LatencyHistogram, AgreesWithTheSortedListWithinOnePercent) {
    EXPECT_FALSE(LatencyHistogram().latency());
    std::mt19937_64 random(7);
    for (const double typical : {20.0, 300.0, 1e5, 1e9}) {
        std::lognormal_distribution<double> durations(std::log(typical), 1.5);
        LatencyHistogram histogram;
        std::vector<std::int64_t> all;
        for (int i = 0; i < 20000; ++i) {
            all.push_back(static_cast<std::int64_t>(durations(random)));
            histogram.add(all.back());
        }
        std::ranges::sort(all);
        const Latency latency = histogram.latency().value();
        const double rounding = 0.5e-9; // a bucket of one nanosecond is exact
        EXPECT_NEAR(latency.p50, exactQuantile(all, 0.5), 0.01 * latency.p50 + rounding);
        EXPECT_NEAR(latency.p99, exactQuantile(all, 0.99), 0.01 * latency.p99 + rounding);
        EXPECT_NEAR(latency.p999, exactQuantile(all, 0.999), 0.01 * latency.p999 + rounding);
        EXPECT_DOUBLE_EQ(latency.worst, static_cast<double>(all.back()) * 1e-9);
    }
    LatencyHistogram extremes;
    extremes.add(-5);
    extremes.add(INT64_MAX);
    EXPECT_EQ(extremes.latency()->p50, 0);
    EXPECT_NEAR(extremes.latency()->worst, 1099.5, 0.1);
}

/// A system on which a transfer takes what the test says, and whose disks count what it says.
struct Observed : testing::Test {
    Observed() {
        system.evidenceClock = [this] { return nanoseconds; };
        system.operationClock = system.evidenceClock;
        system.pread = [this](int file, void* bytes, std::size_t size, off_t offset) {
            nanoseconds += transferTime(++transfers);
            counters.readBytes += static_cast<std::int64_t>(size);
            return ::pread(file, bytes, size, offset);
        };
        system.diskWitness = [this](int) { return std::make_unique<Witness>(*this); };
        system.trafficOfThisThread = [this] {
            return tellsThread ? std::optional(ThreadTraffic{counters.readBytes / 2, 0}) : std::nullopt;
        };
    }
    struct Witness : DiskWitness {
        explicit Witness(Observed& all)
            : m_all(all) {}
        std::optional<DiskCounters> counters() override {
            return ++m_looks == m_all.blindLook ? std::nullopt : std::optional(m_all.counters);
        }
        Observed& m_all;
        int m_looks = 0;
    };

    const test::TemporaryFolder folder{test::inMemory()};
    FakeSystem system;
    std::int64_t nanoseconds = 0;
    int transfers = 0;
    std::function<std::int64_t(int)> transferTime = [](int) { return 1000; };
    DiskCounters counters;
    bool tellsThread = true;
    int blindLook = 0;
};

TEST_F(Observed, LatenciesAndPausesOfSingleOperations) {
    auto plan = smallPlan({randomRead}, BenchmarkSize::fixed(65536));
    plan.randomOpCount = 1000;
    transferTime = [](int transfer) {
        return transfer == 700 ? 3'000'000'000 : transfer % 50 == 0 ? 90'000 : 1000;
    };
    system.onProgress = [this](const auto&) {
        nanoseconds += 1'000'000;
    }; // the listener's time is not the disk's
    const auto random = system.run(plan, folder.path()).randomRead.value();
    EXPECT_NEAR(random.latency->p50, 1e-6, 1e-8);
    EXPECT_NEAR(random.latency->p99, 90e-6, 1e-6);
    EXPECT_DOUBLE_EQ(random.latency->worst, 3);
    EXPECT_DOUBLE_EQ(random.evidence.longestPause, 3);
    EXPECT_EQ(random.evidence.longPauses, 1);
}

TEST_F(Observed, WhatTheDisksAndTheThreadMovedDuringEachTest) {
    auto plan = smallPlan({sequentialWrite, randomRead, fileOps}, BenchmarkSize::fixed(65536));
    system.flushToMedium = [this](int) {
        nanoseconds += 2'000'000'000;
        return std::error_code();
    };
    const auto all = system.run(plan, folder.path());
    EXPECT_EQ(all.sequentialWrite->evidence.diskReads, Traffic());
    EXPECT_DOUBLE_EQ(all.sequentialWrite->evidence.flushDuration.value(), 2);
    EXPECT_EQ(all.randomRead->evidence.diskReads, (Traffic{3 * 4096, 0}));
    EXPECT_EQ(all.randomRead->evidence.threadReads, 3 * 4096 / 2);
    EXPECT_DOUBLE_EQ(all.randomRead->evidence.began, 2);
    EXPECT_DOUBLE_EQ(all.randomRead->evidence.ended, 2 + 3e-6);
    EXPECT_FALSE(all.randomRead->evidence.flushDuration);
    EXPECT_EQ(all.fileOps->evidence.diskReads, Traffic());

    tellsThread = false;
    for (const int look : {3, 4}) { // before and after the second test
        blindLook = look;
        const auto blind = system.run(plan, folder.path());
        EXPECT_FALSE(blind.randomRead->evidence.diskReads || blind.randomRead->evidence.threadReads);
        EXPECT_TRUE(blind.fileOps->evidence.diskReads);
    }
}

TEST_F(Observed, TransfersThatTheFileSystemRefusedToDoDirectly) {
    auto plan = smallPlan({randomRead}, BenchmarkSize::fixed(65536));
    plan.bypassCache = true;
    system.pread = [this](int, void*, std::size_t size, off_t) -> ssize_t {
        errno = EINVAL;
        return ++transfers % 2 == 1 ? -1 : static_cast<ssize_t>(size);
    };
    const auto random = system.run(plan, folder.path()).randomRead.value();
    if (random.evidence.isBypassRefused)
        GTEST_SKIP() << "no direct transfers in " << folder.path();
    EXPECT_EQ(random.evidence.refusedTransfers, 3);
}

} // namespace
