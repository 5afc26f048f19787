#include "TarnwickKit/views/runs/StoredRuns.h"

#include <algorithm>
#include <iterator>

namespace TarnwickKit::views {

using model::AnalyzerModel;
using model::RunRecord;

void StoredRuns::setAnalyzer(AnalyzerModel* analyzer) {
    if (!turnTo(m_analyzer, analyzer, this))
        return;
    if (m_analyzer) {
        connect(m_analyzer, &AnalyzerModel::previousRunsChanged, this, &StoredRuns::refresh);
        connect(m_analyzer, &AnalyzerModel::currentRunChanged, this, &StoredRuns::currentRunChanged);
        connect(m_analyzer, &AnalyzerModel::comparisonChanged, this, &StoredRuns::comparisonChanged);
        connect(m_analyzer, &AnalyzerModel::expandedRunIDsChanged, this, [this] { announce(ExpandedRole); });
        connect(m_analyzer, &AnalyzerModel::compareSelectionChanged, this, [this] {
            announce(PickedRole);
            Q_EMIT currentRunPickedChanged();
        });
    }
    refresh();
    Q_EMIT analyzerChanged();
    Q_EMIT currentRunChanged();
    Q_EMIT comparisonChanged();
}

QVariant StoredRuns::data(const QModelIndex& index, int role) const {
    const RunRecord& run = m_runs.at(static_cast<std::size_t>(index.row()));
    switch (role) {
    case RunRole:
        return QVariant::fromValue(run);
    case ExpandedRole:
        return m_analyzer && m_analyzer->expandedRunIDs().contains(run.id);
    case PickedRole:
        return m_analyzer && m_analyzer->compareSelection().contains(run.id);
    default:
        return {};
    }
}

QHash<int, QByteArray> StoredRuns::roleNames() const {
    return {{RunRole, "run"}, {ExpandedRole, "expanded"}, {PickedRole, "picked"}};
}

void StoredRuns::refresh() {
    const std::vector<RunRecord> now = m_analyzer ? m_analyzer->previousRuns() : std::vector<RunRecord>{};
    const int before = count();
    removeAllBut(now);
    for (int row = 0; row < static_cast<int>(now.size()); ++row) {
        const auto at = m_runs.begin() + row;
        const RunRecord& run = now[static_cast<std::size_t>(row)];
        const auto found = std::ranges::find(at, m_runs.end(), run.id, &RunRecord::id);
        if (found == m_runs.end())
            row = insertNew(now, row);
        else
            place(static_cast<int>(found - m_runs.begin()), row, run);
    }
    remove(static_cast<int>(now.size()), count()); // a run whose id occurred twice
    if (count() != before)
        Q_EMIT countChanged();
}

void StoredRuns::removeAllBut(const std::vector<RunRecord>& runs) {
    const auto isGone = [&runs](const RunRecord& run) {
        return std::ranges::find(runs, run.id, &RunRecord::id) == runs.end();
    };
    for (int end = count(); end > 0; --end) {
        int first = end;
        while (first > 0 && isGone(m_runs[static_cast<std::size_t>(first) - 1]))
            --first;
        remove(first, end);
        end = first;
    }
}

void StoredRuns::remove(int first, int end) {
    if (first >= end)
        return;
    beginRemoveRows({}, first, end - 1);
    m_runs.erase(m_runs.begin() + first, m_runs.begin() + end);
    endRemoveRows();
}

/// Inserts the new runs from `first` on, up to the next known one. Answers the last row inserted.
int StoredRuns::insertNew(const std::vector<RunRecord>& now, int first) {
    const auto begin = now.begin() + first;
    const auto end = std::find_if(std::next(begin), now.end(), [this](const RunRecord& run) {
        return std::ranges::find(m_runs, run.id, &RunRecord::id) != m_runs.end();
    });
    const int last = static_cast<int>(end - now.begin()) - 1;
    beginInsertRows({}, first, last);
    m_runs.insert(m_runs.begin() + first, begin, end);
    endInsertRows();
    return last;
}

/// Moves a row up to its new place and updates its run.
void StoredRuns::place(int from, int to, const RunRecord& run) {
    if (from != to) {
        beginMoveRows({}, from, from, {}, to);
        std::rotate(m_runs.begin() + to, m_runs.begin() + from, m_runs.begin() + from + 1);
        endMoveRows();
    }
    RunRecord& held = m_runs[static_cast<std::size_t>(to)];
    if (held != run) {
        held = run;
        Q_EMIT dataChanged(index(to), index(to), {RunRole});
    }
}

void StoredRuns::announce(Role role) {
    if (!m_runs.empty())
        Q_EMIT dataChanged(index(0), index(count() - 1), {role});
}

} // namespace TarnwickKit::views
