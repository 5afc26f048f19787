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
    int tellings = 0;

    Watched() {
        run.setAnalyzer(&model);
        series.setRun(&run);
        QObject::connect(&run, &LiveRun::restarted, &run, [this] { heard << QStringLiteral("restarted"); });
        QObject::connect(&run, &LiveRun::grown, &run,
                         [this](const QList<QPointF>& tail) { heard << QString::number(tail.size()); });
        QObject::connect(&run, &LiveRun::moved, &run, [this] { ++moves; });
        QObject::connect(&run, &LiveRun::told, &run, [this] { ++tellings; });
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

TEST(LiveRun, TellsEachTestInItsOwnUnit) {
    struct Case {
        BenchmarkTest test;
        std::int64_t unit; ///< bytes per operation
        const char* figure;
        const char* unitText;
        const char* amount;
    };
    Watched watched;
    watched.model.select(std::filesystem::path("/"));
    watched.model.setSelectedTests(
        {BenchmarkTest::sequentialRead, BenchmarkTest::randomWrite, BenchmarkTest::fileOps});
    watched.engine.begin(watched.model);
    const auto text = [&](const char* property) {
        return watched.run.property(property).toString().toStdString();
    };
    EXPECT_EQ(text("runLine"), "Preparing…");
    for (const Case& one :
         {Case{BenchmarkTest::sequentialRead, 1'000'000, "1,000", "MB/s", "953.7 MiB of 3.7 GiB"},
          Case{BenchmarkTest::randomWrite, 4096, "1,000", "IOPS", "3.9 MiB of 15.6 MiB"},
          Case{BenchmarkTest::fileOps, 1, "1,000", "files/s", "1,000 of 4,000 operations"}}) {
        for (const double elapsed : {0.0, 0.5, 1.0})
            watched.model.apply({one.test, static_cast<std::int64_t>(elapsed * 1000) * one.unit,
                                 4000 * one.unit, one.unit == 1'000'000 ? 1e9 : 0, elapsed});
        const int before = watched.tellings;
        turnUntil([&] { return watched.tellings > before; });
        EXPECT_EQ(text("figure"), one.figure) << one.unitText;
        EXPECT_EQ(text("unit"), one.unitText);
        EXPECT_EQ(text("amount"), one.amount);
        EXPECT_EQ(watched.run.property("share").toDouble(), 0.25);
        EXPECT_EQ(watched.run.points(), (QList<QPointF>{{0, 1000}, {0.5, 1000}, {1, 1000}}));
    }
    QStringList sentences;
    for (const LiveTest& test : watched.run.property("tests").value<QList<LiveTest>>())
        sentences << test.sentence;
    EXPECT_EQ(sentences, (QStringList{"Sequential read: done, 1,000 MB/s", "Random write: done, 1,000 IOPS",
                                      "File operations: running"}));
    watched.engine.last().finish({}); // the model waits for it
}

TEST(LiveRun, TellsAStandstill) {
    Watched watched;
    for (const std::int64_t done : {50, 100}) {
        for (const double elapsed : {0.5, 1.0})
            watched.model.apply(
                {BenchmarkTest::sequentialWrite, done * 1'000'000, 100'000'000, 1e8, elapsed});
        const int before = watched.tellings;
        turnUntil([&] { return watched.tellings >= before + 5; });
        EXPECT_EQ(watched.run.property("figure").toString(), done == 50 ? "0" : "");
    }
}

TEST(LiveRun, RoundsTheTimeLeft) {
    for (const auto& [left, text] : {std::pair<double, const char*>{0, "A few seconds left"},
                                     {5, "A few seconds left"},
                                     {5.1, "About 10 s left"},
                                     {95, "About 95 s left"},
                                     {96, "About 2 min left"},
                                     {151, "About 3 min left"},
                                     {5969, "About 99 min left"},
                                     {5971, "About 2 h left"},
                                     {36000, "About 10 h left"}})
        EXPECT_EQ(timeLeftText(left, true).toStdString(), text) << left;
    EXPECT_EQ(timeLeftText(20, false), "About 20 s left of this test");
}

} // namespace
