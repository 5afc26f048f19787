#include "TarnwickHost/Results.h"

#include "TarnwickHost/Progress.h"
#include "TarnwickKit/model/format/RemarkText.h"
#include "TarnwickKit/model/runs/RunText.h"

#include <QJsonArray>

#include <gtest/gtest.h>

using namespace OndelCore::benchmark;
using TarnwickHost::MeasuredRun;
using TarnwickHost::progressLine;
using TarnwickHost::resultJson;
using TarnwickHost::resultTable;

namespace {

TEST(ProgressLine, ShowsWhatTheCountsMean) {
    BenchmarkPlan plan;
    plan.randomBlockSize = 5000; // 8192 in use
    struct Case {
        BenchmarkProgress progress;
        std::string expected;
        int columns = 79;
    };
    const std::vector<Case> cases{
        {{BenchmarkTest::sequentialWrite, 1 << 30, std::int64_t{2} << 30, 5e8, 2},
         "Sequential write      ########........   50 %     1.0 GiB of 2.0 GiB   500 MB/s"},
        {{BenchmarkTest::sequentialWrite, 1 << 30, 0, 5e8, 2}, "Sequential write     1.0 GiB   500 MB/s"},
        {{BenchmarkTest::sequentialWrite, 1 << 30, 0, 5e8, 2}, "Sequential write     1.0 GiB   500 MB/s", 39},
        {{BenchmarkTest::sequentialWrite, 1 << 30, 0, 5e8, 2}, "Sequential write     1.0 GiB", 38},
        {{BenchmarkTest::randomRead, 8192 * 500, 8192 * 10000, 0, 0.5},
         "Random read (8 KiB)   ..................    5 %     500 of 10,000     1.0k IOPS"},
        {{BenchmarkTest::randomWrite, 0, 0, 0, 0}, "Random write (8 KiB)  0 of 0        0 IOPS"},
        {{BenchmarkTest::fileOps, 256, 4000, 0, 0},
         "File operations       #...................    6 %    256 of 4,000       0 ops/s"},
    };
    for (const Case& each : cases)
        EXPECT_EQ(
            progressLine(each.progress, plan, {.columns = each.columns, .unicode = false}).toStdString(),
            each.expected);
}

TEST(ProgressLine, FitsEveryWidth) {
    const BenchmarkPlan plan;
    for (const BenchmarkTest test : allBenchmarkTests)
        for (const std::int64_t total : {std::int64_t{0}, std::int64_t{1} << 60})
            for (int columns = 0; columns <= 200; ++columns) {
                const BenchmarkProgress progress{test, (std::int64_t{1} << 60) - 1, total, 1e18, 1e-9};
                EXPECT_LE(progressLine(progress, plan, {.columns = columns}).size(), columns);
            }
}

TEST(Results, ShowEachFigureUnderItsTitle) {
    // The median of the last third is 300 MB/s. The first sample does not count as the lowest.
    const ThroughputResult write{
        4'000'000'000, 10, 1048576, {{1, 100e6}, {2, 900e6}, {7, 200e6}, {8, 300e6}, {10, 400e6}}, {}};
    const ThroughputResult read{1'000'000'000, 0.5, 1048576, {{0.5, 2e9}}, {}};
    MeasuredRun run;
    BenchmarkResult& result = run.result;
    result.sequentialWrite = write;
    result.sequentialRead = read;
    result.randomRead = IOPSResult{12000, 1, 4096, {}};
    result.fileOps = FileOpsResult{{100, 1}, {100, 0.5}, {100, 2}, {100, 4}};
    EXPECT_EQ(resultTable(run, 80).toStdString(),
              R"(                      Sustained       Peak    Lowest    Overall
Sequential write       300 MB/s   900 MB/s  200 MB/s   400 MB/s
Sequential read       2.00 GB/s  2.00 GB/s        --  2.00 GB/s

                     Operations       Rate
Random read (4 KiB)  12.0k IOPS    49 MB/s

                         Create       Stat    Rename     Delete
File operations       100 ops/s  200 ops/s  50 ops/s   25 ops/s
)");
    EXPECT_EQ(resultTable({}, 80), "");

    const QJsonObject json = resultJson(run);
    EXPECT_EQ(json["sequentialWrite"]["sustainedBytesPerSecond"], 300e6);
    EXPECT_EQ(json["sequentialWrite"]["peakBytesPerSecond"], 900e6);
    EXPECT_EQ(json["sequentialWrite"]["lowestBytesPerSecond"], 200e6);
    EXPECT_FALSE(json["sequentialRead"].toObject().contains("lowestBytesPerSecond"));
    EXPECT_EQ(json["sequentialWrite"]["observedCacheCliff"], true);
    EXPECT_EQ(json["sequentialRead"]["observedCacheCliff"], false);
    EXPECT_EQ(json["fileOps"]["stat"]["opsPerSecond"], 200);
    EXPECT_EQ(json["fileOps"]["rename"]["opsPerSecond"], 50);
    EXPECT_EQ(json["fileOps"]["delete"]["opsPerSecond"], 25);
    EXPECT_EQ(json["remarks"], QJsonArray());
    EXPECT_FALSE(json.contains("drive"));
    EXPECT_FALSE(json["fileOps"].toObject()["stat"].toObject().contains("latency"));
    EXPECT_FALSE(json["sequentialWrite"].toObject().contains("flushError"));
}

/// The words of a remark are those of the library.
std::string listed(const Remark& remark) {
    return TarnwickKit::model::remarkList({remark}, 4096, 1000)
        .remove("\nAbout these figures\n")
        .toStdString();
}

TEST(Results, ShowWhatWasObserved) {
    MeasuredRun run;
    run.drive = {"ACME Disk\x1b", "NVMe"};
    run.result.sequentialRead = ThroughputResult{1'000'000'000, 0.5, 1048576, {{0.5, 2e9}}};
    run.result.sequentialRead->evidence.diskReads = Traffic{4096, 1};
    run.result.randomRead = IOPSResult{12000, 1, 4096};
    run.result.randomRead->latency = Latency{0.0001, 0.00031, 0.001, 0.012};
    run.result.randomWrite = IOPSResult{12000, 1, 4096};
    run.result.randomWrite->flushError = std::error_code(5, std::generic_category());
    run.result.fileOps = FileOpsResult{{100, 1}, {100, 0.5}, {100, 2}, {100, 4}};
    run.result.fileOps->remove.latency = Latency{1, 2, 3, 4};
    const Remark note{RemarkCode::virtualDisk, RemarkWeight::note, {}, {}};
    const Remark invalid{RemarkCode::fromMemory, RemarkWeight::invalid, BenchmarkTest::sequentialRead, {0}};
    run.remarks = {note, invalid};
    EXPECT_EQ(resultTable(run, 1000).toStdString(),
              R"(                       Sustained       Peak    Lowest    Overall
Sequential read        2.00 GB/s  2.00 GB/s        --  2.00 GB/s  ! Invalid

                      Operations       Rate       p99      Worst
Random read (4 KiB)   12.0k IOPS    49 MB/s   0.31 ms      12 ms
Random write (4 KiB)  12.0k IOPS    49 MB/s

                          Create       Stat    Rename     Delete
File operations        100 ops/s  200 ops/s  50 ops/s   25 ops/s

Drive  ACME Disk� · NVMe

About these figures
)" + listed(invalid) +
                  listed(note));
    EXPECT_TRUE(QString::fromStdString(listed(invalid)).startsWith("! Invalid     Sequential read: "));
    EXPECT_TRUE(QString::fromStdString(listed(note)).startsWith("Note          "));

    const QJsonObject json = resultJson(run);
    EXPECT_EQ(json["evidence"]["sequentialRead"]["diskReads"]["bytes"], 4096);
    EXPECT_EQ(json["randomRead"]["latency"]["p99"], 0.00031);
    EXPECT_EQ(json["fileOps"]["delete"]["latency"]["worst"], 4);
    EXPECT_EQ(json["randomWrite"]["flushError"]["errno"], 5);
    EXPECT_EQ(json["drive"]["protocolName"], "NVMe");
    EXPECT_EQ(json["remarks"][1]["code"], "fromMemory");
    EXPECT_EQ(json["remarks"][1]["test"], "sequentialRead");
    EXPECT_EQ(json["remarks"][1]["text"], TarnwickKit::model::remarkSentence(invalid));
}

} // namespace
