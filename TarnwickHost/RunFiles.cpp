#include "TarnwickHost/RunFiles.h"

#include "TarnwickHost/CommandLine.h"
#include "TarnwickHost/Output.h"
#include "TarnwickHost/Remarks.h"
#include "TarnwickKit/model/format/BenchmarkText.h"
#include "TarnwickKit/model/format/DisplayText.h"
#include "TarnwickKit/model/format/Format.h"
#include "TarnwickKit/model/runs/Comparison.h"
#include "TarnwickKit/model/runs/RunCodec.h"
#include "TarnwickKit/model/runs/RunFile.h"

#include <QStringList>

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <string>
#include <system_error>

using namespace TarnwickKit::model;
using OndelCore::benchmark::BenchmarkTest;
using OndelCore::benchmark::Latency;
using OndelCore::benchmark::Remark;

namespace TarnwickHost {

namespace {

/// Why readRunFile gave nothing for `path`, to stand behind its name.
std::string whyUnread(const std::string& path) {
    struct stat facts{};
    if (stat(path.c_str(), &facts) != 0)
        return ": " + std::generic_category().message(errno);
    if (!S_ISREG(facts.st_mode))
        return " is not a regular file";
    if (static_cast<std::uintmax_t>(facts.st_size) > maxRunFileBytes)
        return " is larger than a run file can be (" + std::to_string(maxRunFileBytes >> 20) + " MiB)";
    if (access(path.c_str(), R_OK) != 0)
        return ": " + std::generic_category().message(errno);
    return " could not be read";
}

constexpr int leastColumns = 24;
constexpr int labelColumns = 14;
const QString separator = " · ";
const QString parameterSeparator = "  ·  ";

QString rate(std::optional<double> bytesPerSecond) {
    return bytesPerSecond ? Format::rate(*bytesPerSecond) : "--";
}

QString count(std::optional<double> perSecond, const char* unit) {
    return perSecond ? Format::compact(*perSecond) + ' ' + unit : "--";
}

QStringList sequential(std::optional<double> sustained, std::optional<double> peak,
                       std::optional<double> lowest) {
    if (!sustained && !peak && !lowest)
        return {};
    return {rate(sustained), "peak " + rate(peak), "lowest " + rate(lowest)};
}

QStringList random(std::optional<double> iops, std::optional<double> bytesPerSecond,
                   const std::optional<Latency>& latency) {
    if (!iops && !bytesPerSecond)
        return {};
    const QStringList figures{count(iops, "IOPS"), rate(bytesPerSecond)};
    return latency ? figures + latencyFigures(*latency) : figures;
}

QString runText(const RunRecord& run, const QString& number, int columns) {
    const auto row = [columns](const char* label, const QStringList& parts,
                               const QString& between = separator) {
        return labelled(QString(label).leftJustified(labelColumns), parts, between, columns);
    };
    const auto test = [&](const char* label, BenchmarkTest of, const QStringList& figures) {
        return row(label,
                   figures.isEmpty() || !run.isInvalid(of) ? figures : figures + QStringList(invalidMark()));
    };
    const RunEvidence evidence = run.evidence.value_or(RunEvidence());
    QStringList volume;
    for (const QString& part : {run.volumeName, run.connection, run.deviceModel.value_or(QString()),
                                run.deviceProtocol.value_or(QString())})
        if (!part.isEmpty())
            volume << part;
    const QStringList stamp = Format::runStamp(run.date, run.duration).split(separator);
    const QStringList parameters =
        ComparisonChart::parameterSummary(run).split(parameterSeparator, Qt::SkipEmptyParts);
    return number + fitted(run.screenshotTitle(), columns - static_cast<int>(number.size())) + '\n' +
           labelled({}, stamp, separator, columns) +
           test("Write", BenchmarkTest::sequentialWrite,
                sequential(run.writeBps, run.writePeakBps, run.writeMinBps)) +
           test("Read", BenchmarkTest::sequentialRead,
                sequential(run.readBps, run.readPeakBps, run.readMinBps)) +
           test("Random read", BenchmarkTest::randomRead,
                random(run.randomReadIOPS, run.randomReadBps, evidence.randomReadLatency)) +
           test("Random write", BenchmarkTest::randomWrite,
                random(run.randomWriteIOPS, run.randomWriteBps, evidence.randomWriteLatency)) +
           test("File ops", BenchmarkTest::fileOps,
                run.fileOpsPerSec ? QStringList(count(run.fileOpsPerSec, "ops/s")) : QStringList()) +
           row("Volume", volume) + row("Parameters", parameters, parameterSeparator) +
           remarkList(run.remarks.value_or(std::vector<Remark>()), run.randomBlock.value_or(0), columns);
}

/// The bar on a track of `cells`, drawn in halves of a cell where the terminal has them.
QString bar(std::optional<double> length, int cells, bool unicode) {
    if (!length)
        return QString(cells, ' ');
    const auto halves = std::clamp(static_cast<int>(std::lround(*length * 2)), 2, cells * 2);
    if (!unicode)
        return QString(halves / 2, '#').leftJustified(cells);
    return (QString(halves / 2, QChar(0x2588)) + QString(halves % 2, QChar(0x258C))).leftJustified(cells);
}

/// A metric's bars, with the titles at the end: where a terminal draws them narrower than foreseen, nothing
/// behind them is displaced.
QString comparisonText(const CompareMetric& metric, const std::vector<RunRecord>& runs, LineStyle style) {
    // On a track that long the chart's own shortest bar, 3 points, is below a cell.
    constexpr double pointsPerCell = 8;
    constexpr int widestTrack = 40;
    const auto numberColumns = QString::number(runs.size()).size();
    const int cells = std::min(style.columns * 2 / 5, widestTrack);
    const auto lines = ComparisonChart::bars(metric, runs, cells * pointsPerCell);
    qsizetype figureColumns = 0;
    for (const ComparisonChart::Bar& line : lines)
        figureColumns = std::max(figureColumns, line.text.size());

    QString text = metric.label + separator + metric.unit + '\n';
    for (std::size_t index = 0; index < runs.size(); ++index) {
        std::optional<double> length = lines[index].length;
        if (length)
            *length /= pointsPerCell;
        const QString line = QString::number(index + 1).rightJustified(numberColumns) + ' ' +
                             bar(length, cells, style.unicode) + ' ' +
                             lines[index].text.rightJustified(figureColumns) + "  ";
        const int room = std::max(1, style.columns - static_cast<int>(line.size()));
        const QString mark = lines[index].isInvalid ? invalidMark() + separator : QString();
        text += line + fitted(mark + runs[index].screenshotTitle(), room) + '\n';
    }
    return text;
}

} // namespace

std::vector<RunRecord> readRuns(std::span<const std::string_view> paths) {
    std::vector<RunRecord> runs;
    for (const std::string_view operand : paths) {
        const std::string path(operand);
        const auto content = readRunFile(path);
        const auto run = content ? decodeRun(*content) : std::nullopt;
        if (run)
            runs.push_back(*run);
        else
            complain(quoted(operand) + (content ? " is not a run file" : whyUnread(path)));
    }
    return runs;
}

QString runTexts(const std::vector<RunRecord>& runs, LineStyle style) {
    style.columns = std::max(style.columns, leastColumns);
    QStringList blocks;
    for (std::size_t index = 0; index < runs.size(); ++index)
        blocks << runText(runs[index], runs.size() > 1 ? QString::number(index + 1) + ' ' : QString(),
                          style.columns);
    if (runs.size() > 1)
        for (const CompareMetric& metric : ComparisonChart::activeMetrics(runs))
            blocks << comparisonText(metric, runs, style);
    return blocks.join('\n');
}

} // namespace TarnwickHost
