#include "TarnwickKit/model/runs/FiguresText.h"

#include "TarnwickKit/model/format/BenchmarkText.h"
#include "TarnwickKit/model/format/Format.h"

#include <QStringList>

namespace TarnwickKit::model {

using namespace Qt::StringLiterals;
using OndelCore::benchmark::BenchmarkTest;

namespace {

struct Figure {
    BenchmarkTest test;
    std::optional<double> RunRecord::* value;
    const char16_t* suffix; ///< of the test's title
    double unit;            ///< of the value, in the record's unit
    int digits;
    const char16_t* unitName;
};

constexpr Figure figures[] = {
    {BenchmarkTest::sequentialWrite, &RunRecord::writeBps, u"", 1e6, 1, u"MB/s"},
    {BenchmarkTest::sequentialWrite, &RunRecord::writePeakBps, u", peak", 1e6, 1, u"MB/s"},
    {BenchmarkTest::sequentialWrite, &RunRecord::writeMinBps, u", lowest", 1e6, 1, u"MB/s"},
    {BenchmarkTest::sequentialRead, &RunRecord::readBps, u"", 1e6, 1, u"MB/s"},
    {BenchmarkTest::sequentialRead, &RunRecord::readPeakBps, u", peak", 1e6, 1, u"MB/s"},
    {BenchmarkTest::sequentialRead, &RunRecord::readMinBps, u", lowest", 1e6, 1, u"MB/s"},
    {BenchmarkTest::randomRead, &RunRecord::randomReadIOPS, u"", 1, 0, u"IOPS"},
    {BenchmarkTest::randomWrite, &RunRecord::randomWriteIOPS, u"", 1, 0, u"IOPS"},
    {BenchmarkTest::fileOps, &RunRecord::fileOpsPerSec, u"", 1, 0, u"ops/s"},
};

} // namespace

QString figuresText(const RunRecord& run) {
    constexpr std::int64_t usualRandomBlock = 4096;
    const QChar tab = u'\t';
    // Behind a word of ours: a spreadsheet takes a text that begins with "=" for a formula.
    QStringList lines{u"Run: "_s + run.title().simplified() + u" · "_s +
                      Format::runStamp(run.date, run.duration)};
    for (const Figure& figure : figures) {
        const std::optional<double> value = run.*figure.value;
        if (!value)
            continue;
        QString line = title(figure.test, run.randomBlock.value_or(usualRandomBlock)) +
                       QString::fromUtf16(figure.suffix) + tab +
                       Format::decimals(*value / figure.unit, figure.digits) + tab +
                       QString::fromUtf16(figure.unitName);
        if (run.isInvalid(figure.test))
            line += tab + u"not the disk’s figure"_s;
        lines << line;
    }
    return lines.join(u'\n') + u'\n';
}

} // namespace TarnwickKit::model
