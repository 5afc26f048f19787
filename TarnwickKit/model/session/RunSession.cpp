#include "TarnwickKit/model/session/RunSession.h"

#include "OndelCore/benchmark/BenchmarkError.h"
#include "OndelCore/logging/Log.h"
#include "TarnwickKit/model/format/BenchmarkText.h"
#include "TarnwickKit/model/format/Format.h"
#include "TarnwickKit/model/session/ProgressStream.h"
#include "TarnwickKit/model/session/PropertyChange.h"

#include <QFutureWatcher>
#include <QPromise>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <stop_token>
#include <string>
#include <system_error>
#include <utility>

namespace TarnwickKit::model {

using OndelCore::benchmark::BenchmarkPlan;
using OndelCore::benchmark::BenchmarkProgress;
using OndelCore::benchmark::BenchmarkResult;
using OndelCore::benchmark::BenchmarkTest;
using OndelCore::benchmark::Cancelled;
using OndelCore::benchmark::Remark;
using OndelCore::benchmark::RemarkCode;
using OndelCore::logging::Log;
using OndelCore::logging::LogField;

namespace {

/// Drops every second sample if there are too many.
template <typename LiveSample>
void limit(std::vector<LiveSample>& samples) {
    if (samples.size() <= RunSession::maxLiveSamples)
        return;
    std::size_t kept = 0;
    for (std::size_t index = 0; index < samples.size(); index += 2)
        samples[kept++] = samples[index];
    samples.resize(kept);
}

/// The codes of a run's remarks, each once: "fromMemory,virtualDisk".
std::string codes(const std::vector<Remark>& remarks) {
    std::vector<RemarkCode> named;
    std::string list;
    for (const Remark& remark : remarks) {
        if (std::ranges::find(named, remark.code) != named.end())
            continue;
        named.push_back(remark.code);
        list.append(list.empty() ? "" : ",").append(rawValue(remark.code));
    }
    return list;
}

/// The engine's answer. Fails: throws what the engine threw; Cancelled if there is neither.
BenchmarkResult answer(QFuture<BenchmarkResult> future) {
    future.waitForFinished();
    if (future.resultCount() == 0)
        throw Cancelled();
    return future.result();
}

} // namespace

/// Which properties progress events have changed.
struct RunSession::Changes {
    bool liveTest = false;
    bool liveSamples = false;
    bool liveTemperatures = false;
    bool progress = false;

    Changes& operator|=(const Changes& other) {
        liveTest |= other.liveTest;
        liveSamples |= other.liveSamples;
        liveTemperatures |= other.liveTemperatures;
        progress |= other.progress;
        return *this;
    }
};

/// One run from its start to its end.
struct RunSession::Run {
    Run(RunSession& session, BenchmarkPlan runPlan);

