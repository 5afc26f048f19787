#include "TarnwickKit/model/runs/Comparison.h"

#include "TarnwickKit/model/format/Format.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace TarnwickKit::model {

using namespace Qt::StringLiterals;
using OndelCore::benchmark::BenchmarkTest;

namespace {

struct ComparisonText {
    Q_DECLARE_TR_FUNCTIONS(ComparisonText)
};

} // namespace

QString labelOf(BenchmarkTest test) {
    switch (test) {
    case BenchmarkTest::sequentialWrite:
        //: Noun: what was measured
        return ComparisonText::tr("Write");
    case BenchmarkTest::sequentialRead:
        //: Noun: what was measured
        return ComparisonText::tr("Read");
    case BenchmarkTest::randomRead:
        return ComparisonText::tr("Random read");
    case BenchmarkTest::randomWrite:
        return ComparisonText::tr("Random write");
    case BenchmarkTest::fileOps:
        break;
    }
    //: File operations, where there is little room
    return ComparisonText::tr("File ops");
}

QString operationsPerSecond() {
    //: A unit, like IOPS: file operations per second
    return ComparisonText::tr("ops/s");
}

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

bool areOfOneVolume(const RunRecord& one, const RunRecord& other) {
    const auto agree = [](const auto& left, const auto& right) { return !left || !right || left == right; };
    const auto areClose = [](std::optional<std::int64_t> left, std::optional<std::int64_t> right) {
        return !left || !right ||
               std::abs(double(*left) - double(*right)) <= 0.1 * double(std::max(*left, *right));
    };
    return one.volumeName == other.volumeName && agree(one.deviceModel, other.deviceModel) &&
           agree(one.fsType, other.fsType) && areClose(one.capacityBytes, other.capacityBytes);
}

namespace ComparisonChart {

std::vector<CompareMetric> activeMetrics(const std::vector<RunRecord>& runs) {
    std::vector<CompareMetric> active;
    std::ranges::copy_if(CompareMetric::all(), std::back_inserter(active), [&](const CompareMetric& metric) {
        return std::ranges::any_of(runs,
                                   [&](const RunRecord& run) { return (run.*metric.magnitude).has_value(); });
    });
    for (CompareMetric& metric : active) {
        metric.label = labelOf(metric.test);
        if (metric.test == BenchmarkTest::fileOps)
            metric.unit = operationsPerSecond();
    }
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

std::vector<std::optional<double>> differences(const CompareMetric& metric,
                                               const std::vector<RunRecord>& runs, std::size_t reference) {
    std::vector<std::optional<double>> shares(runs.size());
    const auto figure = [&metric](const RunRecord& run) {
        return run.isInvalid(metric.test) ? std::nullopt : run.*metric.magnitude;
    };
    const std::optional<double> base = reference < runs.size() ? figure(runs[reference]) : std::nullopt;
    if (!base || !(*base > 0))
        return shares;
    for (std::size_t index = 0; index < runs.size(); ++index)
        if (const auto value = figure(runs[index]); value && index != reference)
            shares[index] = *value / *base - 1;
    return shares;
}

QString differenceText(double share) {
    constexpr double most = 99; // beyond it a percentage says nothing
    const double percent = std::abs(std::clamp(share, -most, most)) * 100;
    const QString sign = share < 0 ? u"−"_s : u"+"_s;
    if (share > most)
        return Format::leftToRight(u"> +"_s + Format::percent(Format::grouped(percent)));
    if (percent < 0.05)
        return Format::percent(u"0"_s);
    return Format::leftToRight(sign + Format::percent(percent < 9.95 ? Format::decimals(percent, 1)
                                                                     : Format::grouped(std::round(percent))));
}

QString parameterSummary(const RunRecord& run) {
    QStringList parts;
    if (visibleText(run.fsType))
        parts << run.fsType->toUpper();
    if (run.capacityBytes)
        parts << Format::bytes(*run.capacityBytes);
    if (run.freeBytes) {
        //: %1 is the free space of a volume
        parts << ComparisonText::tr("%1 free").arg(Format::bytes(*run.freeBytes));
    }
    if (visibleText(run.sizeLabel))
        parts << (run.sizeLabel == u"Fill disk" ? ComparisonText::tr("Fill disk test")
                                                //: %1 is the size of the test's file
                                                : ComparisonText::tr("%1 test").arg(*run.sizeLabel));
    if (run.writeBlock && run.writeBlock == run.readBlock) {
        //: %1 is the size of the blocks that were read and written
        parts << ComparisonText::tr("R/W %1").arg(Format::block(*run.writeBlock));
    } else {
        if (run.writeBlock) {
            //: %1 is the size of the blocks that were written
            parts << ComparisonText::tr("W %1").arg(Format::block(*run.writeBlock));
        }
        if (run.readBlock)
            //: %1 is the size of the blocks that were read
            parts << ComparisonText::tr("R %1").arg(Format::block(*run.readBlock));
    }
    if (run.randomBlock) {
        //: %1 is the size of the blocks that were read and written at random
        parts << ComparisonText::tr("Rnd %1").arg(Format::block(*run.randomBlock));
    }
    if (run.bypassCache)
        parts << (*run.bypassCache ? /*: The system's cache was bypassed */ ComparisonText::tr("Uncached")
                                   : /*: It was not bypassed */ ComparisonText::tr("Cached"));
    return parts.join(u"  ·  "_s);
}

} // namespace ComparisonChart

} // namespace TarnwickKit::model
