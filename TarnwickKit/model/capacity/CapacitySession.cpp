#include "TarnwickKit/model/capacity/CapacitySession.h"

#include "OndelCore/benchmark/BenchmarkError.h"
#include "OndelCore/logging/Log.h"
#include "TarnwickKit/model/format/BenchmarkText.h"

#include <QFutureWatcher>
#include <QPromise>

#include <chrono>
#include <exception>
#include <mutex>
#include <stop_token>
#include <system_error>
#include <thread>
#include <utility>

namespace TarnwickKit::model {

using OndelCore::benchmark::Cancelled;
using OndelCore::capacity::CapacityPlan;
using OndelCore::capacity::CapacityProgress;
using OndelCore::capacity::CapacityResult;
using OndelCore::logging::Log;
using OndelCore::logging::LogField;

namespace {

constexpr std::chrono::milliseconds pollPace(200);

} // namespace

/// The latest event of a check. Events between two looks are of no use to anybody.
class CapacitySession::LatestProgress {
public:
    void put(const CapacityProgress& progress) {
        const std::lock_guard guard(m_lock);
        m_latest = progress;
    }
    std::optional<CapacityProgress> take() {
        const std::lock_guard guard(m_lock);
        return std::exchange(m_latest, std::nullopt);
    }

private:
    std::mutex m_lock;
    std::optional<CapacityProgress> m_latest;
};

/// One check from its start to its end.
struct CapacitySession::Check {
    CapacityPlan plan;
    VolumeFacts volume; ///< as when the check began
    QDateTime began;
    bool launched = false;
    bool hasEnded = false;
    std::shared_ptr<LatestProgress> progress = std::make_shared<LatestProgress>();
    std::stop_source stop;
    QFutureWatcher<void> sweep;
    QFutureWatcher<CapacityResult> engine;
    QPromise<void> ended;
    std::jthread worker; ///< joined first: it uses nothing of the rest
};

CapacitySession::CapacitySession(const AnalyzerServices& services, AnalyzerTarget& target, QObject* parent)
    : QObject(parent)
    , m_services(services)
    , m_target(target) {
    m_clock.setInterval(pollPace);
    connect(&m_clock, &QTimer::timeout, this, &CapacitySession::poll);
}

CapacitySession::~CapacitySession() { abandon(); }

bool CapacitySession::isRunning() const { return m_check && !m_check->hasEnded; }

void CapacitySession::start(const CapacityPlan& plan) {
    if (!m_target.folder() || isRunning())
        return;
    m_check = std::make_shared<Check>();
    m_check->plan = plan;
    m_check->plan.folder = *m_target.folder();
    m_check->volume = m_target.facts();
    m_check->began = m_services.now();
    m_check->ended.start();
    m_course.begin(m_check->plan);
    m_last.reset();
    m_failure = {};
    Log::app.notice("capacity check started",
                    LogField::token("connection", m_check->volume.connectionLabel()),
                    LogField::int_("size", plan.size.value_or(0)), LogField::bool_("quick", plan.isQuick));
    Q_EMIT started();
    if (m_check->hasEnded) // a receiver has stopped it
        return;
    // The sweep of a check that was stopped while it waited may end during the next one: it is ignored.
    const auto ifCurrent = [this, current = m_check.get()](void (CapacitySession::*step)()) {
        return [this, current, step] {
            if (m_check.get() == current)
                (this->*step)();
        };
    };
    connect(&m_check->sweep, &QFutureWatcherBase::finished, this, ifCurrent(&CapacitySession::launch));
    connect(&m_check->engine, &QFutureWatcherBase::finished, this, ifCurrent(&CapacitySession::engineEnded));
    if (const auto sweep = m_target.sweep())
        m_check->sweep.setFuture(*sweep);
    else
        launch();
}

void CapacitySession::launch() {
    if (m_check->hasEnded)
        return;
    m_check->launched = true;
    QPromise<CapacityResult> promise;
    promise.start();
    m_check->engine.setFuture(promise.future());
    try {
        m_check->worker = std::jthread([plan = m_check->plan, check = m_services.checkCapacity,
                                        stop = m_check->stop.get_token(), latest = m_check->progress,
                                        promise = std::move(promise)]() mutable {
            try {
                promise.addResult(
                    check(plan, stop, [latest](const CapacityProgress& progress) { latest->put(progress); }));
            } catch (...) {
                promise.setException(std::current_exception());
            }
            promise.finish();
        });
    } catch (const std::system_error& error) {
        return end(Outcome::failed, {describe(error), explain(error)});
    }
    m_clock.start();
}

void CapacitySession::poll() {
    if (const auto progress = m_check->progress->take()) {
        m_course.take(*progress);
        Q_EMIT progressed();
    }
}

void CapacitySession::stop() {
    if (!isRunning())
        return;
    m_check->stop.request_stop();
    if (!m_check->launched)
        end(Outcome::stopped);
}

QFuture<void> CapacitySession::stopAndWait() {
    if (!m_check) {
        QPromise<void> nothing;
        nothing.start();
        nothing.finish();
        return nothing.future();
    }
    stop();
    return m_check->ended.future();
}

void CapacitySession::abandon() {
    if (!isRunning())
        return;
    m_check->hasEnded = true;
    m_clock.stop();
    m_check->stop.request_stop();
    if (m_check->worker.joinable())
        m_check->worker.join();
    m_check->ended.finish();
}

void CapacitySession::engineEnded() {
    if (m_check->hasEnded)
        return;
    poll();
    const std::shared_ptr<Check> check = m_check;
    if (!check->volume.info) // it may have answered meanwhile
        check->volume = m_target.facts();
    const VolumeFacts& volume = check->volume;
    try {
        record(CapacityRecord::from(check->engine.result(), check->plan, volume.info, volume.capabilities,
                                    check->began, m_services.driveIdentity));
    } catch (const Cancelled&) {
        if (const auto& last = m_course.last())
            record(CapacityRecord::fromStopped(*last, check->plan, volume.info, volume.capabilities,
                                               check->began, m_services.driveIdentity));
        return end(Outcome::stopped);
    } catch (const std::exception& error) {
        Log::app.error("capacity check failed", LogField::failure(error));
        return end(Outcome::failed, {describe(error), explain(error)});
    }
    end(Outcome::finished);
}

void CapacitySession::record(const CapacityRecord& check) {
    const CapacityResult& result = check.result;
    Log::app.notice("capacity check ended", LogField::bool_("stopped", check.wasStopped),
                    LogField::int_("verified", result.verified), LogField::int_("wrong", result.wrong),
                    LogField::int_("unreadable", result.unreadable),
                    LogField::bool_("falseCapacity", result.realSize.has_value()));
    m_last = check;
    Q_EMIT recorded(check);
}

/// A receiver of `ended` may begin the next check. This one is held until its own end is complete.
void CapacitySession::end(Outcome outcome, const RunFailure& failure) {
    const std::shared_ptr<Check> check = m_check;
    check->hasEnded = true;
    m_clock.stop();
    if (outcome != Outcome::finished)
        Log::app.notice("capacity check without a result",
                        LogField::bool_("failed", outcome == Outcome::failed));
    m_failure = failure;
    Q_EMIT ended(outcome);
    m_target.refreshSMART();
    check->ended.finish();
    QMetaObject::invokeMethod(this, [check] {}, Qt::QueuedConnection);
}

} // namespace TarnwickKit::model
