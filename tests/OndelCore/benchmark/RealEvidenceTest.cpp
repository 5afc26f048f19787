// What real file systems let a run observe, and what is said of it.

#include "FakeSystem.h"
#include "OndelCore/benchmark/evidence/Remark.h"
#include "support/LoopMount.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>

using namespace OndelCore::benchmark;
using test::smallPlan;
using enum BenchmarkTest;
using enum RemarkCode;

namespace {

/// A volume, and the remarks on the run that it must and must never get. What the machine and its load add
/// ("virtualDisk", "powerSaving") is nobody's here.
struct RealVolume {
    const char* name;
    const char* type;
    std::int64_t bytes;
    const char* mountOptions;
    std::vector<std::string> formatOptions;
    std::vector<RemarkCode> present;
    std::vector<RemarkCode> absent;
    /// The tests whose figures are not the disk's.
    std::vector<BenchmarkTest> fromMemoryTests = {};
};

void PrintTo(const RealVolume& volume, std::ostream* out) { *out << volume.name; }

constexpr std::int64_t mebibyte = 1048576;

struct RealEvidence : testing::TestWithParam<RealVolume> {
    static BenchmarkPlan plan() {
        auto plan = smallPlan({sequentialWrite, sequentialRead, randomRead, randomWrite},
                              BenchmarkSize::fixed(48 * mebibyte));
        plan.writeBlockSize = plan.readBlockSize = mebibyte;
        plan.randomOpCount = 300;
        plan.bypassCache = true;
        return plan;
    }
};

std::string listOf(const std::vector<Remark>& remarks) {
    std::string text;
    for (const Remark& remark : remarks) {
        text += std::string(rawValue(remark.weight)) + " " + std::string(rawValue(remark.code));
        text += remark.test ? " " + std::string(rawValue(*remark.test)) : "";
        for (const double number : remark.numbers)
            text += " " + std::to_string(number);
        text += "\n";
    }
    return text;
}

TEST_P(RealEvidence, SaysWhatIsTrueOfTheVolume) {
    const RealVolume& expected = GetParam();
    // In memory, so that no other program's traffic is seen below the loop device.
    const test::LoopMount memory("tmpfs", 640 * mebibyte);
    if (!memory.problem().empty())
        GTEST_SKIP() << memory.problem();
    const test::LoopMount volume(expected.type, expected.bytes, expected.mountOptions, expected.formatOptions,
                                 memory.path());
    if (!volume.problem().empty())
        GTEST_SKIP() << volume.problem();
    EngineEnvironment real;
    real.freeBytes = [](const auto&) { return std::int64_t{1} << 40; }; // it is small
    const BenchmarkResult result = runInFolder(real, plan(), volume.path(), CancelFlag(), [](const auto&) {});
    const std::vector<Remark> remarks = remarksOn(plan(), result);
    SCOPED_TRACE(listOf(remarks));
    const auto isSaid = [&](RemarkCode code, std::optional<BenchmarkTest> of) {
        return std::ranges::any_of(remarks,
                                   [&](const auto& each) { return each.code == code && each.test == of; });
    };
    for (const RemarkCode code : expected.present)
        EXPECT_TRUE(isSaid(code, std::nullopt)) << rawValue(code);
    for (const RemarkCode code : expected.absent)
        EXPECT_TRUE(std::ranges::none_of(remarks, [&](const auto& each) { return each.code == code; }))
            << rawValue(code);
    for (const BenchmarkTest each : expected.fromMemoryTests)
        EXPECT_TRUE(isSaid(fromMemory, each)) << rawValue(each);
}

INSTANTIATE_TEST_SUITE_P(
    All, RealEvidence,
    testing::Values(
        RealVolume{
            "tmpfs",
            "tmpfs",
            128 * mebibyte,
            "",
            {},
            {inMemory},
            {fromMemory, flushFailed, cachedBelow, fileOnDisk, notObservable, otherTraffic, smallTest}},
        // The program behind reads and writes through the cache of the device, which holds it all.
        RealVolume{"ntfs",
                   "ntfs",
                   192 * mebibyte,
                   "",
                   {"-F", "-Q", "-q"},
                   {cachedBelow, fileOnDisk},
                   {flushFailed, inMemory, otherTraffic, journalsData},
                   {sequentialRead, randomRead}},
        RealVolume{"exfat",
                   "exfat",
                   192 * mebibyte,
                   "",
                   {},
                   {cachedBelow, fileOnDisk},
                   {flushFailed, inMemory, otherTraffic, journalsData},
                   {sequentialRead, randomRead}},
        RealVolume{"ext4",
                   "ext4",
                   192 * mebibyte,
                   "",
                   {"-q"},
                   {cachedBelow, fileOnDisk},
                   {fromMemory, flushFailed, inMemory, notObservable, otherTraffic, journalsData, compresses,
                    copiesOnWrite}},
        RealVolume{"ext4WithJournalledData",
                   "ext4",
                   192 * mebibyte,
                   "data=journal",
                   {"-q"},
                   {cachedBelow, fileOnDisk, journalsData},
                   {flushFailed, inMemory, notObservable, otherTraffic},
                   {sequentialRead, randomRead}},
        RealVolume{"btrfsThatCompresses",
                   "btrfs",
                   400 * mebibyte,
                   "compress=zstd",
                   {"-q"},
                   {compresses, copiesOnWrite, fileOnDisk},
                   {flushFailed, inMemory, notObservable, otherTraffic, journalsData}},
        RealVolume{
            "xfs",
            "xfs",
            320 * mebibyte,
            "",
            {"-q"},
            {cachedBelow, fileOnDisk},
            {fromMemory, flushFailed, inMemory, notObservable, otherTraffic, compresses, journalsData}}),
    [](const auto& volume) { return std::string(volume.param.name); });

} // namespace
