#include "OndelCore/capacity/RealSize.h"

#include "OndelCore/capacity/DefectList.h"
#include "OndelCore/capacity/Sampling.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

namespace OndelCore::capacity {
namespace {

constexpr std::int64_t unit = 1048576;

struct SizeCase {
    const char* name;
    std::vector<CapacityDefect> defects;
    std::vector<PlacedStretch> places;
    const char* said;
};

class RealSize : public testing::TestWithParam<SizeCase> {};

/// Of 100 units written on a volume of which 10 were in use.
TEST_P(RealSize, isConcluded) {
    Findings findings(100 * unit);
    findings.addWritten(0, 100 * unit);
    for (const CapacityDefect& defect : GetParam().defects)
        (defect.kind == DefectKind::writeFailed ? findings.writing : findings.reading).add(defect);
    const auto size =
        concludedRealSize({.findings = findings, .places = GetParam().places, .usedBefore = 10 * unit});
    const std::string said = size ? std::string(rawValue(size->reason)) + ' ' +
                                        std::to_string(size->bytes / unit) + (size->isExact ? " exactly" : "")
                                  : "nothing";
    EXPECT_EQ(said, GetParam().said);
}

CapacityDefect other(std::int64_t offset, std::int64_t length, std::int64_t holds, bool repeats = false) {
    return {.kind = DefectKind::otherBlock,
            .offset = offset * unit,
            .length = length * unit,
            .holds = holds * unit,
            .repeats = repeats};
}
CapacityDefect lost(std::int64_t offset, std::int64_t length, DefectKind kind = DefectKind::zeros) {
    return {.kind = kind, .offset = offset * unit, .length = length * unit};
}

INSTANTIATE_TEST_SUITE_P(
    All, RealSize,
    testing::Values(SizeCase{"wrapsThreeTimes",
                             {other(0, 25, 75), other(25, 25, 75), other(50, 25, 75)},
                             {},
                             "wrapsAround 25"},
                    SizeCase{"refusesToTakeMore", {lost(40, 60, DefectKind::writeFailed)}, {}, "nothing"},
                    // The file system wrote from the middle to the end, then from its front to the middle.
                    SizeCase{"wrapsUnderAnUnorderedFileSystem",
                             {other(0, 50, 50)},
                             {{0, 60 * unit, 50 * unit}, {50 * unit, 10 * unit, 50 * unit}},
                             "wrapsAround 50 exactly"},
                    SizeCase{"swappedBlocks",
                             {{.kind = DefectKind::otherBlock, .offset = 0, .length = 4096, .holds = 8192},
                              {.kind = DefectKind::otherBlock, .offset = 8192, .length = 4096, .holds = 0}},
                             {},
                             "nothing"},
                    SizeCase{"dropsBeyond", {lost(30, 70)}, {}, "dropsBeyond 40"},
                    SizeCase{"repeatsItsLastBlock", {other(30, 70, 29, true)}, {}, "dropsBeyond 40"},
                    SizeCase{"dropsTheFrontOfAnUnorderedFileSystem",
                             {lost(0, 70)},
                             {{0, 40 * unit, 70 * unit}, {70 * unit, 10 * unit, 30 * unit}},
                             "dropsBeyond 40 exactly"},
                    SizeCase{"dropsInTheMiddleWherePlacesAreNotTold",
                             {lost(20, 60, DefectKind::unreadable)},
                             {},
                             "dropsBeyond 50"},
                    SizeCase{"wrapsUnderAFileSystemWithChecksums",
                             {lost(0, 70, DefectKind::unreadable)},
                             {},
                             "wrapsAround 30"},
                    SizeCase{"aBadRegion", {lost(20, 10, DefectKind::unreadable)}, {}, "nothing"},
                    SizeCase{"bitFlipsToTheEnd", {lost(30, 70, DefectKind::bitFlips)}, {}, "nothing"},
                    SizeCase{"allIsLost", {lost(0, 100)}, {}, "nothing"}),
    [](const auto& entry) { return std::string(entry.param.name); });

TEST(Samples, meetEveryWrapAround) {
    for (const std::int64_t size : {256 * unit, 8192 * unit, 65536 * unit, 65536 * unit - 12288}) {
        const Samples samples = spreadSamples(size);
        const std::int64_t dense = samples.stretches.front().length;
        EXPECT_LT(dense, size / 8);
        EXPECT_EQ(samples.stretches.back().end(), size);
        for (std::int64_t real = dense; real < size - dense;
             real += 37 * blockBytes * (size / (1024 * unit) + 1)) {
            const bool isMet = std::ranges::any_of(samples.stretches, [&](const Stretch& sample) {
                return sample.offset >= real && sample.offset % real < dense;
            });
            ASSERT_TRUE(isMet) << size << " after " << real;
        }
    }
}

TEST(DefectList, joinsNeighboursAndKeepsCounting) {
    DefectList list;
    for (std::int64_t block = 0; block < 200'000; ++block) // every second one: no neighbours
        list.add({.kind = DefectKind::zeros, .offset = block * 2 * blockBytes, .length = blockBytes});
    for (std::int64_t block = 0; block < 100; ++block)
        list.add({.kind = DefectKind::bitFlips,
                  .offset = (500'000 + block) * blockBytes,
                  .length = blockBytes,
                  .flippedBits = 1});
    CapacityResult result;
    enterDefects(result, {}, list, {});
    EXPECT_EQ(result.defects.size(), 100U);
    EXPECT_EQ(result.furtherDefects, 200'001 - 100);
    EXPECT_EQ(result.bytesOf(DefectKind::zeros), 200'000 * blockBytes);
    EXPECT_EQ(result.wrong, 200'100 * blockBytes);
    EXPECT_TRUE(list.covers(2 * blockBytes));
    EXPECT_FALSE(list.covers(3 * blockBytes));
    EXPECT_TRUE(list.covers(900'000 * blockBytes)) << "what is not known counts as known";
}

} // namespace
} // namespace OndelCore::capacity
