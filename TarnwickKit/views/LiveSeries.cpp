#include "TarnwickKit/views/LiveSeries.h"

#include "TarnwickKit/model/AnalyzerModel.h"
#include "TarnwickKit/views/CurvePoints.h"

namespace TarnwickKit::views {

LiveSeries::LiveSeries(QObject* parent)
    : ChartSeries(parent) {}

LiveSeries::~LiveSeries() = default;

model::AnalyzerModel* LiveSeries::analyzer() const { return m_analyzer; }

void LiveSeries::setAnalyzer(model::AnalyzerModel* analyzer) {
    if (!turnTo(m_analyzer, analyzer, this))
        return;
    if (analyzer) {
        const auto read = [this, analyzer] { setPoints(pointsOf(analyzer->liveSamples())); };
        connect(analyzer, &model::AnalyzerModel::liveSamplesChanged, this, read);
        read();
    }
    Q_EMIT analyzerChanged();
}

} // namespace TarnwickKit::views
