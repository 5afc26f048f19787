#include "TarnwickKit/model/runs/Comparison.h"

#include <gtest/gtest.h>

namespace TarnwickKit::model::ComparisonChart {

namespace {

RunRecord writing(std::optional<double> rate) {
    RunRecord run;
    run.writeBps = rate;
    return run;
}

TEST(ComparisonChart, ShowsMetricsOfAnyRun) {
    const auto labels = [](const std::vector<RunRecord>& runs) {
        QStringList list;
        for (const CompareMetric& metric : activeMetrics(runs))
            list << metric.label + " " + metric.unit;
        return list;
    };
    RunRecord random;
    random.randomWriteIOPS = random.fileOpsPerSec = 1;
    EXPECT_EQ(labels({}), QStringList());
    EXPECT_EQ(labels({RunRecord(), random, writing(0)}),
              QStringList({"Write MB/s", "Random write IOPS", "File ops ops/s"}));
}

TEST(ComparisonChart, ScalesBarsByTheLargestFigure) {
    const CompareMetric& write = CompareMetric::all().front();
    EXPECT_EQ(bars(write, {writing(2e9), writing(1e9), writing(1), writing(std::nullopt)}, 300),
              (std::vector<Bar>{{300, "2,000"}, {150, "1,000"}, {3, "0"}, {std::nullopt, "--"}}));
    EXPECT_EQ(bars(write, {writing(0), writing(0)}, 300),
              (std::vector<Bar>{{std::nullopt, "0"}, {std::nullopt, "0"}}));
    EXPECT_EQ(bars(write, {writing(std::nullopt)}, 300), (std::vector<Bar>{{std::nullopt, "--"}}));
}

TEST(ComparisonChart, SummarizesParameters) {
    RunRecord run;
    EXPECT_EQ(parameterSummary(run), "");
    run.fsType = "apfs";
    run.capacityBytes = 1979120929996;
    run.freeBytes = 443025745510;
    run.sizeLabel = "5.0 GiB";
    run.writeBlock = run.readBlock = 1048576;
    run.randomBlock = 4096;
    run.bypassCache = true;
    EXPECT_EQ(parameterSummary(run), "APFS  ·  1.8 TiB  ·  412.6 GiB free  ·  5.0 GiB test  ·  R/W 1 MiB  ·  "
                                     "Rnd 4 KiB  ·  Uncached");
    RunRecord few;
    few.readBlock = 4194304;
    few.bypassCache = false;
    EXPECT_EQ(parameterSummary(few), "R 4 MiB  ·  Cached");
    few.writeBlock = 1048576;
    EXPECT_EQ(parameterSummary(few), "W 1 MiB  ·  R 4 MiB  ·  Cached");
}

} // namespace

} // namespace TarnwickKit::model::ComparisonChart
