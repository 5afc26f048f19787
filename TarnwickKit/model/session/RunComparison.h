#pragma once

#include "TarnwickKit/model/runs/RunRecord.h"
#include "TarnwickKit/model/session/RunLibrary.h"

#include <QObject>
#include <QUuid>

#include <optional>
#include <set>
#include <vector>

namespace TarnwickKit::model {

/// Picking runs, and comparing them.
/// Threads: the one that makes it. Owner: the caller keeps `library` alive.
class RunComparison : public QObject {
    Q_OBJECT

public:
    explicit RunComparison(RunLibrary& library, QObject* parent = nullptr);

    /// The history's rows show selection marks instead of their normal actions.
    bool mode() const { return m_mode; }
    void toggleMode();
    Q_SIGNAL void modeChanged();
    /// There are at least two runs to pick from.
    bool canCompare() const { return listed().size() >= 2; }

    const std::set<QUuid>& selection() const { return m_selection; }
    void toggleSelection(const QUuid& id);
    Q_SIGNAL void selectionChanged();

    /// The current run, then the previous ones.
    std::vector<RunRecord> comparableRuns() const;
    /// The runs being compared; absent without a comparison.
    const std::optional<std::vector<RunRecord>>& runs() const { return m_runs; }
    /// Compares the selected runs, in the order of comparableRuns. Does nothing with fewer than two.
    void begin();
    /// The last run of the same volume before a run, in the order of comparableRuns.
    std::optional<RunRecord> lastOfVolume(const QUuid& id) const;
    /// Compares a run with that one, which becomes the reference. Does nothing without one.
    void beginWithLast(const QUuid& id);
    Q_SIGNAL void began();
    void end() { setRuns(std::nullopt); }
    Q_SIGNAL void runsChanged();

    /// The index of the run that differences are relative to. The oldest one, until another is chosen.
    std::size_t reference() const { return m_reference; }
    /// Does nothing for an index beyond the runs.
    void setReference(std::size_t index);
    Q_SIGNAL void referenceChanged();

private:
    /// Those of comparableRuns; valid until a run changes.
    std::vector<const RunRecord*> listed() const;
    void open(std::vector<RunRecord> runs);
    void setMode(bool mode);
    void setRuns(std::optional<std::vector<RunRecord>> runs);
    void clearSelection();
    void reset();
    void forget(const QUuid& id);
    void forgetMissingRuns();
    void showTitle(const QUuid& id, const std::optional<QString>& title);

    RunLibrary& m_library;
    bool m_mode = false;
    std::set<QUuid> m_selection;
    std::optional<std::vector<RunRecord>> m_runs;
    std::size_t m_reference = 0;
};

} // namespace TarnwickKit::model
