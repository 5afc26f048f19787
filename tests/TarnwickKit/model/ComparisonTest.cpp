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

TEST(ComparisonChart, TellsDifferencesInPercent) {
    const CompareMetric& write = CompareMetric::all().front();
    RunRecord marked = writing(8);
    marked.remarks = {{OndelCore::benchmark::RemarkCode::fromMemory,
                       OndelCore::benchmark::RemarkWeight::invalid,
                       OndelCore::benchmark::BenchmarkTest::sequentialWrite,
                       {}}};
    const std::vector<RunRecord> runs{writing(5), writing(4), writing(3), writing(std::nullopt),
                                      marked,     writing(0)};
    const std::optional<double> none;
    const std::vector<std::optional<double>> nothing(runs.size());
    const struct {
        std::size_t reference;
        std::vector<std::optional<double>> shares;
    } cases[] = {
        {1, {0.25, none, -0.25, none, none, -1}}, {3, nothing}, {4, nothing}, {5, nothing}, {6, nothing}};
    for (const auto& [reference, shares] : cases)
        EXPECT_EQ(differences(write, runs, reference), shares) << reference;

    const std::pair<double, const char*> texts[] = {
        {0, "0 %"},        {0.0004, "0 %"},       {-0.0006, "−0.1 %"}, {0.0994, "+9.9 %"},
        {0.0996, "+10 %"}, {-0.126, "−13 %"},     {61.5, "+6,150 %"},  {-1, "−100 %"},
        {99, "+9,900 %"},  {1e300, "> +9,900 %"}, {-1e300, "−9,900 %"}};
    for (const auto& [share, text] : texts)
        EXPECT_EQ(differenceText(share), text) << share;
}

TEST(ComparisonChart, RecognizesAVolume) {
    RunRecord run;
    run.volumeName = "Data";
    run.deviceModel = "ACME";
    run.fsType = "ext4";
    run.capacityBytes = 1000;
    const struct {
        void (*change)(RunRecord&);
        bool isSame;
    } cases[] = {{[](RunRecord& other) { other.customTitle = "Title"; }, true},
                 {[](RunRecord& other) { other.deviceModel.reset(); }, true},
                 {[](RunRecord& other) { other.fsType.reset(); }, true},
                 {[](RunRecord& other) { other.capacityBytes = 901; }, true},
                 {[](RunRecord& other) { other.capacityBytes = 899; }, false},
                 {[](RunRecord& other) { other.volumeName = "data"; }, false},
                 {[](RunRecord& other) { other.deviceModel = "Other"; }, false},
                 {[](RunRecord& other) { other.fsType = "xfs"; }, false}};
    for (const auto& [change, isSame] : cases) {
        RunRecord other = run;
        change(other);
        EXPECT_EQ(areOfOneVolume(run, other), isSame);
        EXPECT_EQ(areOfOneVolume(other, run), isSame);
    }
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
