// The stored runs: which one is on view, which are compared, and what people do to them.

#include "OndelCore/logging/Log.h"
#include "TarnwickKit/model/runs/RunFile.h"
#include "TarnwickKit/model/session/AnalyzerModel.h"
#include "TarnwickKit/model/session/AnswerLater.h"
#include "TarnwickKit/model/session/PropertyChange.h"

#include <algorithm>
#include <utility>

namespace TarnwickKit::model {

using OndelCore::logging::Log;
using OndelCore::logging::LogField;

namespace {

auto hasId(const QUuid& id) {
    return [id](const RunRecord& run) { return run.id == id; };
}

} // namespace

void AnalyzerModel::setCurrentRun(std::optional<RunRecord> run) {
    changeProperty(*this, m_currentRun, std::move(run), &AnalyzerModel::currentRunChanged);
}

void AnalyzerModel::setCurrentRunCollapsed(bool collapsed) {
    changeProperty(*this, m_currentRunCollapsed, collapsed, &AnalyzerModel::currentRunCollapsedChanged);
}

std::vector<RunRecord> AnalyzerModel::previousRuns() const {
    std::vector<RunRecord> runs;
    std::ranges::copy_if(m_history->runs(), std::back_inserter(runs), [this](const RunRecord& run) {
        return !m_currentRun || run.id != m_currentRun->id;
    });
    return runs;
}

bool AnalyzerModel::canCompare() const {
    const bool isStored = m_currentRun && std::ranges::any_of(m_history->runs(), hasId(m_currentRun->id));
    return m_history->runs().size() >= (isStored ? 3U : 2U);
}

void AnalyzerModel::setRunExpanded(const QUuid& id, bool expanded) {
    const bool changed = expanded ? m_expandedRunIDs.insert(id).second : m_expandedRunIDs.erase(id) > 0;
    if (changed)
        Q_EMIT expandedRunIDsChanged();
}

void AnalyzerModel::deleteRun(const QUuid& id) {
    m_history->deleteRun(id);
    setRunExpanded(id, false);
    if (m_compareSelection.contains(id))
        toggleCompareSelection(id);
    if (m_comparison && std::ranges::any_of(*m_comparison, hasId(id)))
        setComparison(std::nullopt);
    if (m_currentRun && m_currentRun->id == id) {
        setCurrentRun(std::nullopt);
        if (m_phase == Phase::Done)
            setPhase(Phase::Idle);
    }
}

void AnalyzerModel::renameRun(const QUuid& id, const QString& text) {
    const std::optional<QString> title = RunRecord::customTitleFrom(text);
    m_history->setTitle(title, id);
    showTitle(id, title);
}

void AnalyzerModel::showTitle(const QUuid& id, const std::optional<QString>& title) {
    if (m_currentRun && m_currentRun->id == id) {
        RunRecord renamed = *m_currentRun;
        renamed.customTitle = title;
        setCurrentRun(std::move(renamed));
    }
    if (m_comparison) {
        auto runs = *m_comparison;
        if (const auto found = std::ranges::find_if(runs, hasId(id)); found != runs.end())
            found->customTitle = title;
        setComparison(std::move(runs));
    }
}

void AnalyzerModel::clearHistory() {
    m_history->clear();
    changeProperty(*this, m_expandedRunIDs, {}, &AnalyzerModel::expandedRunIDsChanged);
    clearCompareSelection();
    setCompareMode(false);
    setComparison(std::nullopt);
    setCurrentRun(std::nullopt);
    if (m_phase == Phase::Done)
        setPhase(Phase::Idle);
}

bool AnalyzerModel::importRun(const std::filesystem::path& file) {
    const ImportedRuns imported = ImportedRuns::from({file});
    takeImported(imported);
    return imported.last.has_value();
}

void AnalyzerModel::importRuns(const std::vector<std::filesystem::path>& files) {
    if (files.empty())
        return;
    m_filesToImport.insert(m_filesToImport.end(), files.begin(), files.end());
    if (!m_isImporting)
        importWaitingRuns();
}

/// What comes while files are being read is read behind them, in the order of the requests, and all of it
/// taken in together.
void AnalyzerModel::importWaitingRuns() {
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

void AnalyzerModel::takeImported(const ImportedRuns& imported) {
    m_history->add(imported.runs);
    const bool isShown = !isRunning();
    for (std::size_t run = 0; run < imported.readable; ++run)
        Log::app.notice("run imported", LogField::bool_("shown", isShown));
    for (std::size_t run = 0; run < imported.unreadable; ++run)
        Log::app.error("run from another app couldn't be read");
    if (!isShown || !imported.last)
        return;
    setCurrentRun(imported.last);
    setCurrentRunCollapsed(false);
    setResult(std::nullopt);
    setComparison(std::nullopt);
    setPhase(Phase::Done);
}

void AnalyzerModel::forgetMissingRuns() {
    const auto isMissing = [this](const QUuid& id) {
        return !(m_currentRun && m_currentRun->id == id) &&
               std::ranges::none_of(m_history->runs(), hasId(id));
    };
    if (std::erase_if(m_expandedRunIDs, isMissing) > 0)
        Q_EMIT expandedRunIDsChanged();
    if (std::erase_if(m_compareSelection, isMissing) > 0)
        Q_EMIT compareSelectionChanged();
}

void AnalyzerModel::setCompareMode(bool mode) {
    changeProperty(*this, m_compareMode, mode, &AnalyzerModel::compareModeChanged);
}

void AnalyzerModel::clearCompareSelection() {
    changeProperty(*this, m_compareSelection, {}, &AnalyzerModel::compareSelectionChanged);
}

void AnalyzerModel::setComparison(std::optional<std::vector<RunRecord>> runs) {
    changeProperty(*this, m_comparison, std::move(runs), &AnalyzerModel::comparisonChanged);
}

void AnalyzerModel::toggleCompareMode() {
    setCompareMode(!m_compareMode);
    if (!m_compareMode)
        clearCompareSelection();
}

void AnalyzerModel::toggleCompareSelection(const QUuid& id) {
    if (!m_compareSelection.insert(id).second)
        m_compareSelection.erase(id);
    Q_EMIT compareSelectionChanged();
}

std::vector<RunRecord> AnalyzerModel::comparableRuns() const {
    std::vector<RunRecord> runs = previousRuns();
    if (m_currentRun)
        runs.insert(runs.begin(), *m_currentRun);
    return runs;
}

void AnalyzerModel::beginComparison() {
    std::vector<RunRecord> runs = comparableRuns();
    std::erase_if(runs, [this](const RunRecord& run) { return !m_compareSelection.contains(run.id); });
    if (runs.size() < 2)
        return;
    setComparison(std::move(runs));
    setCompareMode(false);
    clearCompareSelection();
}

void AnalyzerModel::endComparison() { setComparison(std::nullopt); }

} // namespace TarnwickKit::model
