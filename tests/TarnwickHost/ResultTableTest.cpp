#include "TarnwickHost/Results.h"

#include <gtest/gtest.h>

using namespace OndelCore::benchmark;

namespace {

TEST(Results, ShowEachFigureUnderItsTitle) {
    // The median of the last third is 300 MB/s. The first sample does not count as the lowest.
    const ThroughputResult write{
        4'000'000'000, 10, 1048576, {{1, 100e6}, {2, 900e6}, {7, 200e6}, {8, 300e6}, {10, 400e6}}, {}};
    const ThroughputResult read{1'000'000'000, 0.5, 1048576, {{0.5, 2e9}}, {}};
    BenchmarkResult result;
    result.sequentialWrite = write;
    result.sequentialRead = read;
    result.randomRead = IOPSResult{12000, 1, 4096, {}};
    result.fileOps = FileOpsResult{{100, 1}, {100, 0.5}, {100, 2}, {100, 4}};
    EXPECT_EQ(TarnwickHost::resultTable(BenchmarkPlan(), result).toStdString(),
              R"(                      Sustained       Peak    Lowest    Overall
Sequential write       300 MB/s   900 MB/s  200 MB/s   400 MB/s
Sequential read       2.00 GB/s  2.00 GB/s        --  2.00 GB/s

                     Operations       Rate
Random read (4 KiB)  12.0k IOPS    49 MB/s

                         Create       Stat    Rename     Delete
File operations       100 ops/s  200 ops/s  50 ops/s   25 ops/s
)");
    EXPECT_EQ(TarnwickHost::resultTable(BenchmarkPlan(), {}), "");

    const QJsonObject json = TarnwickHost::resultJson(BenchmarkPlan(), result);
    EXPECT_EQ(json["sequentialWrite"]["sustainedBytesPerSecond"], 300e6);
    EXPECT_EQ(json["sequentialWrite"]["peakBytesPerSecond"], 900e6);
    EXPECT_EQ(json["fileOps"]["stat"]["opsPerSecond"], 200);
    EXPECT_EQ(json["fileOps"]["rename"]["opsPerSecond"], 50);
    EXPECT_EQ(json["fileOps"]["delete"]["opsPerSecond"], 25);
}

} // namespace
