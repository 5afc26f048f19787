#include "TarnwickKit/model/runs/Comparison.h"

#include "TarnwickKit/model/format/Format.h"

#include <QStringList>

#include <algorithm>

namespace TarnwickKit::model {

using namespace Qt::StringLiterals;
using OndelCore::benchmark::BenchmarkTest;

const std::array<CompareMetric, 5>& CompareMetric::all() {
    static const std::array<CompareMetric, 5> metrics{{
        {u"Write"_s, u"MB/s"_s, &RunRecord::writeBps, Format::mbValue, BenchmarkTest::sequentialWrite},
        {u"Read"_s, u"MB/s"_s, &RunRecord::readBps, Format::mbValue, BenchmarkTest::sequentialRead},
        {u"Random read"_s, u"IOPS"_s, &RunRecord::randomReadIOPS, Format::compact, BenchmarkTest::randomRead},
        {u"Random write"_s, u"IOPS"_s, &RunRecord::randomWriteIOPS, Format::compact,
         BenchmarkTest::randomWrite},
        {u"File ops"_s, u"ops/s"_s, &RunRecord::fileOpsPerSec, Format::compact, BenchmarkTest::fileOps},
    }};
    return metrics;
}

namespace ComparisonChart {

std::vector<CompareMetric> activeMetrics(const std::vector<RunRecord>& runs) {
    std::vector<CompareMetric> active;
    std::ranges::copy_if(CompareMetric::all(), std::back_inserter(active), [&](const CompareMetric& metric) {
        return std::ranges::any_of(runs,
                                   [&](const RunRecord& run) { return (run.*metric.magnitude).has_value(); });
    });
    return active;
}

std::vector<Bar> bars(const CompareMetric& metric, const std::vector<RunRecord>& runs, double trackWidth) {
    constexpr double shortest = 3;
    std::optional<double> largest;
    for (const RunRecord& run : runs)
        largest = std::max(largest, run.*metric.magnitude); // an absent figure is the least
    const double scale = largest.value_or(1);

    std::vector<Bar> lines;
    for (const RunRecord& run : runs) {
        const std::optional<double> value = run.*metric.magnitude;
        Bar line{std::nullopt, value ? metric.format(*value) : u"--"_s, value && run.isInvalid(metric.test)};
        if (value && scale > 0)
            line.length = std::max(shortest, *value / scale * trackWidth);
        lines.push_back(line);
    }
    return lines;
}

QString parameterSummary(const RunRecord& run) {
    QStringList parts;
    if (visibleText(run.fsType))
        parts << run.fsType->toUpper();
    if (run.capacityBytes)
        parts << Format::bytes(*run.capacityBytes);
    if (run.freeBytes)
        parts << Format::bytes(*run.freeBytes) + u" free"_s;
    if (visibleText(run.sizeLabel))
        parts << *run.sizeLabel + u" test"_s;
    if (run.writeBlock && run.writeBlock == run.readBlock) {
        parts << u"R/W "_s + Format::block(*run.writeBlock);
    } else {
        if (run.writeBlock)
            parts << u"W "_s + Format::block(*run.writeBlock);
        if (run.readBlock)
            parts << u"R "_s + Format::block(*run.readBlock);
    }
    if (run.randomBlock)
        parts << u"Rnd "_s + Format::block(*run.randomBlock);
    if (run.bypassCache)
        parts << (*run.bypassCache ? u"Uncached"_s : u"Cached"_s);
    return parts.join(u"  ·  "_s);
}

} // namespace ComparisonChart

} // namespace TarnwickKit::model
