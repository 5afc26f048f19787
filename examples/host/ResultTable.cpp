#include "examples/host/ResultTable.h"

#include "TarnwickKit/model/BenchmarkTestTitle.h"
#include "TarnwickKit/model/Format.h"

#include <algorithm>
#include <optional>
#include <vector>

using namespace OndelCore::benchmark;
using namespace TarnwickKit::model;

namespace examples::host {

namespace {

using Row = std::vector<QString>;

/// Rows whose first cell stands left and whose others stand right, in columns shared by all of them.
QString aligned(const std::vector<Row>& rows) {
    std::vector<qsizetype> widths;
    for (const Row& row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t column = 0; column < row.size(); ++column)
            widths[column] = std::max(widths[column], row[column].size());
    }
    QString text;
    for (const Row& row : rows) {
        QString line = row.empty() ? QString() : row.front().leftJustified(widths.front());
        for (std::size_t column = 1; column < row.size(); ++column)
            line += "  " + row[column].rightJustified(widths[column]);
        text += line + '\n';
    }
    return text;
}

/// The slowest interval. The first one is left out: it holds the start, not the disk.
std::optional<double> lowestBytesPerSecond(const std::vector<ThroughputSample>& samples) {
    if (samples.size() < 2)
        return std::nullopt;
    const auto slower = [](const auto& a, const auto& b) { return a.bytesPerSecond < b.bytesPerSecond; };
    return std::min_element(samples.begin() + 1, samples.end(), slower)->bytesPerSecond;
}

QString countRate(double perSecond, const char* unit) { return Format::compact(perSecond) + ' ' + unit; }

Row row(const QString& title, const ThroughputResult& result) {
    const auto lowest = lowestBytesPerSecond(result.samples);
    return {title, Format::rate(result.sustainedBytesPerSecond()), Format::rate(result.peakBytesPerSecond()),
            lowest ? Format::rate(*lowest) : "--", Format::rate(result.bytesPerSecond())};
}

Row row(const QString& title, const IOPSResult& result) {
    return {title, countRate(result.iops(), "IOPS"), Format::rate(result.bytesPerSecond())};
}

Row row(const QString& title, const FileOpsResult& result) {
    const auto rate = [](const FileOpResult& phase) { return countRate(phase.opsPerSecond(), "ops/s"); };
    return {title, rate(result.create), rate(result.stat), rate(result.rename), rate(result.remove)};
}

} // namespace

QString resultTable(const BenchmarkPlan& plan, const BenchmarkResult& result) {
    const std::int64_t randomBlock = BenchmarkPlan::alignedBlock(plan.randomBlockSize);
    const auto titleOf = [&](BenchmarkTest test) { return title(test, randomBlock); };
    std::vector<Row> rows;
    const auto beginBlock = [&](Row header) {
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
    return aligned(rows);
}

} // namespace examples::host
