#pragma once

#include "OndelCore/Export.h"
#include "OndelCore/benchmark/BenchmarkPlan.h"
#include "OndelCore/benchmark/BenchmarkProgress.h"
#include "OndelCore/benchmark/BenchmarkResult.h"

#include <cstdint>
#include <deque>
#include <optional>
#include <span>
#include <vector>

namespace TarnwickKit::model {

/// A point of a test's curve. Units: seconds since its measuring began, amounts per second.
struct RatePoint {
    double elapsed = 0;
    double rate = 0;

    bool operator==(const RatePoint&) const = default;
};

/// A drive's temperature. Units: seconds since the test's measuring began, degrees Celsius.
struct TemperaturePoint {
    double elapsed = 0;
    double celsius = 0;

    bool operator==(const TemperaturePoint&) const = default;
};

/// What a run's progress events tell about the running test and the whole run. A test's amount counts bytes
/// in the sequential tests, else operations.
///
/// Threads: one at a time.
class ONDEL_PUBLIC LiveProgress {
public:
    using BenchmarkTest = OndelCore::benchmark::BenchmarkTest;

    /// Where a test of the run stands.
    enum class Stage { toCome, running, done };
    /// A test of the run.
    struct Test {
        BenchmarkTest test;
        Stage stage = Stage::toCome;
        /// Of a test that is done: the sustained rate of a sequential one, else the mean. Units: amounts per
        /// second.
        double result = 0;

        bool operator==(const Test&) const = default;
    };

    /// How long something takes still.
    struct TimeLeft {
        double seconds = 0;
        /// Else that of the running test alone: nothing is known of a test that is still to come.
        bool isOfRun = false;
    };

    /// Begins a run. `fillBytes`: how large the data file of a plan that fills the disk will become, where
    /// that is known.
    void begin(const OndelCore::benchmark::BenchmarkPlan& plan,
               std::optional<std::int64_t> fillBytes = std::nullopt);
    /// Takes the next event. `samples`: those of the test that this event may end.
    void take(const OndelCore::benchmark::BenchmarkProgress& progress,
              std::span<const OndelCore::benchmark::ThroughputSample> samples);

    /// The chosen tests in their order.
    const std::vector<Test>& tests() const { return m_tests; }
    std::optional<BenchmarkTest> running() const { return m_running; }
    double done() const { return m_done; }   ///< amount of the running test
    double total() const { return m_total; } ///< the same; 0 while it is not known

    /// The running test's rate over the last second; absent until two events have told it.
    std::optional<double> rate() const;
    /// The curve of a test whose events tell no rates. Its first rate holds from the start.
    const std::vector<RatePoint>& points() const { return m_points; }

    /// The share of the run that is done, 0 to 1; it never falls. Absent outside a run and while the size of
    /// the data file is not known.
    std::optional<double> fraction() const { return m_fraction; }
    /// As of the last event, by the rates measured in this run.
    std::optional<TimeLeft> timeLeft() const;

private:
    struct Mark {
        double elapsed = 0;
        double done = 0;
    };

    void beginTest(BenchmarkTest next);
    void endTest(std::span<const OndelCore::benchmark::ThroughputSample> samples);
    void mark(const Mark& next);
    void addPoint(const Mark& last, const Mark& next);
    std::optional<double> rateOver(double seconds) const;
    std::optional<double> amountOf(BenchmarkTest test) const;
    std::optional<double> secondsOf(BenchmarkTest test) const;
    std::optional<double> computeFraction() const;

    OndelCore::benchmark::BenchmarkPlan m_plan;
    std::optional<double> m_fileBytes;
    std::vector<Test> m_tests;
    std::optional<BenchmarkTest> m_running;
    double m_done = 0;
    double m_total = 0;
    std::deque<Mark> m_marks; ///< the running test's of the last seconds; the first one is where they begin
    std::vector<RatePoint> m_points;
    std::optional<double> m_fraction;
};

} // namespace TarnwickKit::model
