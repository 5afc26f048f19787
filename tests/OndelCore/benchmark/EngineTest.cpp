// What a run does, in which order, what it says meanwhile, and what it observes beside its figures.

#include "FakeSystem.h"
#include "OndelCore/benchmark/BenchmarkEngine.h"
#include "OndelCore/benchmark/BenchmarkError.h"
#include "OndelCore/benchmark/UniformIndexGenerator.h"
#include "OndelCore/benchmark/evidence/LatencyHistogram.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

using namespace OndelCore::benchmark;
using namespace OndelCore::platform;
using test::FakeSystem;
using test::smallPlan;
using enum BenchmarkTest;

namespace {

using Lines = std::vector<std::string>;

struct Engine : testing::Test {
    ~Engine() override { EXPECT_EQ(test::entriesIn(folder.path()), 0U); }
    test::TemporaryFolder folder;
    FakeSystem system;
};

TEST_F(Engine, WritesThenReadsTheFileAndTimesIt) {
    const auto result =
        system.run(smallPlan({sequentialWrite, sequentialRead}, BenchmarkSize::fixed(5000)), folder.path());
    std::string asked;
    for (const std::string& line : system.diary)
        asked += line + ", ";
    EXPECT_EQ(asked, "free, clock, write 4096, clock, progress sequentialWrite 4096/5000 at 1 s, "
                     "write 904, clock, progress sequentialWrite 5000/5000 at 2 s, clock, flush, clock, "
                     "clock, read 4096, clock, progress sequentialRead 4096/5000 at 1 s, "
                     "read 4096, clock, progress sequentialRead 5000/5000 at 2 s, read 4096, clock, clock, ");
    EXPECT_EQ(test::withoutEvidence(result),
              (BenchmarkResult{.sequentialWrite = {{5000, 4, 4096, {{1, 4096}, {2, 904}}}},
                               .sequentialRead = {{5000, 4, 4096, {{1, 4096}, {2, 904}}}}}));
}

TEST_F(Engine, TakesOneClosingSampleOfATestShorterThanTheInterval) {
    auto plan = smallPlan({sequentialWrite}, BenchmarkSize::fixed(3 * 4096));
    plan.sampleInterval = 100;
    const auto result = system.run(plan, folder.path()).sequentialWrite.value();
    EXPECT_EQ(result.samples, (std::vector<ThroughputSample>{{4, 3 * 4096 / 4.0}}));
    EXPECT_EQ(std::ranges::count_if(system.diary, [](const auto& l) { return l.starts_with("progress"); }),
              1);

    const auto empty = system.run(smallPlan({sequentialWrite}, BenchmarkSize::fixed(0)), folder.path());
    EXPECT_TRUE(empty.sequentialWrite->samples.empty());
    EXPECT_EQ(system.diary.back(), "clock");
    EXPECT_EQ(*(system.diary.end() - 2), "flush");

    system.monotonicNanoseconds = [] { return 7; }; // too coarse to see a transfer: no rate can be told
    const auto still = system.run(smallPlan({sequentialWrite}, BenchmarkSize::fixed(8192)), folder.path());
    EXPECT_EQ(test::withoutEvidence(still).sequentialWrite, (ThroughputResult{8192, 0, 4096, {}}));
}

TEST_F(Engine, FillsTheDiskAskingForFreeSpaceAtEveryEighthWrite) {
    std::int64_t free = 10 * 4096;
    system.freeBytes = [&](const auto&) {
        system.diary.push_back("free");
        return free;
    };
    system.write = [&, write = system.write](int file, const void* bytes, std::size_t size) {
        free -= static_cast<std::int64_t>(size);
        return write(file, bytes, size);
    };
    const auto result =
        system.run(smallPlan({sequentialWrite}, BenchmarkSize::fillDisk(4096)), folder.path());
    EXPECT_EQ(result.sequentialWrite->bytesProcessed, 16 * 4096); // 9 blocks are free, 7 go beyond
    EXPECT_EQ(std::ranges::count(system.diary, "free"), 4);
    EXPECT_EQ(system.diary.at(5), "progress sequentialWrite 4096/0 at 1 s");

    free = 10 * 4096; // the preparation goes by the length known in advance, and says nothing
    system.diary.clear();
    system.run(smallPlan({sequentialRead}, BenchmarkSize::fillDisk(4096)), folder.path());
    EXPECT_EQ(std::ranges::count(system.diary, "write 4096"), 9);
    EXPECT_EQ((Lines{system.diary.begin(), system.diary.begin() + 3}),
              (Lines{"free", "write 4096", "write 4096"}));
}

TEST_F(Engine, ReadsAndWritesWholeBlocksAtRandom) {
    auto plan = smallPlan({randomRead, randomWrite}, BenchmarkSize::fixed(10000));
    plan.randomOpCount = 514;
    const auto result = system.run(plan, folder.path());
    EXPECT_EQ(test::withoutEvidence(result),
              (BenchmarkResult{.randomRead = {{514, 3, 4096}}, .randomWrite = {{514, 3, 4096}}}));
    for (const std::string transfer : {"pread", "pwrite"}) {
        const auto at = [&](const char* offset) {
            return std::ranges::count(system.diary, transfer + offset);
        };
        EXPECT_GT(at(" 4096 @ 0"), 100);
        EXPECT_GT(at(" 4096 @ 4096"), 100);
        EXPECT_EQ(at(" 4096 @ 0") + at(" 4096 @ 4096"), 514);
    }
    const Lines said{
        "progress randomRead 4096/2105344 at 1 s",     "progress randomRead 2101248/2105344 at 2 s",
        "progress randomRead 2105344/2105344 at 3 s",  "progress randomWrite 4096/2105344 at 1 s",
        "progress randomWrite 2101248/2105344 at 2 s", "progress randomWrite 2105344/2105344 at 3 s"};
    Lines heard;
    std::ranges::copy_if(system.diary, std::back_inserter(heard),
                         [](auto& l) { return l.starts_with("progress"); });
    EXPECT_EQ(heard, said);
    EXPECT_EQ((Lines{system.diary.end() - 3, system.diary.end()}), (Lines{"flush", "clock", said.back()}));

    plan.randomOpCount = 0;
    system.diary.clear();
    system.run(plan, folder.path());
    EXPECT_EQ((Lines{system.diary.end() - 7, system.diary.end()}),
              (Lines{"clock", "clock", "progress randomRead 0/0 at 1 s", "clock", "flush", "clock",
                     "progress randomWrite 0/0 at 1 s"}));
}

TEST(UniformIndexGenerator, RejectsWhatWouldFavourSomeIndices) {
    // 2^64 modulo 3 is 1, so that the draw 0 is rejected; for 2^63 the product's high half is 1.
    const std::uint64_t draws[]{0, std::uint64_t{1} << 63, 0};
    std::size_t used = 0;
    const auto bits = [&] { return draws[used++]; };
    EXPECT_EQ(UniformIndexGenerator::below(3, bits), 1U);
    EXPECT_EQ(UniformIndexGenerator::below(1, bits), 0U);
    EXPECT_EQ(used, 3U);
}

TEST_F(Engine, TimesThePhasesOfFileOperationsApart) {
    auto plan = smallPlan({fileOps}, BenchmarkSize::fixed(std::numeric_limits<std::int64_t>::max()));
    const auto result = system.run(plan, folder.path());
    EXPECT_EQ(system.diary,
              (Lines{"clock", "clock", "progress fileOps 0/256 at 1 s", "clock", "clock", "clock", "clock",
                     "clock", "clock", "clock", "clock", "progress fileOps 256/256 at 9 s", "clock", "clock",
                     "progress fileOps 256/256 at 11 s"}));
    EXPECT_EQ(test::withoutEvidence(result).fileOps, (FileOpsResult{{64, 1}, {64, 1}, {64, 1}, {64, 2}}));

    plan.fileOpCount = 1000;
    system.diary.clear();
    system.run(plan, folder.path());
    EXPECT_EQ(std::ranges::count_if(system.diary, [](auto& l) { return l.starts_with("progress"); }), 17);

    plan.fileOpCount = 0;
    EXPECT_EQ(system.run(plan, folder.path()).fileOps->create.opsPerSecond(), 0);
}

TEST_F(Engine, AsksForEnoughSpace) {
    constexpr std::int64_t gibibyte = 1073741824;
    constexpr auto largest = std::numeric_limits<std::int64_t>::max();
    struct Case {
        BenchmarkSize size;
        std::optional<std::int64_t> free;
        std::optional<std::int64_t> needed; ///< absent: it passes
    };
    const Case cases[]{
        {BenchmarkSize::fixed(8192), gibibyte + 8192, {}},
        {BenchmarkSize::fixed(8192), gibibyte + 8191, gibibyte + 8192},
        {BenchmarkSize::fixed(8192), std::nullopt, gibibyte + 8192},
        {BenchmarkSize::fixed(largest), largest - 1, largest},
        {BenchmarkSize::fixed(-5), gibibyte, {}},
        {BenchmarkSize::fillDisk(gibibyte), gibibyte, gibibyte},
        {BenchmarkSize::fillDisk(gibibyte), std::nullopt, gibibyte},
    };
    for (const Case& each : cases) {
        system.freeBytes = [&](const auto&) { return each.free; };
        std::string expected;
        if (each.needed)
            expected =
                BenchmarkError(BenchmarkError::InsufficientSpace{*each.needed, each.free.value_or(0)}).what();
        EXPECT_EQ(system.failureOf(smallPlan({sequentialWrite}, each.size), folder.path()), expected);
    }
}

TEST_F(Engine, ReachesTheCallerThroughItsFuture) {
    std::vector<std::thread::id> heardOn;
    std::stop_source stop;
    const auto plan = smallPlan({fileOps}, BenchmarkSize::fixed(0));
    const auto listen = [&](const BenchmarkProgress& now) {
        heardOn.push_back(std::this_thread::get_id());
        if (now.completedBytes == now.totalBytes)
            stop.request_stop(); // after the last poll: too late to matter
    };
    const BenchmarkEngine engine;
    EXPECT_EQ(engine.run(plan, folder.path(), listen, stop.get_token()).result().fileOps->remove.operations,
              64);
    ASSERT_EQ(heardOn.size(), 3U);
    EXPECT_NE(heardOn.front(), std::this_thread::get_id());

    // A run that is stopped before it starts still probes; its first poll ends it. One without tests never
    // polls.
    EXPECT_THROW(engine.run(plan, folder.path(), {}, stop.get_token()).result(), Cancelled);
    EXPECT_EQ(engine.run({.tests = {}}, folder.path(), {}, stop.get_token()).result(), BenchmarkResult());
    EXPECT_THROW(engine.run(plan, folder.path() / "missing", {}).result(), BenchmarkError);
    EXPECT_THROW(engine.run(plan, folder.path(), [](const auto&) { throw std::range_error(""); }).result(),
                 std::range_error);
}

TEST_F(Engine, StopsTheProcessAtANegativeCountAndLeavesNothing) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    auto plan = smallPlan({randomRead}, BenchmarkSize::fixed(0));
    plan.randomOpCount = -1;
    EXPECT_DEATH(BenchmarkEngine().run(plan, folder.path(), {}).waitForFinished(), "negative count");
}

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
    EXPECT_NEAR(random.latency->p999, 90e-6, 1e-6);
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
