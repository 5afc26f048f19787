#pragma once

#include "TarnwickKit/views/charts/ChartSeries.h"
#include "TarnwickKit/views/runs/LiveRun.h"

#include <QPointer>

namespace TarnwickKit::views {

/// The curve of the test that runs.
class LiveSeries : public TarnwickKit::views::ChartSeries {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(TarnwickKit::views::LiveRun* run READ run WRITE setRun NOTIFY runChanged)

public:
    using ChartSeries::ChartSeries;

    LiveRun* run() const { return m_run; }
    void setRun(LiveRun* run);
    Q_SIGNAL void runChanged();

private:
    QPointer<LiveRun> m_run;
};

} // namespace TarnwickKit::views
