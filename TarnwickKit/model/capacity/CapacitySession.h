#pragma once

#include "OndelCore/Export.h"
#include "OndelCore/capacity/CapacityPlan.h"
#include "TarnwickKit/model/capacity/CapacityCourse.h"
#include "TarnwickKit/model/capacity/CapacityRecord.h"
#include "TarnwickKit/model/session/AnalyzerServices.h"
#include "TarnwickKit/model/session/AnalyzerTarget.h"
#include "TarnwickKit/model/session/RunSession.h"

#include <QFuture>
#include <QObject>
#include <QTimer>

#include <memory>
#include <optional>

namespace TarnwickKit::model {

/// The capacity check: starting it, how it goes on, stopping it, and the record of its end.
/// Threads: the one that makes it, which runs an event loop.
/// Owner: a check. The destructor ends a check and waits until its files are removed. The caller keeps
/// `services` and `target` alive.
class ONDEL_KIT CapacitySession : public QObject {
    Q_OBJECT

public:
    enum class Outcome { finished, stopped, failed };

    CapacitySession(const AnalyzerServices& services, AnalyzerTarget& target, QObject* parent = nullptr);
    ~CapacitySession() override;

    /// Begins a check in the target's folder; the plan's own is ignored. Does nothing without a folder or
    /// during a check.
    void start(const OndelCore::capacity::CapacityPlan& plan);
    Q_SIGNAL void started();
    bool isRunning() const;
    /// Asks the check to end. It has ended when its files are removed.
    void stop();
    /// Stops. The future finishes on this thread when the check has ended, at once if there is none.
    QFuture<void> stopAndWait();
    /// Stops, and blocks until the files are removed, without any signal: for a process that ends without its
    /// event loop.
    void abandon();

    /// How the running check goes on, or the last one went; some times a second.
    const CapacityCourse& course() const { return m_course; }
    Q_SIGNAL void progressed();

    /// The record of the last check, and why it failed; absent and empty if it did not get so far.
    const std::optional<CapacityRecord>& last() const { return m_last; }
    const RunFailure& failure() const { return m_failure; }
    /// A check has ended, and this is its record. A stopped one has a record too.
    Q_SIGNAL void recorded(const TarnwickKit::model::CapacityRecord& check);
    /// Follows it. The next check may begin from here.
    Q_SIGNAL void ended(Outcome outcome);

private:
    class LatestProgress;
    struct Check;

    void launch();
    void poll();
    void engineEnded();
    void record(const CapacityRecord& check);
    void end(Outcome outcome, const RunFailure& failure = {});

    const AnalyzerServices& m_services;
    AnalyzerTarget& m_target;
    std::shared_ptr<Check> m_check; ///< kept until the next one begins
    CapacityCourse m_course;
    std::optional<CapacityRecord> m_last;
    RunFailure m_failure;
    QTimer m_clock;
};

} // namespace TarnwickKit::model
