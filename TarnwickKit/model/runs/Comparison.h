#pragma once

#include "OndelCore/Export.h"
#include "TarnwickKit/model/runs/RunRecord.h"

#include <QString>

#include <array>
#include <optional>
#include <vector>

namespace TarnwickKit::model {

/// One figure by which runs are compared.
struct ONDEL_PUBLIC CompareMetric {
    QString label;                                ///< in English, but for `ComparisonChart::activeMetrics`
    QString unit;                                 ///< as the label
    std::optional<double> RunRecord::* magnitude; ///< in its raw unit
    QString (*format)(double);
    OndelCore::benchmark::BenchmarkTest test;

    /// All of them, in the order to show them.
    static const std::array<CompareMetric, 5>& all();
};

/// What a metric of `CompareMetric::all` is called in the user's language.
QString labelOf(OndelCore::benchmark::BenchmarkTest test);

/// The unit of file operations: "ops/s".
QString operationsPerSecond();

/// Whether two runs measured the same volume, as far as their records tell: the name is equal, and so are the
/// drive's model, the file system and, but for a tenth, the capacity where both know them. The capacity of
/// some file systems varies with what they hold.
ONDEL_PUBLIC bool areOfOneVolume(const RunRecord& one, const RunRecord& other);

/// What a comparison of runs shows; the views draw it.
namespace ComparisonChart {

/// The metrics for which at least one run has a figure, with labels and units in the user's language.
ONDEL_PUBLIC std::vector<CompareMetric> activeMetrics(const std::vector<RunRecord>& runs);

/// One run's line in a metric's group.
struct Bar {
    std::optional<double> length; ///< points; absent is an empty track
    QString text;                 ///< "--" where the run has no figure
    bool isInvalid = false;       ///< the figure is not the disk's

    bool operator==(const Bar&) const = default;
};
/// A metric's bars, one per run. The largest figure fills the track, and no bar is shorter than 3 points.
/// Units: `trackWidth` in points.
ONDEL_PUBLIC std::vector<Bar> bars(const CompareMetric& metric, const std::vector<RunRecord>& runs,
                                   double trackWidth);

/// How far each run's figure lies from that of the run at `reference`, as a share of the latter: 0.25 is a
/// quarter above it. Absent for the reference itself, where one of the two is missing or is not the disk's,
/// and where the reference's is not above 0.
ONDEL_PUBLIC std::vector<std::optional<double>>
differences(const CompareMetric& metric, const std::vector<RunRecord>& runs, std::size_t reference);
/// "+25 %", "−3.2 %", "0 %"; one decimal below ten percent. Beyond a factor of a hundred: "> +9,900 %".
ONDEL_PUBLIC QString differenceText(double share);

/// The run's volume and settings in one line; empty if none is known.
ONDEL_PUBLIC QString parameterSummary(const RunRecord& run);

} // namespace ComparisonChart

} // namespace TarnwickKit::model
