#include "TarnwickKit/views/runs/ComparedRuns.h"

#include "TarnwickKit/model/format/Format.h"
#include "TarnwickKit/model/runs/Comparison.h"
#include "TarnwickKit/views/runs/RunFacts.h"
#include "TarnwickKit/views/style/LegibleText.h"

#include <QCoreApplication>

#include <algorithm>

namespace TarnwickKit::views {

namespace ComparisonChart = model::ComparisonChart;

namespace {

struct ComparedRunsText {
    Q_DECLARE_TR_FUNCTIONS(ComparedRunsText)
};

} // namespace

QVariantList ComparedRuns::entries() const {
    QVariantList all;
    for (const model::RunRecord& run : runs) {
        const QString title = run.screenshotTitle();
        const QString drive = driveOf(run, title);
        const QString dot = QStringLiteral(" · ");
        const QString name = keptApart(legible(title)) + dot + model::Format::shortStamp(run.date);
        all << QVariant::fromValue(
            ComparedRun{.legend = name + (drive.isEmpty() ? drive : dot + keptApart(drive)),
                        .name = name,
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

QStringList ComparedRuns::names() const {
    QStringList names;
    for (const QVariant& entry : entries())
        names << entry.value<ComparedRun>().name;
    return names;
}

bool ComparedRuns::hasCurves(std::vector<model::RunSample> model::RunRecord::* curve) const {
    return std::ranges::any_of(runs,
                               [curve](const model::RunRecord& run) { return (run.*curve).size() >= 2; });
}

QVariantList ComparedRuns::metrics(double trackWidth, int reference) const {
    const auto base = static_cast<std::size_t>(reference); // -1 becomes an index beyond all runs
    QVariantList all;
    for (const model::CompareMetric& metric : ComparisonChart::activeMetrics(runs)) {
        ComparedMetric group{.label = metric.label, .unit = metric.unit, .bars = {}};
        const auto bars = ComparisonChart::bars(metric, runs, trackWidth);
        const auto differences = ComparisonChart::differences(metric, runs, base);
        for (std::size_t i = 0; i < bars.size(); ++i) {
            //: The run that the others are compared with
            const QString difference = i == base        ? ComparedRunsText::tr("reference")
                                       : differences[i] ? ComparisonChart::differenceText(*differences[i])
                                                        : QString();
            const QString figure = Runs::spoken(
                //: %1 is what was measured, %2 the name of a run, %3 the figure, %4 its unit
                ComparedRunsText::tr("%1, %2: %3 %4")
                    .arg(metric.label, legible(runs[i].screenshotTitle()), bars[i].text, metric.unit),
                bars[i].isInvalid);
            group.bars << QVariant::fromValue(ComparedBar{
                .length = bars[i].length.value_or(0),
                .text = bars[i].text,
                .isMarked = bars[i].isInvalid,
                .difference = difference,
                .sentence =
                    difference.isEmpty() ? figure : ComparedRunsText::tr("%1, %2").arg(figure, difference)});
        }
        all << QVariant::fromValue(group);
    }
    return all;
}

} // namespace TarnwickKit::views
