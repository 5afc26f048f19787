// Checks of real file systems on disks with faults: FUSE, loop devices, root. scripts/check-capacity goes
// through all of them.

#include "OndelCore/benchmark/BenchmarkError.h"
#include "OndelCore/capacity/CapacityCheck.h"
#include "support/FaultyDisk.h"

#include <gtest/gtest.h>

#include <string>

namespace OndelCore::capacity {
namespace {

constexpr std::int64_t mib = 1048576;
using Kind = test::DiskFault::Kind;

struct VolumeCase {
    const char* name;
    const char* type;
    std::int64_t bytes;
    test::DiskFault fault;
    bool isQuick;
    const char* said; ///< kinds, real size
};

class FaultyVolumes : public testing::TestWithParam<VolumeCase> {};

std::string saidOfVolume(const CapacityPlan& plan) {
    try {
        const auto result = CapacityCheck().run(plan);
        std::string said;
        for (const DefectKind kind : allDefectKinds)
            if (result.bytesOf(kind) > 0)
                said += std::string(rawValue(kind)) + ' ';
        if (result.realSize)
            said += std::string(rawValue(result.realSize->reason)) + ' ' +
                    std::to_string((result.realSize->bytes + mib / 2) / mib) +
                    (result.realSize->isExact ? " exactly" : "");
        return said.empty() && result.isProof() ? "good" : said;
    } catch (const benchmark::BenchmarkError&) {
        return "fails";
    }
}

TEST_P(FaultyVolumes, areFoundOut) {
    const auto& entry = GetParam();
    std::vector<std::string> options{"-q"};
    if (std::string(entry.type) == "ntfs")
        options = {"-F", "-Q", "-q"};
    else if (std::string(entry.type) == "ext4")
        options = {"-q", "-J", "size=4"}; // a journal is written out when it is made
    else if (std::string(entry.type) == "exfat")
        options = {};
    test::FaultyVolume volume(entry.type, entry.bytes, {}, options);
    if (!volume.problem().empty())
        GTEST_SKIP() << volume.problem();
    volume.disk().arm(entry.fault);
    EXPECT_EQ(saidOfVolume({.folder = volume.path(), .leaveFree = 0, .isQuick = entry.isQuick}), entry.said);
    EXPECT_GT(volume.disk().bytesWritten(), 0);
}

INSTANTIATE_TEST_SUITE_P(
    All, FaultyVolumes,
    testing::Values(
        VolumeCase{"honestExt4", "ext4", 96 * mib, {}, false, "good"},
        VolumeCase{"honestNtfs", "ntfs", 64 * mib, {}, false, "good"},
        VolumeCase{"quicklyCheckedWrappingExt4",
                   "ext4",
                   65536 * mib,
                   {.kind = Kind::wrap, .limit = 16384 * mib},
                   true,
                   "otherBlock wrapsAround 16384 exactly"},
        VolumeCase{"quicklyCheckedWrappingNtfs",
                   "ntfs",
                   1024 * mib,
                   {.kind = Kind::wrap, .limit = 256 * mib},
                   true,
                   "otherBlock wrapsAround 256"},
        VolumeCase{"wrappingExfat",
                   "exfat",
                   64 * mib,
                   {.kind = Kind::wrap, .limit = 16 * mib},
                   false,
                   "otherBlock wrapsAround 16"},
        VolumeCase{"droppingExfat",
                   "exfat",
                   64 * mib,
                   {.kind = Kind::dropLast, .limit = 16 * mib},
                   false,
                   "otherBlock dropsBeyond 16"},
        VolumeCase{
            "flippingNtfs", "ntfs", 64 * mib, {.kind = Kind::flip, .every = 20 * mib}, false, "bitFlips "},
        VolumeCase{"flippingBtrfs",
                   "btrfs",
                   128 * mib,
                   {.kind = Kind::flip, .every = 20 * mib},
                   false,
                   "unreadable "},
        VolumeCase{"swappingExt4",
                   "ext4",
                   64 * mib,
                   {.kind = Kind::swap, .first = 100, .second = 5000},
                   false,
                   "otherBlock "},
        VolumeCase{
            "vanishingExt4", "ext4", 128 * mib, {.kind = Kind::vanish, .limit = 16 * mib}, false, "fails"}),
    [](const auto& entry) { return std::string(entry.param.name); });

} // namespace
} // namespace OndelCore::capacity
