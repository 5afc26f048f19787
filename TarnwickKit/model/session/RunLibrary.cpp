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
}

void RunLibrary::setCurrentRun(std::optional<RunRecord> run) {
    changeProperty(*this, m_currentRun, std::move(run), &RunLibrary::currentRunChanged);
}

void RunLibrary::setCurrentRunCollapsed(bool collapsed) {
    changeProperty(*this, m_currentRunCollapsed, collapsed, &RunLibrary::currentRunCollapsedChanged);
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
    m_history.deleteRun(id);
    setRunExpanded(id, false);
    Q_EMIT deleted(id);
    if (m_currentRun && m_currentRun->id == id)
        setCurrentRun(std::nullopt);
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
    for (std::size_t run = 0; run < imported.unreadable; ++run)
        Log::app.error("run from another app couldn't be read");
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
