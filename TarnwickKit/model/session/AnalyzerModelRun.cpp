// The life of one run: starting it, feeding the live display, cancelling, and what the end does.

#include "OndelCore/benchmark/BenchmarkError.h"
#include "OndelCore/logging/Log.h"
#include "TarnwickKit/model/format/Format.h"
#include "TarnwickKit/model/session/AnalyzerRun.h"
#include "TarnwickKit/model/session/PropertyChange.h"

#include <cmath>
#include <system_error>
#include <utility>

namespace TarnwickKit::model {

using OndelCore::benchmark::BenchmarkPlan;
using OndelCore::benchmark::BenchmarkProgress;
using OndelCore::benchmark::BenchmarkResult;
using OndelCore::benchmark::BenchmarkTest;
using OndelCore::benchmark::Cancelled;
using OndelCore::logging::Log;
using OndelCore::logging::LogField;

namespace {

/// The figures take a failed flush for one that was made; the log does not.
void logFlushFailures(const BenchmarkResult& result) {
    for (const auto& failure : result.flushFailures())
        Log::app.error("benchmark flush failed",
                       LogField::token("after", failure.test ? rawValue(*failure.test) : "preparation"),
                       LogField::failure(std::system_error(failure.error)));
}

/// The engine's answer. Fails: throws what the engine threw, Cancelled if there is neither.
BenchmarkResult answer(QFuture<BenchmarkResult> future) {
    future.waitForFinished();
    if (future.resultCount() == 0)
        throw Cancelled();
    return future.result();
}

} // namespace

AnalyzerModel::Run::Run(AnalyzerModel& model, BenchmarkPlan runPlan, std::filesystem::path runTarget)
    : plan(std::move(runPlan))
    , target(std::move(runTarget))
    , volume(model.m_volume)
    , stream([&model](const ProgressStream::Batch& batch) {
        Changes changes;
        for (const BenchmarkProgress& progress : batch)
            changes |= model.take(progress);
        model.announce(changes);
    }) {
    ended.start();
}

AnalyzerModel::~AnalyzerModel() { abandonRun(); }

void AnalyzerModel::abandonRun() {
    if (!m_run || m_run->hasEnded)
        return;
    m_run->hasEnded = true;
    m_run->stream.cancel();
    m_run->stop.request_stop();
    try {
        m_run->engine.waitForFinished();
    } catch (...) {
        // However the run ended: nobody is left to be told.
    }
    m_run->ended.finish();
}

void AnalyzerModel::start() {
    // Two runs at once would measure each other.
    if (!m_targetFolder || isRunning())
        return;
    auto run = std::make_shared<Run>(*this, makePlan(), *m_targetFolder);
    setPhase(Phase::Running);
    setResult(std::nullopt);
    setCurrentRun(std::nullopt);
    clearLiveSamples();
    setLiveTest(std::nullopt);
    setProgress(0, 0);
    m_runStart = m_services.now();
    m_run = run;
    logStart();

    // A run that was cancelled while it waited for its sweep may still hear of it; the one here is another
    // then.
    const auto ifCurrent = [this, current = run.get()](void (AnalyzerModel::*step)()) {
        return [this, current, step] {
            if (m_run.get() == current)
                (this->*step)();
        };
    };
    connect(&run->sweep, &QFutureWatcherBase::finished, this, ifCurrent(&AnalyzerModel::launch));
    connect(&run->engine, &QFutureWatcherBase::finished, this, ifCurrent(&AnalyzerModel::engineEnded));
    const auto sweep = m_sweeps.find(run->target);
    if (sweep == m_sweeps.end() || sweep->second.isFinished())
        launch();
    else
        run->sweep.setFuture(sweep->second);
}

void AnalyzerModel::launch() {
    if (m_run->hasEnded)
        return;
    m_run->launched = true;
    try {
        m_run->engine.setFuture(m_services.runBenchmark(m_run->plan, m_run->target, m_run->stream.sender(),
                                                        m_run->stop.get_token()));
    } catch (const std::exception& error) {
        endRun([&] { fail(error); });
    }
}

void AnalyzerModel::cancel() {
    if (!m_run || m_run->hasEnded)
        return;
    m_run->stop.request_stop();
    if (!m_run->launched)
        endRun([this] { fail(Cancelled()); });
}

QFuture<void> AnalyzerModel::cancelAndWait() {
    if (!m_run) {
        QPromise<void> nothing;
        nothing.start();
        nothing.finish();
        return nothing.future();
    }
    cancel();
    return m_run->ended.future();
}

void AnalyzerModel::engineEnded() {
    std::optional<BenchmarkResult> result;
    try {
        result = answer(m_run->engine.future());
    } catch (const std::exception& error) {
        endRun([&] { fail(error); });
        return;
    }
    endRun([&] { finish(std::move(*result)); });
}

/// A view may begin the next run as soon as the phase allows it: this one is held until its own end is
/// through.
void AnalyzerModel::endRun(const std::function<void()>& settle) {
    const std::shared_ptr<Run> run = m_run;
    run->hasEnded = true;
    settle();
    run->stream.cancel();
    run->ended.finish();
    QMetaObject::invokeMethod(this, [run] {}, Qt::QueuedConnection);
}

void AnalyzerModel::finish(BenchmarkResult result) {
    const auto secondsSinceStart = [this] {
        return static_cast<double>(m_runStart.msecsTo(m_services.now())) / 1000;
    };
    setResult(result);
    const double duration = secondsSinceStart();
    learnAbilities(result.tried);
    if (!m_run->volume.info) // a volume that has just been measured answers, if it was asked at all
        m_volumeQuestion.awaitAnswer(m_services.volumePatience);
    const RunRecord record = RunRecord::from(result, m_run->volume.info, m_run->volume.capabilities,
                                             m_runStart, m_run->plan, duration, m_services.driveIdentity);
    setCurrentRun(record);
    setCurrentRunCollapsed(false);
    m_history->add(record);
    const auto megabytes = [](const auto& test) {
        return test ? wholeNumber(std::trunc(test->sustainedBytesPerSecond() / 1e6)) : 0;
    };
    Log::app.notice("benchmark finished", LogField::ms("took", secondsSinceStart() * 1000),
                    LogField::int_("writeMBps", megabytes(result.sequentialWrite)),
                    LogField::int_("readMBps", megabytes(result.sequentialRead)));
    logFlushFailures(result);
    setPhase(Phase::Done);
    setLiveTest(std::nullopt);
    refreshSMART();
}

void AnalyzerModel::fail(const std::exception& error) {
    if (dynamic_cast<const Cancelled*>(&error)) {
        Log::app.notice("benchmark cancelled");
        setPhase(Phase::Idle);
    } else {
        Log::app.error("benchmark failed", LogField::failure(error));
        setPhase(Phase::Failed, describe(error));
    }
}

void AnalyzerModel::logStart() const {
    const BenchmarkPlan& plan = m_run->plan;
    Log::app.notice(
        "benchmark started",
        LogField::token("fs",
                        m_run->volume.capabilities ? m_run->volume.capabilities->filesystemType : "unknown"),
        LogField::token("connection", connectionLabel()),
        LogField::int_("tests", static_cast<std::int64_t>(plan.tests.size())),
        LogField::bool_("fillDisk", plan.size.asFillDisk() != nullptr),
        LogField::int_("writeBlock", plan.writeBlockSize), LogField::bool_("bypassCache", plan.bypassCache));
}

void AnalyzerModel::apply(const BenchmarkProgress& progress) { announce(take(progress)); }

AnalyzerModel::Changes AnalyzerModel::take(const BenchmarkProgress& progress) {
    Changes changes;
    if (m_liveTest != progress.test) {
        m_liveTest = progress.test;
        m_liveSamples.clear();
        changes.liveTest = changes.liveSamples = true;
    }
    m_completedBytes = progress.completedBytes;
    m_totalBytes = progress.totalBytes;
    changes.progress = true;
    if (progress.instantBytesPerSecond > 0) {
        m_liveSamples.push_back({progress.elapsed, progress.instantBytesPerSecond});
        changes.liveSamples = true;
    }
    if (m_liveSamples.size() > maxLiveSamples) {
        std::size_t kept = 0;
        for (std::size_t index = 0; index < m_liveSamples.size(); index += 2)
            m_liveSamples[kept++] = m_liveSamples[index];
        m_liveSamples.resize(kept);
    }
    return changes;
}

void AnalyzerModel::announce(const Changes& changes) {
    if (changes.liveTest)
        Q_EMIT liveTestChanged();
    if (changes.liveSamples)
        Q_EMIT liveSamplesChanged();
    if (changes.progress)
        Q_EMIT progressChanged();
}

void AnalyzerModel::setPhase(Phase phase, const QString& failureMessage) {
    if (m_phase == phase && m_failureMessage == failureMessage)
        return;
    m_phase = phase;
    m_failureMessage = failureMessage;
    Q_EMIT phaseChanged();
    announceCanRun();
}

void AnalyzerModel::setLiveTest(std::optional<BenchmarkTest> test) {
    changeProperty(*this, m_liveTest, test, &AnalyzerModel::liveTestChanged);
}

void AnalyzerModel::setResult(std::optional<BenchmarkResult> result) {
    changeProperty(*this, m_result, std::move(result), &AnalyzerModel::resultChanged);
}

void AnalyzerModel::clearLiveSamples() {
    changeProperty(*this, m_liveSamples, {}, &AnalyzerModel::liveSamplesChanged);
}

void AnalyzerModel::setProgress(std::int64_t completed, std::int64_t total) {
    const bool changed = m_completedBytes != completed || m_totalBytes != total;
    m_completedBytes = completed;
    m_totalBytes = total;
    announce({.progress = changed});
}

} // namespace TarnwickKit::model
