// Whole runs on real file systems that are small enough to fill.

#include "FakeSystem.h"
#include "OndelCore/benchmark/BenchmarkError.h"
#include "OndelCore/platform/storage/OpenFolders.h"
#include "support/LoopMount.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>

using namespace OndelCore::benchmark;
using test::smallPlan;
using enum BenchmarkTest;

namespace {

std::int64_t freeSpaceOf(const std::filesystem::path& folder) {
    return EngineEnvironment().freeBytes(OndelCore::platform::openFolder(folder).get()).value();
}

const std::set<BenchmarkTest> everyTest(allBenchmarkTests.begin(), allBenchmarkTests.end());

struct SmallVolume : testing::TestWithParam<std::pair<const char*, std::int64_t>> {};

TEST_P(SmallVolume, EndsWellOrWithAnErrorWhenItIsFull) {
    test::LoopMount volume(GetParam().first, GetParam().second);
    if (!volume.problem().empty())
        GTEST_SKIP() << volume.problem();
    auto plan = smallPlan(everyTest, BenchmarkSize::fixed(std::int64_t{1} << 39));
    plan.writeBlockSize = plan.readBlockSize = 1048576;
    plan.bypassCache = true;
    plan.sampleInterval = 0.1;
    const auto run = [&](bool withRoomPretended) {
        EngineEnvironment real;
        if (withRoomPretended)
            real.freeBytes = [](const auto&) { return std::int64_t{1} << 40; };
        return runInFolder(real, plan, volume.path(), CancelFlag(), [](const auto&) {});
    };
    const auto failure = [&] {
        try {
            run(true);
        } catch (const BenchmarkError& error) {
            return std::string(error.what());
        }
        return std::string();
    };
    EXPECT_EQ(failure(), "write: No space left on device");
    plan.tests.erase(sequentialWrite);
    EXPECT_EQ(failure(), "write(prepare): No space left on device");

    // No reserve stops this one: the disk itself does. What needs new space can only fail there then.
    plan.tests = {sequentialWrite, sequentialRead, randomRead};
    plan.size = BenchmarkSize::fillDisk(0);
    const BenchmarkResult full = run(true);
    EXPECT_GT(full.sequentialWrite->bytesProcessed, 1048576);
    EXPECT_EQ(full.sequentialRead->bytesProcessed, full.sequentialWrite->bytesProcessed);
    plan.tests = everyTest;
    plan.size = BenchmarkSize::fillDisk(freeSpaceOf(volume.path()) / 2);
    const BenchmarkResult reserved = run(false);
    EXPECT_LT(reserved.sequentialWrite->bytesProcessed, full.sequentialWrite->bytesProcessed);
    EXPECT_TRUE(reserved.randomWrite && reserved.fileOps);

    EXPECT_EQ(test::entriesIn(volume.path()),
              std::string(GetParam().first) == "ext4" ? 1U : 0U); // lost+found
    // The kernel lets go of a folder to which a thread was confined a moment after the thread has ended.
    for (int turn = 0; turn < 10000 && !volume.remountReadOnly(); ++turn)
        poll(nullptr, 0, 1);
    EXPECT_THROW(run(false), BenchmarkError);
    EXPECT_TRUE(volume.unmount());
}

TEST_P(SmallVolume, TakesAnyLengthPastTheCache) {
    test::LoopMount volume(GetParam().first, GetParam().second);
    if (!volume.problem().empty())
        GTEST_SKIP() << volume.problem();
    constexpr std::int64_t size = 65536 + 777;
    auto plan = smallPlan(everyTest, BenchmarkSize::fixed(size));
    plan.bypassCache = true;
    plan.writeBlockSize = 5000;
    test::FakeSystem system;
    int past = 0, through = 0;
    system.write = [&](int file, const void* bytes, std::size_t length) {
        const ssize_t written = write(file, bytes, length);
        (fcntl(file, F_GETFL) & O_DIRECT ? past : through) += written > 0;
        return written;
    };
    EXPECT_EQ(system.run(plan, volume.path()).sequentialRead->bytesProcessed, size);
    EXPECT_EQ(past + through, 9);
    EXPECT_GE(past, 8);
    EXPECT_TRUE(volume.unmount());
}

INSTANTIATE_TEST_SUITE_P(FileSystems, SmallVolume,
                         testing::Values(std::pair{"tmpfs", 24LL << 20}, std::pair{"ext4", 32LL << 20},
                                         std::pair{"xfs", 300LL << 20}, std::pair{"btrfs", 128LL << 20}),
                         [](const auto& volume) { return std::string(volume.param.first); });

} // namespace
