#include "TarnwickKit/views/LastRun.h"

namespace TarnwickKit::views {

void LastRun::setAnalyzer(model::AnalyzerModel* analyzer) {
    if (analyzer == m_analyzer)
        return;
    if (m_analyzer)
        disconnect(m_analyzer, nullptr, this, nullptr);
    m_analyzer = analyzer;
    if (m_analyzer)
        connect(m_analyzer, &model::AnalyzerModel::resultChanged, this, &LastRun::changed);
    Q_EMIT changed();
}

RunFigures LastRun::figures() const {
    return m_analyzer && m_analyzer->result() ? RunFigures::of(*m_analyzer->result()) : RunFigures{};
}

} // namespace TarnwickKit::views
