#include "TarnwickHost/ResultTable.h"

#include "TarnwickHost/TextColumns.h"
#include "TarnwickKit/model/format/BenchmarkText.h"
#include "TarnwickKit/model/format/Format.h"

#include <vector>

using namespace OndelCore::benchmark;
using namespace TarnwickKit::model;

namespace TarnwickHost {

namespace {

QString countRate(double perSecond, const char* unit) { return Format::compact(perSecond) + ' ' + unit; }

TextRow row(const QString& title, const ThroughputResult& result) {
    const auto lowest = result.lowestBytesPerSecond();
    return {title, Format::rate(result.sustainedBytesPerSecond()), Format::rate(result.peakBytesPerSecond()),
            lowest ? Format::rate(*lowest) : "--", Format::rate(result.bytesPerSecond())};
}

TextRow row(const QString& title, const IOPSResult& result) {
    return {title, countRate(result.iops(), "IOPS"), Format::rate(result.bytesPerSecond())};
}

TextRow row(const QString& title, const FileOpsResult& result) {
    const auto rate = [](const FileOpResult& phase) { return countRate(phase.opsPerSecond(), "ops/s"); };
    return {title, rate(result.create), rate(result.stat), rate(result.rename), rate(result.remove)};
}

} // namespace

QString resultTable(const BenchmarkPlan& plan, const BenchmarkResult& result) {
    const std::int64_t randomBlock = BenchmarkPlan::alignedBlock(plan.randomBlockSize);
    const auto titleOf = [&](BenchmarkTest test) { return title(test, randomBlock); };
    std::vector<TextRow> rows;
    const auto beginBlock = [&](TextRow header) {
        if (!rows.empty())
            rows.emplace_back();
        rows.push_back(std::move(header));
    };
    if (result.sequentialWrite || result.sequentialRead)
        beginBlock({"", "Sustained", "Peak", "Lowest", "Overall"});
    if (result.sequentialWrite)
        rows.push_back(row(titleOf(BenchmarkTest::sequentialWrite), *result.sequentialWrite));
    if (result.sequentialRead)
        rows.push_back(row(titleOf(BenchmarkTest::sequentialRead), *result.sequentialRead));
    if (result.randomRead || result.randomWrite)
        beginBlock({"", "Operations", "Rate"});
    if (result.randomRead)
        rows.push_back(row(titleOf(BenchmarkTest::randomRead), *result.randomRead));
    if (result.randomWrite)
        rows.push_back(row(titleOf(BenchmarkTest::randomWrite), *result.randomWrite));
    if (result.fileOps) {
        beginBlock({"", "Create", "Stat", "Rename", "Delete"});
        rows.push_back(row(titleOf(BenchmarkTest::fileOps), *result.fileOps));
    }
    return textColumns(rows, CellsStand::right);
}

} // namespace TarnwickHost
