#include "TarnwickKit/views/charts/ChartSeries.h"
#include "tests/TarnwickKit/model/ModelHarness.h"

#include <gtest/gtest.h>

using namespace TarnwickKit::views;
using OndelCore::benchmark::BenchmarkProgress;
using OndelCore::benchmark::BenchmarkTest;
using TarnwickKit::model::AnalyzerModel;
using TarnwickKit::model::turnUntil;

namespace {

/// A model with a running test, and the curve that a chart draws of it.
struct Watched {
    TarnwickKit::model::Engine engine;
    AnalyzerModel model{engine.services()};
    LiveRun run;
    LiveSeries series;
    QStringList heard; ///< "restarted", or the number of appended points
    int moves = 0;

    Watched() {
        run.setAnalyzer(&model);
        series.setRun(&run);
        QObject::connect(&run, &LiveRun::restarted, &run, [this] { heard << QStringLiteral("restarted"); });
        QObject::connect(&run, &LiveRun::grown, &run,
                         [this](const QList<QPointF>& tail) { heard << QString::number(tail.size()); });
        QObject::connect(&run, &LiveRun::moved, &run, [this] { ++moves; });
    }

    void measure(BenchmarkTest test, int first, int end) {
        for (int i = first; i < end; ++i) {
            BenchmarkProgress progress;
            progress.test = test;
            progress.elapsed = i * 0.02;
            progress.instantBytesPerSecond = 1e8 + 1e6 * (i % 7);
            progress.completedBytes = i;
            progress.totalBytes = 10000;
            model.apply(progress);
        }
    }

    /// What is announced up to and including the next update.
    std::string update() {
        const int before = moves;
        turnUntil([&] { return moves > before; });
        EXPECT_EQ(run.points(), pointsOf(model.liveSamples()));
        EXPECT_EQ(series.points(), run.points());
        EXPECT_EQ(run.completedBytes(), static_cast<double>(model.completedBytes()));
        return std::exchange(heard, {}).join(u' ').toStdString();
    }
};

TEST(LiveRun, PassesOnOnlyTheNewPoints) {
    constexpr auto write = BenchmarkTest::sequentialWrite;
    constexpr auto read = BenchmarkTest::sequentialRead;
    Watched watched;
    watched.measure(write, 0, 3); // the first sample begins a test and is read at once
    EXPECT_EQ(watched.update(), "restarted 2");
    watched.measure(write, 3, 1500);
    EXPECT_EQ(watched.update(), "1497");
    watched.measure(write, 1500, 2001);
    EXPECT_EQ(watched.model.liveSamples().size(), 1001U);
    EXPECT_EQ(watched.update(), "restarted") << "the samples were thinned";
    watched.measure(write, 2001, 2002);
    EXPECT_EQ(watched.update(), "1");
    watched.measure(write, 2002, 3900); // thinned, and longer again than before
    EXPECT_GT(watched.model.liveSamples().size(), 1002U);
    EXPECT_EQ(watched.update(), "restarted");
    watched.measure(read, 0, 5000);
    EXPECT_EQ(watched.update(), "restarted 1999") << "the first sample is kept when others are dropped";
}

TEST(LiveRun, PassesOnTheTemperatures) {
    Watched watched;
    int warmed = 0;
    QObject::connect(&watched.run, &LiveRun::warmed, &watched.run, [&warmed] { ++warmed; });
    watched.measure(BenchmarkTest::sequentialWrite, 0, 50);
    watched.update();
    EXPECT_TRUE(std::isnan(watched.run.celsius()));
    EXPECT_EQ(warmed, 0);
    for (const double celsius : {40.0, 40.0, 41.5}) {
        BenchmarkProgress progress{.test = BenchmarkTest::sequentialWrite, .elapsed = 1, .celsius = celsius};
        watched.model.apply(progress);
    }
    watched.update();
    EXPECT_EQ(watched.run.temperatures(), (QList<QPointF>{{1, 40}, {1, 41.5}}));
    EXPECT_EQ(watched.run.celsius(), 41.5);
    watched.measure(BenchmarkTest::sequentialRead, 0, 1);
    watched.update();
    EXPECT_TRUE(watched.run.temperatures().isEmpty());
    EXPECT_EQ(warmed, 2);
}

} // namespace
