#include "TarnwickKit/views/charts/ComparedSeries.h"

namespace TarnwickKit::views {

ComparedSeries::ComparedSeries(QObject* parent)
    : QObject(parent) {
    connect(this, &ComparedSeries::changed, this, &ComparedSeries::make);
}

ComparedSeries::~ComparedSeries() = default;

void ComparedSeries::make() {
    m_series.clear();
    if (!m_chart || m_colors.isEmpty())
        return;
    const QStringList names = m_runs.names();
    for (std::size_t index = 0; index < m_runs.runs.size(); ++index) {
        const model::RunRecord& run = m_runs.runs[index];
        auto series = std::make_unique<ChartSeries>();
        const auto place = static_cast<qsizetype>(index);
        series->setName(names[place]);
        series->setColor(m_colors[place % m_colors.size()]);
        series->setFill(Qt::transparent);
        series->setPoints(pointsOf(m_curve == RunSeries::Write ? run.writeSamples : run.readSamples));
        m_chart->add(series.get());
        m_series.push_back(std::move(series));
    }
}

} // namespace TarnwickKit::views
