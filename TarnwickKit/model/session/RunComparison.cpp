#include "TarnwickKit/model/session/RunComparison.h"

#include "TarnwickKit/model/session/PropertyChange.h"

#include <algorithm>
#include <utility>

namespace TarnwickKit::model {

RunComparison::RunComparison(RunLibrary& library, QObject* parent)
    : QObject(parent)
    , m_library(library) {
    connect(&library.history(), &HistoryStore::runsChanged, this, &RunComparison::forgetMissingRuns);
    connect(&library, &RunLibrary::deleted, this, &RunComparison::forget);
    connect(&library, &RunLibrary::renamed, this, &RunComparison::showTitle);
    connect(&library, &RunLibrary::cleared, this, &RunComparison::reset);
    connect(&library, &RunLibrary::importShown, this, &RunComparison::end);
}

bool RunComparison::canCompare() const {
    const auto& stored = m_library.history().runs();
    const auto& current = m_library.currentRun();
    const bool isStored = current && std::ranges::find(stored, current->id, &RunRecord::id) != stored.end();
    return stored.size() >= (isStored ? 3U : 2U);
}

void RunComparison::setMode(bool mode) { changeProperty(*this, m_mode, mode, &RunComparison::modeChanged); }

void RunComparison::toggleMode() {
    setMode(!m_mode);
    if (!m_mode)
        clearSelection();
}

void RunComparison::toggleSelection(const QUuid& id) {
    if (!m_selection.insert(id).second)
        m_selection.erase(id);
    Q_EMIT selectionChanged();
}

void RunComparison::clearSelection() {
    changeProperty(*this, m_selection, {}, &RunComparison::selectionChanged);
}

std::vector<RunRecord> RunComparison::comparableRuns() const {
    std::vector<RunRecord> runs = m_library.previousRuns();
    if (m_library.currentRun())
        runs.insert(runs.begin(), *m_library.currentRun());
    return runs;
}

void RunComparison::setRuns(std::optional<std::vector<RunRecord>> runs) {
    changeProperty(*this, m_runs, std::move(runs), &RunComparison::runsChanged);
}

void RunComparison::begin() {
    std::vector<RunRecord> runs = comparableRuns();
    std::erase_if(runs, [this](const RunRecord& run) { return !m_selection.contains(run.id); });
    if (runs.size() < 2)
        return;
    setRuns(std::move(runs));
    setMode(false);
    clearSelection();
}

void RunComparison::reset() {
    clearSelection();
    setMode(false);
    end();
}

void RunComparison::forget(const QUuid& id) {
    if (m_selection.contains(id))
        toggleSelection(id);
    if (m_runs && std::ranges::find(*m_runs, id, &RunRecord::id) != m_runs->end())
        end();
}

void RunComparison::forgetMissingRuns() {
    if (std::erase_if(m_selection, [this](const QUuid& id) { return !m_library.contains(id); }) > 0)
        Q_EMIT selectionChanged();
}

void RunComparison::showTitle(const QUuid& id, const std::optional<QString>& title) {
    if (!m_runs)
        return;
    auto runs = *m_runs;
    if (const auto found = std::ranges::find(runs, id, &RunRecord::id); found != runs.end())
        found->customTitle = title;
    setRuns(std::move(runs));
}

} // namespace TarnwickKit::model
