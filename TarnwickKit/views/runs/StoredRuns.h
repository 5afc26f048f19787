#pragma once

#include "TarnwickKit/views/runs/ComparedRuns.h"
#include "TarnwickKit/views/window/ModelObserver.h"

#include <QAbstractListModel>
#include <QQmlEngine>

#include <vector>

namespace TarnwickKit::views {

/// The model's previous runs as a list model, newest first. Changes are announced row by row, matched by the
/// runs' ids, so that views keep the rows of all other runs.
///
/// Roles: `run`, whether its row is `expanded`, whether it is `picked` for a comparison.
class StoredRuns : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(
        TarnwickKit::model::AnalyzerModel* analyzer READ analyzer WRITE setAnalyzer NOTIFY analyzerChanged)
    Q_PROPERTY(int count READ count NOTIFY countChanged)
    /// The run in the main pane; empty without one.
    Q_PROPERTY(TarnwickKit::model::RunRecord currentRun READ currentRun NOTIFY currentRunChanged)
    Q_PROPERTY(bool hasCurrentRun READ hasCurrentRun NOTIFY currentRunChanged)
    Q_PROPERTY(bool isCurrentRunPicked READ isCurrentRunPicked NOTIFY currentRunPickedChanged)
    /// The compared runs; none without a comparison.
    Q_PROPERTY(TarnwickKit::views::ComparedRuns comparison READ comparison NOTIFY comparisonChanged)
public:
    enum Role { RunRole = Qt::UserRole, ExpandedRole, PickedRole };

    using QAbstractListModel::QAbstractListModel;

    model::AnalyzerModel* analyzer() const { return m_analyzer; }
    void setAnalyzer(model::AnalyzerModel* analyzer);
    Q_SIGNAL void analyzerChanged();

    int count() const { return static_cast<int>(m_runs.size()); }
    Q_SIGNAL void countChanged();
    bool hasCurrentRun() const { return m_analyzer && m_analyzer->currentRun(); }
    model::RunRecord currentRun() const {
        return hasCurrentRun() ? *m_analyzer->currentRun() : model::RunRecord{};
    }
    Q_SIGNAL void currentRunChanged();
    bool isCurrentRunPicked() const {
        return hasCurrentRun() && m_analyzer->compareSelection().contains(m_analyzer->currentRun()->id);
    }
    Q_SIGNAL void currentRunPickedChanged();
    ComparedRuns comparison() const {
        return m_analyzer && m_analyzer->comparison() ? ComparedRuns{*m_analyzer->comparison()}
                                                      : ComparedRuns{};
    }
    Q_SIGNAL void comparisonChanged();

    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : count(); }
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    void refresh();
    void removeAllBut(const std::vector<model::RunRecord>& runs);
    void remove(int first, int end);
    int insertNew(const std::vector<model::RunRecord>& now, int first);
    void place(int from, int to, const model::RunRecord& run);
    void announce(Role role);

    ModelObserver m_analyzer;
    std::vector<model::RunRecord> m_runs;
};

} // namespace TarnwickKit::views
