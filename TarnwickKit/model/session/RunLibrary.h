#pragma once

#include "TarnwickKit/model/runs/HistoryStore.h"
#include "TarnwickKit/model/runs/RunFile.h"
#include "TarnwickKit/model/runs/RunRecord.h"

#include <QObject>
#include <QString>
#include <QTimer>
#include <QUuid>

#include <chrono>
#include <filesystem>
#include <optional>
#include <set>
#include <vector>

namespace TarnwickKit::model {

/// The stored runs, the one that the main pane shows, and what people do to them.
/// Threads: the one that makes it, which runs an event loop.
class RunLibrary : public QObject {
    Q_OBJECT

public:
    /// `historyFolder`: see HistoryStore.
    explicit RunLibrary(const std::optional<std::filesystem::path>& historyFolder, QObject* parent = nullptr);

    HistoryStore& history() { return m_history; }
    const HistoryStore& history() const { return m_history; }

    /// The run that the main pane shows.
    const std::optional<RunRecord>& currentRun() const { return m_currentRun; }
    void setCurrentRun(std::optional<RunRecord> run);
    Q_SIGNAL void currentRunChanged();
    bool currentRunCollapsed() const { return m_currentRunCollapsed; }
    void setCurrentRunCollapsed(bool collapsed);
    Q_SIGNAL void currentRunCollapsedChanged();
    /// Shows a stored run. Fails: false, if no run has that id.
    bool show(const QUuid& id);
    /// Shows a run and stores it.
    void add(const RunRecord& run);

    /// The stored runs without the one that is shown, newest first.
    std::vector<RunRecord> previousRuns() const;
    Q_SIGNAL void previousRunsChanged();
    /// Whether a run is stored or shown.
    bool contains(const QUuid& id) const;

    const std::set<QUuid>& expandedRunIDs() const { return m_expandedRunIDs; }
    void setRunExpanded(const QUuid& id, bool expanded);
    Q_SIGNAL void expandedRunIDsChanged();

    void deleteRun(const QUuid& id);
    Q_SIGNAL void deleted(const QUuid& id);
    /// Gives a run the title that RunRecord::customTitleFrom makes of `text`.
    void renameRun(const QUuid& id, const QString& text);
    /// A run has been given a title, here or by another program.
    Q_SIGNAL void renamed(const QUuid& id, const std::optional<QString>& title);
    void clear();
    Q_SIGNAL void cleared();

    /// How long deleted runs can be brought back.
    static constexpr std::chrono::seconds undoTime{8};
    /// The number of deleted runs that can be brought back: all since the first deletion, until there was
    /// none for that long.
    std::size_t undoableRuns() const;
    Q_SIGNAL void undoableRunsChanged();
    /// Brings them back to their places. The run that was shown is shown again, unless there is another one
    /// or a benchmark is running.
    void undoDeletion();
    /// A run is shown again.
    Q_SIGNAL void shownAgain();

    /// See AnalyzerModel.
    bool importRun(const std::filesystem::path& file);
    void importRuns(const std::vector<std::filesystem::path>& files);
    /// Whether imported runs are shown, besides being stored.
    void setShowsImports(bool shows) { m_showsImports = shows; }
    /// Files turned out to be no runs.
    Q_SIGNAL void unreadable(const std::vector<std::filesystem::path>& files);
    /// An imported run or one of the list is shown.
    Q_SIGNAL void importShown();

private:
    /// What was deleted and can be brought back.
    struct Deleted {
        std::vector<HistoryStore::Place> stored; ///< in the order of deletion
        std::set<QUuid> expanded;
        std::optional<RunRecord> shown;
    };

    void importWaitingRuns();
    void takeImported(const ImportedRuns& imported);
    void forgetMissingRuns();
    void keepForUndo(const std::vector<QUuid>& ids);
    void forgetDeleted();
    void showTitle(const QUuid& id, const std::optional<QString>& title);

    HistoryStore m_history;
    Deleted m_deleted;
    QTimer m_undoClock{this};
    std::optional<RunRecord> m_currentRun;
    bool m_currentRunCollapsed = false;
    std::set<QUuid> m_expandedRunIDs;
    std::vector<std::filesystem::path> m_filesToImport;
    bool m_isImporting = false;
    bool m_showsImports = true;
    ImportedRuns m_imported; ///< read, but not yet stored
};

} // namespace TarnwickKit::model
