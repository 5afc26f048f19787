#include "TarnwickKit/model/session/LiveProgress.h"

#include "TarnwickKit/model/session/SteadyCountdown.h"

#include <gtest/gtest.h>

#include <cmath>

namespace TarnwickKit::model {

namespace {

using namespace OndelCore::benchmark;
using Stage = LiveProgress::Stage;

constexpr auto write = BenchmarkTest::sequentialWrite;
constexpr auto randomRead = BenchmarkTest::randomRead;
constexpr std::int64_t megabyte = 1'000'000;

/// Events of a sequential test, 50 a second from `first` on, at a constant rate.
void stream(LiveProgress& live, BenchmarkTest test, double seconds, double rate, std::int64_t total,
            double first = 0) {
    for (double elapsed = first + 0.02; elapsed <= first + seconds + 0.001; elapsed += 0.02)
        live.take({test, static_cast<std::int64_t>(elapsed * rate), total, rate, elapsed}, {});
}

std::vector<Stage> stages(const LiveProgress& live) {
    std::vector<Stage> stages;
    for (const LiveProgress::Test& test : live.tests())
        stages.push_back(test.stage);
    return stages;
}

TEST(LiveProgress, TellsTheRateOfTheLastSecond) {
    LiveProgress live;
    live.begin({.size = BenchmarkSize::fixed(1000 * megabyte)});
    EXPECT_EQ(live.rate(), std::nullopt);
    stream(live, write, 3, 100e6, 1000 * megabyte);
    EXPECT_NEAR(*live.rate(), 100e6, 1e3);
    // The drive becomes slow: 20 MB in the next second.
    for (double since = 0.02; since <= 1.001; since += 0.02)
        live.take({write, static_cast<std::int64_t>(300e6 + 20e6 * since), 1000 * megabyte, 20e6, 3 + since},
                  {});
    EXPECT_NEAR(*live.rate(), 20e6, 2e6);
    EXPECT_TRUE(live.points().empty()) << "the events of this test tell their rates themselves";
}

TEST(LiveProgress, DrawsACurveOfTestsThatTellNoRates) {
    struct Case {
        const char* what;
        BenchmarkTest test;
        std::vector<std::pair<double, std::int64_t>> events; ///< seconds, operations
        std::vector<RatePoint> points;
        std::optional<double> rate;
    };
    const Case cases[] = {
        {"one event tells no rate", randomRead, {{0.1, 1}}, {}, std::nullopt},
        {"a first operation that a cache answers",
         randomRead,
         {{0.0001, 1}, {5.0001, 501}},
         {{0.0001, 100}, {5.0001, 100}},
         100},
        {"no time has passed", randomRead, {{1, 1}, {1, 513}, {2, 1025}}, {{1, 1024}, {2, 1024}}, 1024},
        {"the clock was set back", randomRead, {{2, 1}, {1, 513}, {4, 1001}}, {{2, 500}, {4, 500}}, 500},
        {"files",
         BenchmarkTest::fileOps,
         {{0, 0}, {0.5, 256}, {2.5, 512}},
         {{0, 512}, {0.5, 512}, {2.5, 128}},
         128},
    };
    for (const Case& one : cases) {
        LiveProgress live;
        live.begin({});
        const std::int64_t unit = one.test == randomRead ? 4096 : 1;
        for (const auto& [elapsed, done] : one.events)
            live.take({one.test, done * unit, 10000 * unit, 0, elapsed}, {});
        ASSERT_EQ(live.points().size(), one.points.size()) << one.what;
        for (std::size_t i = 0; i < one.points.size(); ++i) {
            EXPECT_DOUBLE_EQ(live.points()[i].elapsed, one.points[i].elapsed) << one.what;
            EXPECT_DOUBLE_EQ(live.points()[i].rate, one.points[i].rate) << one.what;
        }
        EXPECT_EQ(live.rate().has_value(), one.rate.has_value()) << one.what;
        EXPECT_DOUBLE_EQ(live.rate().value_or(0), one.rate.value_or(0)) << one.what;
    }
}

TEST(LiveProgress, KeepsTheResultsOfTestsThatAreDone) {
    LiveProgress live;
    live.begin({.tests = {write, randomRead, BenchmarkTest::fileOps}, .size = BenchmarkSize::fixed(100)});
    EXPECT_EQ(stages(live), (std::vector{Stage::toCome, Stage::toCome, Stage::toCome}));
    live.take({write, 50, 100, 10, 1}, {});
    live.take({write, 100, 100, 10, 4}, {});
    const std::vector<ThroughputSample> samples{{1, 50}, {3, 20}, {4, 10}};
    live.take({randomRead, 4096, 40960, 0, 0.5}, samples);
    EXPECT_EQ(stages(live), (std::vector{Stage::done, Stage::running, Stage::toCome}));
    EXPECT_EQ(live.tests()[0].result, 15) << "the sustained rate, as in the finished run";
    live.take({randomRead, 40960, 40960, 0, 2}, {});
    live.take({BenchmarkTest::fileOps, 0, 4000, 0, 0}, {});
    EXPECT_EQ(live.tests()[1].result, 5) << "operations per second";
    EXPECT_EQ(stages(live), (std::vector{Stage::done, Stage::done, Stage::running}));
}

TEST(LiveProgress, TellsTheShareOfTheRun) {
    LiveProgress live;
    const BenchmarkPlan plan{.tests = {write, BenchmarkTest::sequentialRead, randomRead},
                             .size = BenchmarkSize::fixed(5000 * megabyte)}; // 10 s, 10 s, 5 s
    live.begin(plan);
    EXPECT_EQ(live.fraction(), 0.0);
    live.take({write, 2500 * megabyte, 5000 * megabyte, 1, 1}, {});
    EXPECT_DOUBLE_EQ(*live.fraction(), 0.2);
    live.take({write, 1000 * megabyte, 5000 * megabyte, 1, 2}, {});
    EXPECT_DOUBLE_EQ(*live.fraction(), 0.2) << "it never falls";
    live.take({write, 5000 * megabyte, 5000 * megabyte, 1, 3}, {});
    EXPECT_DOUBLE_EQ(*live.fraction(), 0.4);
    live.take({randomRead, 4096, 40960000, 0, 0.1}, {});
    EXPECT_NEAR(*live.fraction(), 0.8, 0.001) << "a test that told nothing is behind";
    live.take({randomRead, 40960000, 40960000, 0, 2}, {});
    EXPECT_DOUBLE_EQ(*live.fraction(), 1);
}

TEST(LiveProgress, TellsTheShareOfARunThatFillsTheDisk) {
    const BenchmarkPlan plan{.tests = {write}, .size = BenchmarkSize::fillDisk(1)};
    for (const auto& [fillBytes, share] :
         {std::pair<std::optional<std::int64_t>, std::optional<double>>{400, 0.25},
          {50, 1},
          {std::nullopt, std::nullopt},
          {-3, std::nullopt}}) {
        LiveProgress live;
        live.begin(plan, fillBytes);
        live.take({write, 100, 0, 10, 1}, {});
        EXPECT_EQ(live.fraction(), share);
        EXPECT_EQ(live.timeLeft().has_value(), share.has_value());
    }
}

TEST(LiveProgress, EstimatesTheTimeLeft) {
    constexpr std::int64_t size = 1000 * megabyte;
    struct Case {
        const char* what;
        std::set<BenchmarkTest> tests;
        double seconds;
        bool isOfRun;
    };
    // Five seconds of writing at 100 MB/s leave five.
    const Case cases[] = {
        {"alone", {write}, 5, true},
        {"the read will be about as fast as the write", {write, BenchmarkTest::sequentialRead}, 15, true},
        {"nothing is known of random operations", {write, randomRead}, 5, false},
        {"file operations are short", {write, BenchmarkTest::fileOps}, 6, true},
    };
    for (const Case& one : cases) {
        LiveProgress live;
        live.begin({.tests = one.tests, .size = BenchmarkSize::fixed(size)});
        EXPECT_FALSE(live.timeLeft()) << one.what;
        stream(live, write, 5, 100e6, size);
        ASSERT_TRUE(live.timeLeft()) << one.what;
        EXPECT_NEAR(live.timeLeft()->seconds, one.seconds, 0.1) << one.what;
        EXPECT_EQ(live.timeLeft()->isOfRun, one.isOfRun) << one.what;
    }
    LiveProgress live;
    live.begin({.tests = {randomRead, BenchmarkTest::randomWrite}, .size = BenchmarkSize::fixed(size)});
    live.take({randomRead, 4096, 40960000, 0, 0}, {});
    live.take({randomRead, 1001 * 4096LL, 40960000, 0, 10}, {});
    EXPECT_NEAR(live.timeLeft()->seconds, 89.99 + 100, 0.001) << "100 operations per second, in both tests";
}

TEST(SteadyCountdown, IsShownOnceEstimatesAgree) {
    struct Case {
        const char* what;
        double interval;
        double seconds;
        std::function<double(double)> estimate; ///< of the time left at a time
        std::function<void(double now, std::optional<double> shown)> check;
    };
    const auto constant = [](double now) { return 100 - now; };
    const Case cases[] = {
        {"agreeing estimates", 0.04, 60, constant,
         [](double now, std::optional<double> shown) {
             EXPECT_EQ(shown.has_value(), now > 4) << now;
             EXPECT_NEAR(shown.value_or(100 - now), 100 - now, 0.1);
         }},
        {"estimates far apart in time", 5, 60, constant,
         [](double now, std::optional<double> shown) { EXPECT_EQ(shown.has_value(), now > 9) << now; }},
        {"estimates that jump", 0.04, 60, [](double now) { return std::fmod(now, 2) < 1 ? 100.0 : 200.0; },
         [](double now, std::optional<double> shown) { EXPECT_FALSE(shown) << now; }},
        {"estimates that waver by a tenth", 0.04, 60,
         [](double now) { return (100 - now) * (1 + 0.08 * std::sin(now * 1.7)); },
         [last = std::make_shared<double>(1000)](double now, std::optional<double> shown) {
             EXPECT_TRUE(shown || now < 5) << now;
             EXPECT_LE(shown.value_or(0), *last) << "it jumps up at " << now;
             *last = shown.value_or(1000);
         }},
        {"a drive that becomes slow for good", 0.04, 80,
         [](double now) { return now < 20 ? 60 - now : 240 - now; },
         [](double now, std::optional<double> shown) {
             if (now < 20) {
                 EXPECT_NEAR(shown.value_or(60 - now), 60 - now, 0.1) << now;
             } else if (now > 25) {
                 EXPECT_NEAR(shown.value_or(0), 240 - now, 0.1) << now;
             }
         }},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(one.what);
        SteadyCountdown countdown;
        EXPECT_FALSE(countdown.left(0));
        for (double now = 0; now < one.seconds; now += one.interval) {
            countdown.note(now, one.estimate(now));
            one.check(now, countdown.left(now));
        }
    }
    SteadyCountdown countdown;
    for (double now = 0; now < 10; ++now)
        countdown.note(now, 20 - now);
    EXPECT_EQ(countdown.left(15), 5.0) << "it counts on without estimates";
    EXPECT_EQ(countdown.left(30), 0.0);
}

} // namespace

} // namespace TarnwickKit::model
