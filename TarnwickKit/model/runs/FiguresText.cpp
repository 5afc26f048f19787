#include "TarnwickKit/model/runs/FiguresText.h"

#include "TarnwickKit/model/format/BenchmarkText.h"
#include "TarnwickKit/model/format/Format.h"
#include "TarnwickKit/model/runs/Comparison.h"
#include "TarnwickKit/model/runs/RunText.h"

#include <QCoreApplication>
#include <QStringList>

namespace TarnwickKit::model {

using namespace Qt::StringLiterals;
using OndelCore::benchmark::BenchmarkTest;

namespace {

struct FiguresText {
    Q_DECLARE_TR_FUNCTIONS(FiguresText)
};

struct Figure {
    BenchmarkTest test;
    std::optional<double> RunRecord::* value;
    FigureKind kind;
    double unit; ///< of the value, in the record's unit
    int digits;
    const char16_t* unitName;
};

constexpr Figure figures[] = {
    {BenchmarkTest::sequentialWrite, &RunRecord::writeBps, FigureKind::sustained, 1e6, 1, u"MB/s"},
    {BenchmarkTest::sequentialWrite, &RunRecord::writePeakBps, FigureKind::peak, 1e6, 1, u"MB/s"},
    {BenchmarkTest::sequentialWrite, &RunRecord::writeMinBps, FigureKind::lowest, 1e6, 1, u"MB/s"},
    {BenchmarkTest::sequentialRead, &RunRecord::readBps, FigureKind::sustained, 1e6, 1, u"MB/s"},
    {BenchmarkTest::sequentialRead, &RunRecord::readPeakBps, FigureKind::peak, 1e6, 1, u"MB/s"},
    {BenchmarkTest::sequentialRead, &RunRecord::readMinBps, FigureKind::lowest, 1e6, 1, u"MB/s"},
    {BenchmarkTest::randomRead, &RunRecord::randomReadIOPS, FigureKind::sustained, 1, 0, u"IOPS"},
    {BenchmarkTest::randomWrite, &RunRecord::randomWriteIOPS, FigureKind::sustained, 1, 0, u"IOPS"},
    {BenchmarkTest::fileOps, &RunRecord::fileOpsPerSec, FigureKind::sustained, 1, 0, u"ops/s"},
};

} // namespace

QString figuresText(const RunRecord& run) {
    constexpr std::int64_t usualRandomBlock = 4096;
    const QChar tab = u'\t';
    // Behind a word of ours: a spreadsheet takes a text that begins with "=" for a formula.
    QStringList lines{FiguresText::tr("Run: %1 · %2")
                          .arg(run.title().simplified(), Format::runStamp(run.date, run.duration))};
    for (const Figure& figure : figures) {
        const std::optional<double> value = run.*figure.value;
        if (!value)
            continue;
        QString line =
            figureTitle(title(figure.test, run.randomBlock.value_or(usualRandomBlock)), figure.kind) + tab +
            Format::decimals(*value / figure.unit, figure.digits) + tab +
            (figure.test == BenchmarkTest::fileOps ? operationsPerSecond()
                                                   : QString::fromUtf16(figure.unitName));
        if (run.isInvalid(figure.test))
            line += tab + FiguresText::tr("not the disk’s figure");
        lines << line;
    }
    return lines.join(u'\n') + u'\n';
}

} // namespace TarnwickKit::model
