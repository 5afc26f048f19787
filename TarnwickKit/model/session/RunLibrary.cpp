#include "TarnwickKit/model/session/RunLibrary.h"

#include "OndelCore/logging/Log.h"
#include "TarnwickKit/model/session/AnswerLater.h"
#include "TarnwickKit/model/session/PropertyChange.h"

#include <algorithm>
#include <utility>

namespace TarnwickKit::model {

using OndelCore::logging::Log;
using OndelCore::logging::LogField;

RunLibrary::RunLibrary(const std::optional<std::filesystem::path>& historyFolder, QObject* parent)
    : QObject(parent)
    , m_history(historyFolder) {
    connect(&m_history, &HistoryStore::runsChanged, this, &RunLibrary::previousRunsChanged);
    connect(&m_history, &HistoryStore::runsChanged, this, &RunLibrary::forgetMissingRuns);
    connect(&m_history, &HistoryStore::renamedElsewhere, this, &RunLibrary::showTitle);
    connect(this, &RunLibrary::currentRunChanged, this, &RunLibrary::previousRunsChanged);
    m_undoClock.setSingleShot(true);
    m_undoClock.setInterval(undoTime);
    connect(&m_undoClock, &QTimer::timeout, this, &RunLibrary::forgetDeleted);
}

void RunLibrary::setCurrentRun(std::optional<RunRecord> run) {
    changeProperty(*this, m_currentRun, std::move(run), &RunLibrary::currentRunChanged);
}

void RunLibrary::setCurrentRunCollapsed(bool collapsed) {
    changeProperty(*this, m_currentRunCollapsed, collapsed, &RunLibrary::currentRunCollapsedChanged);
}

bool RunLibrary::show(const QUuid& id) {
    m_history.refresh(); // another program may have saved it
    const bool isShown = m_currentRun && m_currentRun->id == id;
    const auto stored = m_history.placeOf(id);
    if (!isShown && !stored)
        return false;
    setCurrentRunCollapsed(false);
    if (isShown)
        return true;
    setCurrentRun(stored->run);
    Q_EMIT importShown();
    return true;
}

void RunLibrary::add(const RunRecord& run) {
    setCurrentRun(run);
    setCurrentRunCollapsed(false);
    m_history.add(run);
}

std::vector<RunRecord> RunLibrary::previousRuns() const {
    std::vector<RunRecord> runs;
    std::ranges::copy_if(m_history.runs(), std::back_inserter(runs), [this](const RunRecord& run) {
        return !m_currentRun || run.id != m_currentRun->id;
    });
    return runs;
}

bool RunLibrary::contains(const QUuid& id) const {
    return (m_currentRun && m_currentRun->id == id) ||
           std::ranges::find(m_history.runs(), id, &RunRecord::id) != m_history.runs().end();
}

void RunLibrary::setRunExpanded(const QUuid& id, bool expanded) {
    const bool changed = expanded ? m_expandedRunIDs.insert(id).second : m_expandedRunIDs.erase(id) > 0;
    if (changed)
        Q_EMIT expandedRunIDsChanged();
}

void RunLibrary::deleteRun(const QUuid& id) {
    keepForUndo({id});
    m_history.deleteRun(id);
    setRunExpanded(id, false);
    Q_EMIT deleted(id);
    if (m_currentRun && m_currentRun->id == id)
        setCurrentRun(std::nullopt);
}

void RunLibrary::keepForUndo(const std::vector<QUuid>& ids) {
    const std::size_t before = undoableRuns();
    for (const QUuid& id : ids) {
        if (const auto place = m_history.placeOf(id))
            m_deleted.stored.push_back(*place);
        if (m_expandedRunIDs.contains(id))
            m_deleted.expanded.insert(id);
        if (m_currentRun && m_currentRun->id == id)
            m_deleted.shown = m_currentRun;
    }
    m_undoClock.start();
    if (undoableRuns() != before)
        Q_EMIT undoableRunsChanged();
}

void RunLibrary::forgetDeleted() {
    m_undoClock.stop();
    m_deleted = {};
    Q_EMIT undoableRunsChanged();
}

std::size_t RunLibrary::undoableRuns() const {
    const bool isStored =
        m_deleted.shown && std::ranges::any_of(m_deleted.stored, [this](const HistoryStore::Place& place) {
            return place.run.id == m_deleted.shown->id;
        });
    return m_deleted.stored.size() + (m_deleted.shown && !isStored ? 1 : 0);
}

void RunLibrary::undoDeletion() {
    if (undoableRuns() == 0)
        return;
    const Deleted deleted = m_deleted;
    forgetDeleted();
    // Before its row is: a run that is shown has none.
    const bool showsAgain = deleted.shown && !m_currentRun && m_showsImports;
    if (showsAgain)
        setCurrentRun(deleted.shown);
    m_expandedRunIDs.insert(deleted.expanded.begin(), deleted.expanded.end());
    m_history.restore(deleted.stored);
    Q_EMIT expandedRunIDsChanged();
    if (showsAgain)
        Q_EMIT shownAgain();
}

void RunLibrary::renameRun(const QUuid& id, const QString& text) {
    const std::optional<QString> title = RunRecord::customTitleFrom(text);
    m_history.setTitle(title, id);
    showTitle(id, title);
}

void RunLibrary::showTitle(const QUuid& id, const std::optional<QString>& title) {
    if (m_currentRun && m_currentRun->id == id) {
        RunRecord run = *m_currentRun;
        run.customTitle = title;
        setCurrentRun(std::move(run));
    }
    Q_EMIT renamed(id, title);
}

void RunLibrary::clear() {
    std::vector<QUuid> ids;
    std::ranges::transform(m_history.runs(), std::back_inserter(ids), &RunRecord::id);
    if (m_currentRun && !m_history.placeOf(m_currentRun->id))
        ids.push_back(m_currentRun->id);
    keepForUndo(ids);
    m_history.clear();
    changeProperty(*this, m_expandedRunIDs, {}, &RunLibrary::expandedRunIDsChanged);
    Q_EMIT cleared();
    setCurrentRun(std::nullopt);
}

bool RunLibrary::importRun(const std::filesystem::path& file) {
    const ImportedRuns imported = ImportedRuns::from({file});
    takeImported(imported);
    return imported.last.has_value();
}

void RunLibrary::importRuns(const std::vector<std::filesystem::path>& files) {
    if (files.empty())
        return;
    m_filesToImport.insert(m_filesToImport.end(), files.begin(), files.end());
    if (!m_isImporting)
        importWaitingRuns();
}

/// Files that are requested while others are being read follow them, and all are stored together.
void RunLibrary::importWaitingRuns() {
    m_isImporting = true;
    answerLater(
        this, [files = std::exchange(m_filesToImport, {})] { return ImportedRuns::from(files); },
        [this](const ImportedRuns& imported) {
            m_imported.append(imported);
            m_isImporting = !m_filesToImport.empty();
            if (m_isImporting)
                importWaitingRuns();
            else
                takeImported(std::exchange(m_imported, {}));
        });
}

void RunLibrary::takeImported(const ImportedRuns& imported) {
    m_history.add(imported.runs);
    const bool isShown = m_showsImports;
    for (std::size_t run = 0; run < imported.readable; ++run)
        Log::app.notice("run imported", LogField::bool_("shown", isShown));
    for (std::size_t run = 0; run < imported.unreadable.size(); ++run)
        Log::app.error("run from another app couldn't be read");
    if (!imported.unreadable.empty())
        Q_EMIT unreadable(imported.unreadable);
    if (!isShown || !imported.last)
        return;
    setCurrentRun(imported.last);
    setCurrentRunCollapsed(false);
    Q_EMIT importShown();
}

void RunLibrary::forgetMissingRuns() {
    if (std::erase_if(m_expandedRunIDs, [this](const QUuid& id) { return !contains(id); }) > 0)
        Q_EMIT expandedRunIDsChanged();
}

} // namespace TarnwickKit::model
