#include "TarnwickKit/model/runs/RunText.h"

#include "TarnwickKit/model/format/BenchmarkText.h"
#include "TarnwickKit/model/format/DisplayText.h"
#include "TarnwickKit/model/format/Format.h"
#include "TarnwickKit/model/format/RemarkText.h"
#include "TarnwickKit/model/format/VolumeText.h"
#include "TarnwickKit/model/runs/Comparison.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <functional>

namespace TarnwickKit::model {

using OndelCore::benchmark::BenchmarkTest;
using OndelCore::benchmark::Latency;
using OndelCore::benchmark::Remark;
using OndelCore::benchmark::RemarkWeight;

namespace {

struct RunText {
    Q_DECLARE_TR_FUNCTIONS(RunText)
};

QString weightMark(RemarkWeight weight) {
    return (weight == RemarkWeight::invalid ? "! " : "") + remarkWeightWord(weight);
}

constexpr int leastColumns = 24;

/// A run's labels, which stand above each other.
struct Labels {
    //: Noun, before the rates of the sequential write test
    const QString write = RunText::tr("Write");
    //: Noun, before the rates of the sequential read test
    const QString read = RunText::tr("Read");
    const QString randomRead = RunText::tr("Random read");
    const QString randomWrite = RunText::tr("Random write");
    //: File operations, where there is little room
    const QString fileOps = RunText::tr("File ops");
    const QString volume = RunText::tr("Volume");
    const QString parameters = RunText::tr("Parameters");
    const QString system = RunText::tr("System");

