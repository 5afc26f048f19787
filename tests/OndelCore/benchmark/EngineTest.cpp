// What a run does, in which order, and what it says meanwhile.

#include "FakeSystem.h"
#include "OndelCore/benchmark/BenchmarkEngine.h"
#include "OndelCore/benchmark/BenchmarkError.h"
#include "OndelCore/benchmark/UniformIndexGenerator.h"

#include <gtest/gtest.h>

#include <cstring>

using namespace OndelCore::benchmark;
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
    EXPECT_EQ(system.diary, (Lines{"free",
                                   "clock",
                                   "write 4096",
                                   "clock",
                                   "progress sequentialWrite 4096/5000 at 1 s",
                                   "write 904",
                                   "clock",
                                   "progress sequentialWrite 5000/5000 at 2 s",
                                   "clock",
                                   "flush",
                                   "clock",
                                   "clock",
                                   "read 4096",
                                   "clock",
                                   "progress sequentialRead 4096/5000 at 1 s",
                                   "read 4096",
                                   "clock",
                                   "progress sequentialRead 5000/5000 at 2 s",
                                   "read 4096",
                                   "clock",
                                   "clock"}));
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

} // namespace
