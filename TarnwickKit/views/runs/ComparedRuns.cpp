#include "TarnwickKit/views/runs/ComparedRuns.h"

#include "TarnwickKit/model/format/Format.h"
#include "TarnwickKit/model/runs/Comparison.h"
#include "TarnwickKit/views/runs/RunFacts.h"
#include "TarnwickKit/views/style/LegibleText.h"

#include <algorithm>

namespace TarnwickKit::views {

namespace ComparisonChart = model::ComparisonChart;

QVariantList ComparedRuns::entries() const {
    QVariantList all;
    for (const model::RunRecord& run : runs) {
        const QString title = run.screenshotTitle();
        const QString drive = driveOf(run, title);
        const QString dot = QStringLiteral(" · ");
        all << QVariant::fromValue(
            ComparedRun{.legend = keptApart(legible(title)) + dot + model::Format::shortStamp(run.date) +
                                  (drive.isEmpty() ? drive : dot + keptApart(drive)),
                        .parameters = legible(ComparisonChart::parameterSummary(run))});
    }
    return all;
}

bool ComparedRuns::hasMarks() const {
    return std::ranges::any_of(model::CompareMetric::all(), [this](const model::CompareMetric& metric) {
        return std::ranges::any_of(runs, [&metric](const model::RunRecord& run) {
            return run.*metric.magnitude && run.isInvalid(metric.test);
        });
    });
}

QVariantList ComparedRuns::metrics(double trackWidth) const {
    QVariantList all;
    for (const model::CompareMetric& metric : ComparisonChart::activeMetrics(runs)) {
        ComparedMetric group{.label = metric.label, .unit = metric.unit, .bars = {}};
        const auto bars = ComparisonChart::bars(metric, runs, trackWidth);
        for (std::size_t i = 0; i < bars.size(); ++i)
            group.bars << QVariant::fromValue(ComparedBar{
                .length = bars[i].length.value_or(0),
                .text = bars[i].text,
                .isMarked = bars[i].isInvalid,
                .sentence = Runs::spoken(
                    QStringLiteral("%1, %2: %3 %4")
                        .arg(metric.label, legible(runs[i].screenshotTitle()), bars[i].text, metric.unit),
                    bars[i].isInvalid)});
        all << QVariant::fromValue(group);
    }
    return all;
}

} // namespace TarnwickKit::views