    const BenchmarkPlan plan;
    const std::filesystem::path folder;
    VolumeFacts volume; ///< as when the run began; facts that were absent then come in later
    std::stop_source stop;
    bool launched = false; ///< the engine has been called
    bool hasEnded = false; ///< the next one may begin
    ProgressStream stream;
    QFutureWatcher<void> sweep;
    QFutureWatcher<BenchmarkResult> engine;
    QPromise<void> ended;
};

RunSession::Run::Run(RunSession& session, BenchmarkPlan runPlan)
    : plan(std::move(runPlan))
    , folder(*session.m_target.folder())
    , volume(session.m_target.facts())
    , stream([&session](const ProgressStream::Batch& batch) {
        Changes changes;
        for (const BenchmarkProgress& progress : batch)
            changes |= session.take(progress);
        session.announce(changes);
    }) {
    ended.start();
}

RunSession::RunSession(const AnalyzerServices& services, AnalyzerTarget& target, QObject* parent)
    : QObject(parent)
    , m_services(services)
    , m_target(target)
    , m_runStart(services.now()) {
    connect(&target, &AnalyzerTarget::factsTaken, this, &RunSession::learnFacts);
}

RunSession::~RunSession() { abandon(); }

void RunSession::abandon() {
    if (!isRunning())
        return;
    m_run->hasEnded = true;
    m_run->stream.cancel();
    m_run->stop.request_stop();
    try {
        m_run->engine.waitForFinished();
    } catch (...) {
        // However the run ended, nobody is told.
    }
    m_run->ended.finish();
}

void RunSession::start(const BenchmarkPlan& plan) {
    if (!m_target.folder() || isRunning())
        return;
    const auto run = std::make_shared<Run>(*this, plan);
    m_run = run;
    m_progress.begin(plan, fillBytes());
    Q_EMIT started();
    reset();
    if (run->hasEnded) // a receiver has cancelled it
        return;
    m_runStart = m_services.now();
    logStart();

    // The sweep of a run that was cancelled while it waited may end during the next run: it is ignored.
    const auto ifCurrent = [this, current = run.get()](void (RunSession::*step)()) {
        return [this, current, step] {
            if (m_run.get() == current)
                (this->*step)();
        };
    };
    connect(&run->sweep, &QFutureWatcherBase::finished, this, ifCurrent(&RunSession::launch));
    connect(&run->engine, &QFutureWatcherBase::finished, this, ifCurrent(&RunSession::engineEnded));
    if (const auto sweep = m_target.sweep())
        run->sweep.setFuture(*sweep);
    else
        launch();
}

bool RunSession::isRunning() const { return m_run && !m_run->hasEnded; }

void RunSession::reset() {
    m_remarks.clear();
    setResult(std::nullopt);
    clearLiveCurves();
    setLiveTest(std::nullopt);
    setProgress(0, 0);
}

/// About how much a run that fills the disk will write.
std::optional<std::int64_t> RunSession::fillBytes() const {
    const auto* fillDisk = m_run->plan.size.asFillDisk();
    const auto& info = m_run->volume.info;
    return fillDisk && info ? std::optional(info->rawAvailable - fillDisk->leaveFree) : std::nullopt;
}

void RunSession::launch() {
    if (m_run->hasEnded)
        return;
    m_run->launched = true;
    try {
        m_run->engine.setFuture(m_services.runBenchmark(m_run->plan, m_run->folder, m_run->stream.sender(),
                                                        m_run->stop.get_token()));
    } catch (const std::exception& error) {
        endRun([&] { fail(error); });
    }
}

void RunSession::cancel() {
    if (!isRunning())
        return;
    m_run->stop.request_stop();
    if (!m_run->launched)
        endRun([this] { fail(Cancelled()); });
}

QFuture<void> RunSession::cancelAndWait() {
    if (!m_run) {
        QPromise<void> nothing;
        nothing.start();
        nothing.finish();
        return nothing.future();
    }
    cancel();
    return m_run->ended.future();
}

void RunSession::engineEnded() {
    std::optional<BenchmarkResult> result;
    try {
        result = answer(m_run->engine.future());
    } catch (const std::exception& error) {
        endRun([&] { fail(error); });
        return;
    }
    endRun([&] { finish(*result); });
}

/// A receiver of `ended` may begin the next run. This one is held until its own end is complete.
void RunSession::endRun(const std::function<void()>& settle) {
    const std::shared_ptr<Run> run = m_run;
    settle();
    run->stream.cancel();
    run->ended.finish();
    QMetaObject::invokeMethod(this, [run] {}, Qt::QueuedConnection);
}

void RunSession::finish(const BenchmarkResult& result) {
    const std::shared_ptr<Run> run = m_run;
    m_remarks = remarksOn(run->plan, result);
    setResult(result);
    const double duration = secondsSinceStart();
    m_target.learn(result.tried);
    if (!run->volume.info) // a volume that was just measured answers, if it was asked at all
        m_target.awaitFacts();
    const RunRecord record = RunRecord::from(result, run->volume.info, run->volume.capabilities, m_runStart,
                                             run->plan, duration, m_services.driveIdentity);
    Q_EMIT recorded(record);
    logResult(result);
    if (const std::string remarks = codes(*record.remarks); !remarks.empty())
        Log::app.notice("benchmark remarks", LogField::token("codes", remarks));
    run->hasEnded = true;
    Q_EMIT ended(Outcome::finished, {});
    setLiveTest(std::nullopt);
    m_target.refreshSMART();
}

void RunSession::fail(const std::exception& error) {
    m_run->hasEnded = true;
    if (dynamic_cast<const Cancelled*>(&error)) {
        Log::app.notice("benchmark cancelled");
        Q_EMIT ended(Outcome::cancelled, {});
    } else {
        Log::app.error("benchmark failed", LogField::failure(error));
        Q_EMIT ended(Outcome::failed, {describe(error), explain(error)});
    }
}

/// The target does not change during a run, and the facts of an ended run are not used.
void RunSession::learnFacts() {
    if (!m_run)
        return;
    if (!m_run->volume.info)
        m_run->volume.info = m_target.facts().info;
    if (!m_run->volume.capabilities)
        m_run->volume.capabilities = m_target.facts().capabilities;
}

double RunSession::secondsSinceStart() const {
    return static_cast<double>(m_runStart.msecsTo(m_services.now())) / 1000;
}

void RunSession::logStart() const {
    const BenchmarkPlan& plan = m_run->plan;
    const VolumeFacts& volume = m_run->volume;
    Log::app.notice(
        "benchmark started",
        LogField::token("fs", volume.capabilities ? volume.capabilities->filesystemType : "unknown"),
        LogField::token("connection", volume.connectionLabel()),
        LogField::int_("tests", static_cast<std::int64_t>(plan.tests.size())),
        LogField::bool_("fillDisk", plan.size.asFillDisk() != nullptr),
        LogField::int_("writeBlock", plan.writeBlockSize), LogField::bool_("bypassCache", plan.bypassCache));
}

/// The figures treat a failed flush as a successful one; the log tells.
void RunSession::logResult(const BenchmarkResult& result) const {
    const auto megabytes = [](const auto& test) {
        return test ? wholeNumber(std::trunc(test->sustainedBytesPerSecond() / 1e6)) : 0;
    };
    Log::app.notice("benchmark finished", LogField::ms("took", secondsSinceStart() * 1000),
                    LogField::int_("writeMBps", megabytes(result.sequentialWrite)),
                    LogField::int_("readMBps", megabytes(result.sequentialRead)));
    for (const auto& failure : result.flushFailures())
        Log::app.error("benchmark flush failed",
                       LogField::token("after", failure.test ? rawValue(*failure.test) : "preparation"),
                       LogField::failure(std::system_error(failure.error)));
}

void RunSession::apply(const BenchmarkProgress& progress) { announce(take(progress)); }

RunSession::Changes RunSession::take(const BenchmarkProgress& progress) {
    Changes changes;
    m_progress.take(progress, m_liveSamples);
    if (m_liveTest != progress.test) {
        m_liveTest = progress.test;
        m_liveSamples.clear();
        changes.liveTest = changes.liveSamples = true;
        changes.liveTemperatures = !m_liveTemperatures.empty();
        m_liveTemperatures.clear();
    }
    m_completedBytes = progress.completedBytes;
    m_totalBytes = progress.totalBytes;
    changes.progress = true;
    if (progress.instantBytesPerSecond > 0) {
        m_liveSamples.push_back({progress.elapsed, progress.instantBytesPerSecond});
        changes.liveSamples = true;
    }
    limit(m_liveSamples);
    if (progress.celsius && isNews({progress.elapsed, *progress.celsius})) {
        m_liveTemperatures.push_back({progress.elapsed, *progress.celsius});
        limit(m_liveTemperatures);
        changes.liveTemperatures = true;
    }
    return changes;
}

/// Progress comes far more often than sensors are read.
bool RunSession::isNews(const Temperature& temperature) const {
    if (m_liveTemperatures.empty())
        return true;
    const Temperature& last = m_liveTemperatures.back();
    return temperature.celsius != last.celsius || temperature.elapsed >= last.elapsed + 1;
}

void RunSession::announce(const Changes& changes) {
    if (changes.liveTest)
        Q_EMIT liveTestChanged();
    if (changes.liveSamples)
        Q_EMIT liveSamplesChanged();
    if (changes.liveTemperatures)
        Q_EMIT liveTemperaturesChanged();
    if (changes.progress)
        Q_EMIT progressChanged();
}

void RunSession::setLiveTest(std::optional<BenchmarkTest> test) {
    changeProperty(*this, m_liveTest, test, &RunSession::liveTestChanged);
}

void RunSession::setResult(std::optional<BenchmarkResult> result) {
    changeProperty(*this, m_result, std::move(result), &RunSession::resultChanged);
}

void RunSession::clearLiveCurves() {
    changeProperty(*this, m_liveSamples, {}, &RunSession::liveSamplesChanged);
    changeProperty(*this, m_liveTemperatures, {}, &RunSession::liveTemperaturesChanged);
}

void RunSession::setProgress(std::int64_t completed, std::int64_t total) {
    const bool changed = m_completedBytes != completed || m_totalBytes != total;
    m_completedBytes = completed;
    m_totalBytes = total;
    announce({.progress = changed});
}

} // namespace TarnwickKit::model
