#include "TarnwickKit/model/session/RunComparison.h"

#include "TarnwickKit/model/runs/Comparison.h"
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

std::vector<const RunRecord*> RunComparison::listed() const {
    std::vector<const RunRecord*> runs;
    const auto& current = m_library.currentRun();
    if (current)
        runs.push_back(&*current);
    for (const RunRecord& run : m_library.history().runs())
        if (!current || run.id != current->id)
            runs.push_back(&run);
    return runs;
}

std::vector<RunRecord> RunComparison::comparableRuns() const {
    std::vector<RunRecord> runs;
    std::ranges::transform(listed(), std::back_inserter(runs), [](const RunRecord* run) { return *run; });
    return runs;
}

void RunComparison::setRuns(std::optional<std::vector<RunRecord>> runs) {
    changeProperty(*this, m_runs, std::move(runs), &RunComparison::runsChanged);
}

void RunComparison::begin() {
    std::vector<RunRecord> runs = comparableRuns();
    std::erase_if(runs, [this](const RunRecord& run) { return !m_selection.contains(run.id); });
    if (runs.size() >= 2)
        open(std::move(runs));
}

std::optional<RunRecord> RunComparison::lastOfVolume(const QUuid& id) const {
    const auto runs = listed();
    const auto run = std::ranges::find(runs, id, &RunRecord::id);
    if (run == runs.end())
        return std::nullopt;
    const auto last = std::find_if(std::next(run), runs.end(),
                                   [&](const RunRecord* other) { return areOfOneVolume(**run, *other); });
    return last == runs.end() ? std::nullopt : std::optional(**last);
}

void RunComparison::beginWithLast(const QUuid& id) {
    const auto last = lastOfVolume(id);
    const auto runs = listed();
    if (last)
        open({**std::ranges::find(runs, id, &RunRecord::id), *last});
}

void RunComparison::open(std::vector<RunRecord> runs) {
    const std::size_t oldest = runs.size() - 1;
    setRuns(std::move(runs));
    setReference(oldest);
    setMode(false);
    clearSelection();
    Q_EMIT began();
}

void RunComparison::setReference(std::size_t index) {
    if (m_runs && index < m_runs->size())
        changeProperty(*this, m_reference, index, &RunComparison::referenceChanged);
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
