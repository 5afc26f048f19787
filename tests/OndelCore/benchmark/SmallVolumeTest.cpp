// Whole runs on real file systems: when they are full, and what a run observes on them.

#include "FakeSystem.h"
#include "OndelCore/benchmark/BenchmarkError.h"
#include "OndelCore/benchmark/evidence/Remark.h"
#include "OndelCore/platform/storage/OpenFolders.h"
#include "support/LoopMount.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>

#include <algorithm>
#include <iterator>
#include <sstream>

using namespace OndelCore::benchmark;
using test::everyTest;
using test::smallPlan;
using enum BenchmarkTest;

namespace {

std::int64_t freeSpaceOf(const std::filesystem::path& folder) {
    return EngineEnvironment().freeBytes(OndelCore::platform::openFolder(folder).get()).value();
}

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

/// A volume, and the remarks on the run that it must and must never get. What the machine and its load add
/// ("virtualDisk", "powerSaving") is nobody's here.
struct RealVolume {
    const char *name, *type;
    std::int64_t mebibytes;
    const char *mountOptions, *formatOptions, *present, *absent; ///< the last two: codes
    bool readsFromMemory = false;                                ///< and not from the disk
};

void PrintTo(const RealVolume& volume, std::ostream* out) { *out << volume.name; }

struct RealEvidence : testing::TestWithParam<RealVolume> {};

TEST_P(RealEvidence, SaysWhatIsTrueOfTheVolume) {
    const auto& [name, type, mebibytes, mountOptions, formatOptions, present, absent, readsFromMemory] =
        GetParam();
    // In memory, so that no other program's traffic is seen below the loop device.
    const test::LoopMount memory("tmpfs", 640 << 20);
    std::istringstream format(formatOptions);
    const test::LoopMount volume(type, mebibytes << 20, mountOptions,
                                 {std::istream_iterator<std::string>(format), {}}, memory.path());
    if (const std::string problem = memory.problem() + volume.problem(); !problem.empty())
        GTEST_SKIP() << problem;
    auto plan =
        smallPlan({sequentialWrite, sequentialRead, randomRead, randomWrite}, BenchmarkSize::fixed(48 << 20));
    plan.writeBlockSize = plan.readBlockSize = 1 << 20;
    plan.randomOpCount = 300;
    plan.bypassCache = true;
    EngineEnvironment real;
    real.freeBytes = [](const auto&) { return std::int64_t{1} << 40; }; // it is small
    std::string said = "\n";                                            // a line "code test" for each
    for (const Remark& remark :
         remarksOn(plan, runInFolder(real, plan, volume.path(), CancelFlag(), [](const auto&) {})))
        said += std::string(rawValue(remark.code)) + ' ' +
                std::string(remark.test ? rawValue(*remark.test) : "") + '\n';
    const auto isSaid = [&](const std::string& words) {
        return said.find('\n' + words) != std::string::npos;
    };
    std::istringstream wanted(present), unwanted(absent);
    for (std::string code; wanted >> code;)
        EXPECT_TRUE(remarkCode(code) && isSaid(code + " \n")) << code << " in" << said;
    for (std::string code; unwanted >> code;)
        EXPECT_TRUE(remarkCode(code) && !isSaid(code + ' ')) << code << " in" << said;
    for (const char* reading : {"fromMemory sequentialRead", "fromMemory randomRead"})
        EXPECT_TRUE(!readsFromMemory || isSaid(reading)) << reading << " in" << said;
}

// The programs behind NTFS and exFAT read and write through the cache of the device, which holds it all.
INSTANTIATE_TEST_SUITE_P(
    All, RealEvidence,
    testing::Values(
        RealVolume{"tmpfs", "tmpfs", 128, "", "", "inMemory",
                   "fromMemory flushFailed cachedBelow fileOnDisk notObservable otherTraffic smallTest"},
        RealVolume{"ntfs", "ntfs", 192, "", "-F -Q -q", "cachedBelow fileOnDisk",
                   "flushFailed inMemory otherTraffic journalsData", true},
        RealVolume{"exfat", "exfat", 192, "", "", "cachedBelow fileOnDisk",
                   "flushFailed inMemory otherTraffic journalsData", true},
        RealVolume{"ext4", "ext4", 192, "", "-q", "cachedBelow fileOnDisk",
                   "fromMemory flushFailed inMemory notObservable otherTraffic journalsData compresses "
                   "copiesOnWrite"},
        RealVolume{"ext4WithJournalledData", "ext4", 192, "data=journal", "-q",
                   "cachedBelow fileOnDisk journalsData", "flushFailed inMemory notObservable otherTraffic",
                   true},
        RealVolume{"btrfsThatCompresses", "btrfs", 400, "compress=zstd", "-q",
                   "compresses copiesOnWrite fileOnDisk",
                   "flushFailed inMemory notObservable otherTraffic journalsData"},
        RealVolume{"xfs", "xfs", 320, "", "-q", "cachedBelow fileOnDisk",
                   "fromMemory flushFailed inMemory notObservable otherTraffic compresses journalsData"}),
    [](const auto& volume) { return std::string(volume.param.name); });

} // namespace
