#include "OndelCore/benchmark/BenchmarkPlan.h"
#include "OndelCore/benchmark/BenchmarkResult.h"
#include "OndelCore/benchmark/BenchmarkTarget.h"
#include "OndelCore/benchmark/SpeedScale.h"
#include "OndelCore/benchmark/TargetLookup.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <set>

using namespace OndelCore::benchmark;
using OndelCore::platform::Mount;

namespace {

TEST(BenchmarkPlan, TurnsAnyBlockSizeIntoWholePages) {
    constexpr auto largest = std::numeric_limits<std::int64_t>::max();
    const std::pair<std::int64_t, std::int64_t> cases[]{{0, 4096},
                                                        {-1, 4096},
                                                        {std::numeric_limits<std::int64_t>::min(), 4096},
                                                        {1, 4096},
                                                        {4096, 4096},
                                                        {4097, 8192},
                                                        {5000, 8192},
                                                        {1048576, 1048576},
                                                        {largest - 4095, largest - 4095},
                                                        {largest - 4094, largest - 4095},
                                                        {largest, largest - 4095}};
    for (const auto& [size, block] : cases)
        EXPECT_EQ(BenchmarkPlan::alignedBlock(size), block) << size;
}

TEST(BenchmarkTest, IsFoundByItsExactRawValueAlone) {
    for (const BenchmarkTest test : allBenchmarkTests)
        EXPECT_EQ(benchmarkTest(rawValue(test)), test);
    for (const char* stranger : {"SequentialWrite", "fileops", "", "fileOps "})
        EXPECT_FALSE(benchmarkTest(stranger)) << stranger;
}

TEST(ThroughputResult, DerivesItsFigures) {
    struct Case {
        const char* name;
        ThroughputResult result;
        double overall, peak, sustained;
        bool cliff;
        std::optional<double> lowest = std::nullopt;
    };
    const Case cases[]{
        {"nothing", {0, 0, 4096, {}}, 0, 0, 0, false},
        {"no samples", {100, 2, 4096, {}}, 50, 50, 50, false},
        {"one sample", {100, 2, 4096, {{2, 70}}}, 50, 70, 70, false},
        {"of two the first is early", {100, 2, 4096, {{1, 90}, {2, 30}}}, 50, 90, 30, true, 30},
        {"the cut-off counts", {100, 3, 4096, {{1, 9}, {2, 40}, {3, 20}}}, 100.0 / 3, 40, 30, true, 20},
        {"exactly 0.8 of the peak is no cliff", {9, 9, 4096, {{1, 100}, {9, 80}}}, 1, 100, 80, false, 80},
        {"time stood still", {100, 2, 4096, {{0, 70}}}, 50, 70, 50, true},
    };
    for (const Case& each : cases) {
        EXPECT_DOUBLE_EQ(each.result.bytesPerSecond(), each.overall) << each.name;
        EXPECT_DOUBLE_EQ(each.result.peakBytesPerSecond(), each.peak) << each.name;
        EXPECT_DOUBLE_EQ(each.result.sustainedBytesPerSecond(), each.sustained) << each.name;
        EXPECT_EQ(each.result.lowestBytesPerSecond(), each.lowest) << each.name;
        EXPECT_EQ(each.result.observedCacheCliff(), each.cliff) << each.name;
    }
    EXPECT_EQ((IOPSResult{10, 0, 4096}).bytesPerSecond(), 0);
    EXPECT_EQ((IOPSResult{10, 2, 4096}).bytesPerSecond(), 5 * 4096);
    EXPECT_EQ((FileOpResult{10, 0}).opsPerSecond(), 0);
}

TEST(SpeedScale, PlacesAndJudgesRates) {
    const SpeedScale& scale = SpeedScale::standard();
    EXPECT_EQ(scale.position(1), 0);
    EXPECT_EQ(scale.position(60e3), 0);
    EXPECT_EQ(scale.position(scale.references().back()), 1);
    EXPECT_EQ(scale.position(1e12), 1);
    EXPECT_NEAR(scale.position(std::sqrt(60e3 * 14e9)), 0.5, 1e-12);
    EXPECT_EQ(scale.verdict(59999), "Slower than Floppy");
    EXPECT_EQ(scale.verdict(60000), "Faster than Floppy, slower than CD-ROM");
    EXPECT_EQ(scale.verdict(550e6), "Faster than SATA III, slower than USB 3.2 / 10 GbE");
    EXPECT_EQ(scale.verdict(14e9), "Faster than PCIe 5.0");

    EXPECT_EQ(SpeedScale({}).verdict(1), std::nullopt);
    EXPECT_EQ(SpeedScale({}).maxSpeed(), 1);
    EXPECT_EQ(SpeedScale({{"one", 5}}).position(5), 0);
    const SpeedScale twins({{"fast", 9}, {"a", 5}, {"b", 5}});
    EXPECT_EQ(twins.verdict(5), "Faster than b, slower than fast");
    EXPECT_EQ(twins.verdict(4), "Slower than a");
}

TEST(BenchmarkTarget, PicksAFolderThatCanBeWritten) {
    const Mount root{.device = 1, .mountPoint = "/"}, stick{.device = 2, .mountPoint = "/media/stick"},
        rootAgain{.device = 1, .mountPoint = "/mnt/root"};
    struct Case {
        std::filesystem::path path;
        std::set<std::filesystem::path> writable;
        std::optional<Mount> volume;
        std::filesystem::path picked;
    };
    const Case cases[]{{"/media/stick/data", {"/media/stick/data"}, stick, "/media/stick/data"},
                       {"/media/stick/data", {"/media/stick"}, stick, "/media/stick"},
                       {"/media/stick/data", {}, stick, "/media/stick/data"},
                       {"/", {"/"}, root, "/home/ada"},
                       {"/etc", {"/"}, root, "/home/ada"},
                       {"/mnt/root", {}, rootAgain, "/home/ada"},
                       {"/gone", {}, std::nullopt, "/gone"}};
    for (const Case& each : cases) {
        const TargetLookup system{
            .isWritable = [&](const std::filesystem::path& path) { return each.writable.contains(path); },
            .mountOfPath =
                [&](const std::filesystem::path& path) { return path == "/home/ada" ? root : each.volume; },
        };
        EXPECT_EQ(targetFolder(each.path, "/home/ada", system), each.picked);
    }
    EXPECT_EQ(BenchmarkTarget::folder("/", "/home/ada"), "/home/ada");
}

} // namespace
