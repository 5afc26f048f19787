#include "TarnwickHost/Progress.h"

#include <gtest/gtest.h>

using namespace OndelCore::benchmark;
using TarnwickHost::progressLine;

namespace {

TEST(ProgressLine, ShowsWhatTheCountsMean) {
    BenchmarkPlan plan;
    plan.randomBlockSize = 5000; // 8192 in use
    struct Case {
        BenchmarkProgress progress;
        std::string expected;
    };
    const std::vector<Case> cases{
        {{BenchmarkTest::sequentialWrite, 1 << 30, std::int64_t{2} << 30, 5e8, 2},
         "Sequential write      ########........   50 %     1.0 GiB of 2.0 GiB   500 MB/s"},
        {{BenchmarkTest::sequentialWrite, 1 << 30, 0, 5e8, 2}, "Sequential write     1.0 GiB   500 MB/s"},
        {{BenchmarkTest::randomRead, 8192 * 500, 8192 * 10000, 0, 0.5},
         "Random read (8 KiB)   ..................    5 %     500 of 10,000     1.0k IOPS"},
        {{BenchmarkTest::randomWrite, 0, 0, 0, 0}, "Random write (8 KiB)  0 of 0        0 IOPS"},
        {{BenchmarkTest::fileOps, 256, 4000, 0, 0},
         "File operations       #...................    6 %    256 of 4,000       0 ops/s"},
    };
    for (const Case& each : cases)
        EXPECT_EQ(progressLine(each.progress, plan, {.columns = 79, .unicode = false}).toStdString(),
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

} // namespace
