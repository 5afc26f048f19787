#include "TarnwickKit/model/format/RemarkText.h"

#include <gtest/gtest.h>

#include <limits>

namespace TarnwickKit::model {

namespace {

using OndelCore::benchmark::BenchmarkTest;
using OndelCore::benchmark::Remark;
using OndelCore::benchmark::RemarkCode;
using OndelCore::benchmark::RemarkWeight;
using enum RemarkCode;

struct Case {
    RemarkCode code;
    std::vector<double> numbers;
    const char* sentence; ///< empty: the remark is left out
    std::optional<BenchmarkTest> test{};
};

Remark remarkOf(const Case& each) { return {each.code, RemarkWeight::note, each.test, each.numbers}; }

const std::vector<Case> sentences{
    {fromMemory, {0}, "0 % of what was read came from the disk.", BenchmarkTest::sequentialRead},
    {fromMemory,
     {0.8999},
     "At most 90 % of what was written reached the disk during the test.",
     BenchmarkTest::randomWrite},
    {fromMemory, {0.29}, "At most 29 % of what was read came from the disk.", BenchmarkTest::randomRead},
    {flushFailed,
     {5},
     "What was written could not all be flushed to the disk: Input/output error.",
     BenchmarkTest::sequentialWrite},
    {flushFailed, {5}, "The test file could not be flushed to the disk: Input/output error."},
    {cachedBelow, {}, "Data went through a cache although the system was asked to bypass it."},
    {speedFell, {1.9e9, 3.1e8, 45097156608}, "1.90 GB/s for the first 42.0 GiB, then 310 MB/s."},
    {gotHot,
     {71.4, 34.04, 75, 0.4},
     "The drive reached 71 °C after 34.0 s (limit 75 °C), and from then on the rate was 40 % lower."},
    {stalls, {3, 4.25}, "3 pauses over 1 s, the longest 4.2 s."},
    {stalls, {1, 1.5}, "One pause over 1 s: 1.5 s."},
    {otherTraffic, {1073741824}, "Others moved 1.0 GiB on the same disk during the test."},
    {slowLink, {4.8e8, 5e9, 2}, "The drive’s USB link runs at 480 Mbit/s; the drive could do 5.0 Gbit/s."},
    {misaligned, {3584, 4096}, "The partition begins 3.5 KiB into a physical block of 4 KiB."},
    {nearlyFull, {0.047}, "Only 4 % of the volume was free."},
    {smallTest, {1073741824, 17179869184}, "The test’s 1.0 GiB may fit into a cache of 16.0 GiB."},
    {powerSaving, {1}, "The machine ran on battery."},
    {powerSaving, {2}, "The processor was set to save power."},
    {powerSaving, {3}, "The machine ran on battery, its processor set to save power."},
    {notObservable, {}, "The disk behind this volume cannot be seen, so nothing shows what it did itself."},
    {inMemory, {}, "This volume keeps its files in memory; no disk was measured."},
    {fileOnDisk, {}, "This volume is a file on another volume."},
    {virtualDisk, {}, "The disk is one of a virtual machine, whose host may cache it."},
    {compresses, {}, "The file system compresses. The test’s data does not, so other files may be faster."},
    {copiesOnWrite, {1}, "The file system writes changes to new places and checksums data."},
    {journalsData, {}, "The file system writes data twice, to its journal first."},
};

TEST(RemarkText, ASentenceForEachCode) {
    for (const Case& each : sentences)
        EXPECT_EQ(remarkSentence(remarkOf(each)).toStdString(), each.sentence);
    EXPECT_EQ(remarkAdvice({slowLink, {}, {}, {}}), QString("Try another port, slot or cable."));
    EXPECT_TRUE(remarkAdvice({virtualDisk, {}, {}, {}}).isEmpty());
}

/// Run files come from anywhere.
TEST(RemarkText, NumbersThatMakeNoSenseGiveNoSentence) {
    for (const Case& each : sentences) {
        Case changed = each;
        changed.numbers.push_back(1);
        EXPECT_TRUE(remarkSentence(remarkOf(changed)).isEmpty()) << rawValue(each.code);
        for (std::size_t index = 0; index < each.numbers.size(); ++index)
            for (const double nonsense : {-1.0, 1e300, std::numeric_limits<double>::infinity(),
                                          std::numeric_limits<double>::quiet_NaN()}) {
                changed = each;
                changed.numbers[index] = nonsense;
                EXPECT_TRUE(remarkSentence(remarkOf(changed)).isEmpty()) << rawValue(each.code) << nonsense;
            }
    }
    const std::vector<Case> impossible{
        {fromMemory, {0}, ""},         {fromMemory, {1.5}, "", BenchmarkTest::randomRead},
        {flushFailed, {0}, ""},        {flushFailed, {5.5}, ""},
        {flushFailed, {70000}, ""},    {gotHot, {71, 34, 75, 2}, ""},
        {slowLink, {1e9, 2e9, 3}, ""}, {slowLink, {1e9, 2e9, 0.5}, ""},
        {nearlyFull, {2}, ""},         {powerSaving, {4}, ""},
    };
    for (const Case& each : impossible)
        EXPECT_EQ(remarkSentence(remarkOf(each)).toStdString(), "") << rawValue(each.code);
}

} // namespace

} // namespace TarnwickKit::model
