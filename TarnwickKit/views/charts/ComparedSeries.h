#pragma once

#include "TarnwickKit/views/charts/ThroughputCanvas.h"
#include "TarnwickKit/views/runs/ComparedRuns.h"

#include <QPointer>

#include <memory>

namespace TarnwickKit::views {

/// Adds one curve of each compared run to a chart: lines without an area, each in its run's colour.
class ComparedSeries : public QObject {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(TarnwickKit::views::ThroughputCanvas* chart MEMBER m_chart NOTIFY changed)
    Q_PROPERTY(TarnwickKit::views::ComparedRuns runs MEMBER m_runs NOTIFY changed)
    /// A RunSeries::Curve.
    Q_PROPERTY(int curve MEMBER m_curve NOTIFY changed)
    /// The colour at a run's index, modulo their number.
    Q_PROPERTY(QList<QColor> colors MEMBER m_colors NOTIFY changed)

public:
    explicit ComparedSeries(QObject* parent = nullptr);
    ~ComparedSeries() override;
    Q_SIGNAL void changed();

private:
    void make();

    QPointer<ThroughputCanvas> m_chart;
    ComparedRuns m_runs;
    int m_curve = RunSeries::Write;
    QList<QColor> m_colors;
    std::vector<std::unique_ptr<ChartSeries>> m_series;
};

} // namespace TarnwickKit::views
