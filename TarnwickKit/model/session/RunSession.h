#pragma once

#include "OndelCore/benchmark/BenchmarkPlan.h"
#include "OndelCore/benchmark/BenchmarkProgress.h"
#include "OndelCore/benchmark/BenchmarkResult.h"
#include "OndelCore/benchmark/evidence/Remark.h"
#include "TarnwickKit/model/runs/RunRecord.h"
#include "TarnwickKit/model/session/AnalyzerServices.h"
#include "TarnwickKit/model/session/AnalyzerTarget.h"
#include "TarnwickKit/model/session/LiveProgress.h"

#include <QDateTime>
#include <QFuture>
#include <QObject>
#include <QString>

#include <cstdint>
#include <exception>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace TarnwickKit::model {

/// Why a run failed, in words.
struct RunFailure {
    QString message;     ///< one sentence for people
    QString explanation; ///< a second one in plainer words; "" without one

    bool operator==(const RunFailure&) const = default;
};

/// The benchmark run: starting it, the live figures, cancelling, and the record of a finished one.
/// Threads: the one that makes it, which runs an event loop.
/// Owner: a run. The destructor ends a run and waits until the engine has cleaned up. The caller keeps
/// `services` and `target` alive.
class RunSession : public QObject {
    Q_OBJECT

public:
    using Sample = OndelCore::benchmark::ThroughputSample;
    using Temperature = TemperaturePoint;
    static constexpr std::size_t maxLiveSamples = 2000;

    enum class Outcome { finished, cancelled, failed };

    RunSession(const AnalyzerServices& services, AnalyzerTarget& target, QObject* parent = nullptr);
    ~RunSession() override;

    /// Begins a run in the target's folder. Does nothing without a folder, or during a run: two runs would
    /// measure each other.
    void start(const OndelCore::benchmark::BenchmarkPlan& plan);
    Q_SIGNAL void started();
    /// Asks the run to end. It has ended when the engine has cleaned up.
    void cancel();
    /// Cancels. The future finishes on this thread when the run has ended, at once if there is none.
    QFuture<void> cancelAndWait();
    /// Cancels, and blocks until the engine has cleaned up, without any signal: for a process that ends
    /// without its event loop.
    void abandon();

    /// The record of a run that is about to end as finished.
    Q_SIGNAL void recorded(const TarnwickKit::model::RunRecord& record);
    /// `failure`: empty unless the run failed. The next run may begin from here.
    Q_SIGNAL void ended(Outcome outcome, const TarnwickKit::model::RunFailure& failure);

    /// What the last finished run brought.
    const std::optional<OndelCore::benchmark::BenchmarkResult>& result() const { return m_result; }
    void setResult(std::optional<OndelCore::benchmark::BenchmarkResult> result);
    Q_SIGNAL void resultChanged();
    /// What its evidence says about it.
    const std::vector<OndelCore::benchmark::Remark>& remarks() const { return m_remarks; }

    /// The test now running. It stays after a run that was cancelled or failed.
    std::optional<OndelCore::benchmark::BenchmarkTest> liveTest() const { return m_liveTest; }
    Q_SIGNAL void liveTestChanged();
    /// The samples of the current test. Beyond maxLiveSamples every second one is dropped.
    const std::vector<Sample>& liveSamples() const { return m_liveSamples; }
    Q_SIGNAL void liveSamplesChanged();
    /// The temperatures of the hottest drive during the current test: one a second, and each other one.
    /// Empty without a sensor. Thinned as the samples are.
    const std::vector<Temperature>& liveTemperatures() const { return m_liveTemperatures; }
    Q_SIGNAL void liveTemperaturesChanged();
    void clearLiveCurves();
    /// Progress of the current test, in the counts of BenchmarkProgress.
    std::int64_t completedBytes() const { return m_completedBytes; }
    std::int64_t totalBytes() const { return m_totalBytes; }
    /// The same and more, of the whole run.
    const LiveProgress& liveProgress() const { return m_progress; }
    Q_SIGNAL void progressChanged();

    /// Takes one progress event.
    void apply(const OndelCore::benchmark::BenchmarkProgress& progress);

private:
    struct Changes;
    struct Run;

    Changes take(const OndelCore::benchmark::BenchmarkProgress& progress);
    bool isNews(const Temperature& temperature) const;
    void announce(const Changes& changes);
    void setLiveTest(std::optional<OndelCore::benchmark::BenchmarkTest> test);
    void setProgress(std::int64_t completed, std::int64_t total);

    bool isRunning() const;
    void reset();
    std::optional<std::int64_t> fillBytes() const;
    void launch();
    void engineEnded();
    void endRun(const std::function<void()>& settle);
    void finish(const OndelCore::benchmark::BenchmarkResult& result);
    void fail(const std::exception& error);
    void learnFacts();
    double secondsSinceStart() const;
    void logStart() const;
    void logResult(const OndelCore::benchmark::BenchmarkResult& result) const;

    const AnalyzerServices& m_services;
    AnalyzerTarget& m_target;
    /// Kept until the next run begins, so that a late cancel meets an ended run.
    std::shared_ptr<Run> m_run;
    QDateTime m_runStart;

    std::optional<OndelCore::benchmark::BenchmarkResult> m_result;
    std::vector<OndelCore::benchmark::Remark> m_remarks;
    std::optional<OndelCore::benchmark::BenchmarkTest> m_liveTest;
    std::vector<Sample> m_liveSamples;
    std::vector<Temperature> m_liveTemperatures;
    std::int64_t m_completedBytes = 0;
    std::int64_t m_totalBytes = 0;
    LiveProgress m_progress;
};

} // namespace TarnwickKit::model