    /// With two blanks behind the widest.
    int columns() const {
        constexpr int usual = 14;
        int widest = usual - 2;
        for (const QString& label : {write, read, randomRead, randomWrite, fileOps, volume, parameters,
                                     system, weightMark(RemarkWeight::invalid),
                                     weightMark(RemarkWeight::caution), weightMark(RemarkWeight::note)})
            widest = std::max(widest, columnsOf(label));
        return widest + 2;
    }
};

const QString dot = " · ";
const QString wideDot = "  ·  ";

QString rateOrNone(std::optional<double> bytesPerSecond) {
    return bytesPerSecond ? Format::rate(*bytesPerSecond) : "--";
}

QString countOrNone(std::optional<double> perSecond, const QString& unit) {
    return perSecond ? Format::compact(*perSecond) + ' ' + unit : "--";
}

QStringList sequentialFigures(std::optional<double> sustained, std::optional<double> peak,
                              std::optional<double> lowest) {
    if (!sustained && !peak && !lowest)
        return {};
    return {rateOrNone(sustained), RunText::tr("peak %1").arg(rateOrNone(peak)),
            RunText::tr("lowest %1").arg(rateOrNone(lowest))};
}

QStringList randomFigures(std::optional<double> iops, std::optional<double> bytesPerSecond,
                          const std::optional<Latency>& latency) {
    if (!iops && !bytesPerSecond)
        return {};
    const QStringList figures{countOrNone(iops, "IOPS"), rateOrNone(bytesPerSecond)};
    return latency ? figures + latencyFigures(*latency) : figures;
}

QString runText(const RunRecord& run, const QString& number, int columns) {
    const Labels labels;
    const auto row = [&](const QString& label, const QStringList& parts, const QString& between = dot) {
        return labelled(padded(label, labels.columns()), parts, between, columns);
    };
    const auto test = [&](const QString& label, BenchmarkTest of, const QStringList& figures) {
        return row(label,
                   figures.isEmpty() || !run.isInvalid(of) ? figures : figures + QStringList(invalidMark()));
    };
    const RunEvidence evidence = run.evidence.value_or(RunEvidence());
    QStringList volume;
    for (const QString& part : {volumeNameText(run.volumeName), connectionText(run.connection),
                                run.deviceModel.value_or(QString()), run.deviceProtocol.value_or(QString())})
        if (!part.isEmpty())
            volume << part;
    const QStringList stamp = Format::runStamp(run.date, run.duration).split(dot);
    const QStringList parameters = ComparisonChart::parameterSummary(run).split(wideDot, Qt::SkipEmptyParts);
    return number + fitted(run.screenshotTitle(), columns - static_cast<int>(number.size())) + '\n' +
           labelled({}, stamp, dot, columns) +
           test(labels.write, BenchmarkTest::sequentialWrite,
                sequentialFigures(run.writeBps, run.writePeakBps, run.writeMinBps)) +
           test(labels.read, BenchmarkTest::sequentialRead,
                sequentialFigures(run.readBps, run.readPeakBps, run.readMinBps)) +
           test(labels.randomRead, BenchmarkTest::randomRead,
                randomFigures(run.randomReadIOPS, run.randomReadBps, evidence.randomReadLatency)) +
           test(labels.randomWrite, BenchmarkTest::randomWrite,
                randomFigures(run.randomWriteIOPS, run.randomWriteBps, evidence.randomWriteLatency)) +
           test(labels.fileOps, BenchmarkTest::fileOps,
                run.fileOpsPerSec ? QStringList(countOrNone(run.fileOpsPerSec, operationsPerSecond()))
                                  : QStringList()) +
           row(labels.volume, volume) + row(labels.parameters, parameters, wideDot) +
           row(labels.system, systemNames(run)) +
           remarkList(run.remarks.value_or(std::vector<Remark>()), run.randomBlock.value_or(0), columns);
}

/// The bar on a track of `cells`, drawn in halves of a cell where the terminal has them.
QString barOf(std::optional<double> length, int cells, bool unicode) {
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

    QString text = metric.label + dot + metric.unit + '\n';
    for (std::size_t index = 0; index < runs.size(); ++index) {
        std::optional<double> length = lines[index].length;
        if (length)
            *length /= pointsPerCell;
        const QString line = QString::number(index + 1).rightJustified(numberColumns) + ' ' +
                             barOf(length, cells, style.unicode) + ' ' +
                             lines[index].text.rightJustified(figureColumns) + "  ";
        const int room = std::max(1, style.columns - static_cast<int>(line.size()));
        const QString mark = lines[index].isInvalid ? invalidMark() + dot : QString();
        text += line + fitted(mark + runs[index].screenshotTitle(), room) + '\n';
    }
    return text;
}

} // namespace

QStringList systemNames(const RunRecord& run) {
    QStringList names;
    if (run.kernel)
        names << "Linux " + *run.kernel;
    if (run.version)
        names << "Ondel Tarnwick " + *run.version;
    return names;
}

QString aboutTest(const QString& title, const QString& sentence) {
    //: %1 is the name of a test, %2 a sentence on it
    return RunText::tr("%1: %2").arg(title, sentence);
}

QString figureTitle(const QString& title, FigureKind kind) {
    switch (kind) {
    case FigureKind::peak:
        //: %1 is the name of a test, whose highest rate follows
        return RunText::tr("%1, peak").arg(title);
    case FigureKind::lowest:
        //: %1 is the name of a test, whose lowest rate follows
        return RunText::tr("%1, lowest").arg(title);
    case FigureKind::latency:
        //: %1 is the name of a test, whose latency follows
        return RunText::tr("%1, latency").arg(title);
    case FigureKind::sustained:
        break;
    }
    return title;
}

QString invalidMark() { return weightMark(RemarkWeight::invalid); }

QString remarkList(const std::vector<Remark>& remarks, std::int64_t randomBlock, int columns) {
    std::vector<Remark> worstFirst = remarks;
    std::ranges::stable_sort(worstFirst, std::greater(), &Remark::weight);
    const int labelColumns = Labels().columns();
    QString list;
    for (const Remark& remark : worstFirst) {
        QStringList sentences{remarkSentence(remark), remarkAdvice(remark)};
        if (sentences.front().isEmpty()) // numbers of a file that mean nothing
            continue;
        if (remark.test)
            sentences.front() = aboutTest(title(*remark.test, randomBlock), sentences.front());
        list += wrapped(padded(weightMark(remark.weight), labelColumns), sentences.join(' '), columns);
    }
    return list.isEmpty() ? list : "\n" + RunText::tr("About these figures") + "\n" + list;
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

} // namespace TarnwickKit::model
