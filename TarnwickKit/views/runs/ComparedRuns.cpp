#include "TarnwickKit/views/runs/ComparedRuns.h"

#include "TarnwickKit/model/format/Format.h"
#include "TarnwickKit/model/runs/Comparison.h"
#include "TarnwickKit/views/style/LegibleText.h"

namespace TarnwickKit::views {

namespace ComparisonChart = model::ComparisonChart;

QVariantList ComparedRuns::entries() const {
    QVariantList all;
    for (const model::RunRecord& run : runs)
        all << QVariant::fromValue(
            ComparedRun{.legend = keptApart(legible(run.screenshotTitle())) + QStringLiteral(" · ") +
                                  model::Format::shortStamp(run.date),
                        .parameters = legible(ComparisonChart::parameterSummary(run))});
    return all;
}

QVariantList ComparedRuns::metrics(double trackWidth) const {
    QVariantList all;
    for (const model::CompareMetric& metric : ComparisonChart::activeMetrics(runs)) {
        ComparedMetric group{.label = metric.label, .unit = metric.unit, .bars = {}};
        const auto bars = ComparisonChart::bars(metric, runs, trackWidth);
        for (std::size_t i = 0; i < bars.size(); ++i)
            group.bars << QVariant::fromValue(
                ComparedBar{.length = bars[i].length.value_or(0),
                            .text = bars[i].text,
                            .sentence = QStringLiteral("%1, %2: %3 %4")
                                            .arg(metric.label, legible(runs[i].screenshotTitle()),
                                                 bars[i].text, metric.unit)});
        all << QVariant::fromValue(group);
    }
    return all;
}

} // namespace TarnwickKit::views
