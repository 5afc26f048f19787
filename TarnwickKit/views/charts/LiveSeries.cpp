#include "TarnwickKit/views/charts/LiveSeries.h"

namespace TarnwickKit::views {

void LiveSeries::setRun(LiveRun* run) {
    if (run == m_run)
        return;
    if (m_run)
        m_run->disconnect(this);
    m_run = run;
    if (run) {
        connect(run, &LiveRun::moved, this, [this, run] { setPoints(run->points()); });
        setPoints(run->points());
    }
    Q_EMIT runChanged();
}

} // namespace TarnwickKit::views
