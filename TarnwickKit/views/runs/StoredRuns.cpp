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
        connect(m_analyzer, &AnalyzerModel::compareSelectionChanged, this, [this] { announce(PickedRole); });
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

void StoredRuns::removeAllBut(const std::vector<RunRecord>& runs) {
    for (int row = count() - 1; row >= 0; --row) {
        const QUuid id = m_runs[static_cast<std::size_t>(row)].id;
        if (std::ranges::find(runs, id, &RunRecord::id) != runs.end())
            continue;
        beginRemoveRows({}, row, row);
        m_runs.erase(m_runs.begin() + row);
        endRemoveRows();
    }
}

void StoredRuns::refresh() {
    std::vector<RunRecord> now = m_analyzer ? m_analyzer->previousRuns() : std::vector<RunRecord>{};
    const int before = count();
    if (isFarFrom(now)) {
        beginResetModel();
        m_runs = std::move(now);
        endResetModel();
    } else {
        removeAllBut(now);
        insertAndChange(now);
    }
    if (count() != before)
        Q_EMIT countChanged();
}

/// Whether views do better to begin anew: more has come than they make at once, or the order is another.
bool StoredRuns::isFarFrom(const std::vector<RunRecord>& now) const {
    constexpr std::ptrdiff_t few = 4;
    const auto idsIn = [](const std::vector<RunRecord>& runs, const std::vector<RunRecord>& others) {
        std::vector<QUuid> ids;
        for (const RunRecord& run : runs)
            if (std::ranges::find(others, run.id, &RunRecord::id) != others.end())
                ids.push_back(run.id);
        return ids;
    };
    const auto kept = idsIn(m_runs, now), keptNow = idsIn(now, m_runs);
    return std::ssize(now) - std::ssize(keptNow) > few || kept != keptNow;
}

void StoredRuns::insertAndChange(const std::vector<RunRecord>& now) {
    for (std::size_t row = 0; row < now.size(); ++row) {
        const int at = static_cast<int>(row);
        if (row >= m_runs.size() || m_runs[row].id != now[row].id) {
            beginInsertRows({}, at, at);
            m_runs.insert(m_runs.begin() + at, now[row]);
            endInsertRows();
        } else if (m_runs[row] != now[row]) {
            m_runs[row] = now[row];
            Q_EMIT dataChanged(index(at), index(at), {RunRole});
        }
    }
}

void StoredRuns::announce(Role role) {
    if (!m_runs.empty())
        Q_EMIT dataChanged(index(0), index(count() - 1), {role});
}

} // namespace TarnwickKit::views
