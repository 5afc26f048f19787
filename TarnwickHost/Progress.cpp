#include "TarnwickHost/Progress.h"

#include "TarnwickKit/model/capacity/CapacityText.h"
#include "TarnwickKit/model/format/BenchmarkText.h"
#include "TarnwickKit/model/format/DisplayText.h"
#include "TarnwickKit/model/format/Format.h"
#include "TarnwickKit/model/runs/Comparison.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QTextBoundaryFinder>

#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <set>

using namespace OndelCore::benchmark;
using namespace TarnwickKit::model;

namespace TarnwickHost {

namespace {

constexpr int titleColumns = 20;
constexpr int leastBarColumns = 8;
constexpr int mostBarColumns = 40;

struct HostProgress {
    Q_DECLARE_TR_FUNCTIONS(HostProgress)
};

QString blanksUpTo(int columns, const QString& text) {
    return QString(std::max(0, columns - columnsOf(text)), u' ');
}

/// The right end of the line: how much is done, and how fast. Fixed widths keep the line from jumping.
struct Amount {
    QString done;
    QString rate;
};

/// Both are sizes, or counts.
QString partOf(const QString& done, const QString& all) {
    //: "1.2 GiB of 5.0 GiB" are written; the numbers stand in columns of a fixed width.
    return HostProgress::tr("%1 of %2").arg(done, all);
}

Amount bytesAmount(const BenchmarkProgress& progress) {
    const QString done = Format::bytes(progress.completedBytes).rightJustified(10);
    return {progress.totalBytes > 0 ? partOf(done, Format::bytes(progress.totalBytes)) : done,
            Format::rate(progress.instantBytesPerSecond).rightJustified(9)};
}

Amount operationsAmount(const BenchmarkProgress& progress, std::int64_t perOperation, const QString& unit) {
    const std::int64_t completed = progress.completedBytes / perOperation;
    const std::int64_t all = progress.totalBytes / perOperation;
    const QString total = Format::grouped(static_cast<double>(all));
    const double rate = progress.elapsed > 0 ? static_cast<double>(completed) / progress.elapsed : 0;
    return {partOf(Format::grouped(static_cast<double>(completed)).rightJustified(total.size()), total),
            (Format::compact(rate) + ' ' + unit).rightJustified(12)};
}

Amount amountOf(const BenchmarkProgress& progress, const BenchmarkPlan& plan) {
    switch (progress.test) {
    case BenchmarkTest::randomRead:
    case BenchmarkTest::randomWrite:
        return operationsAmount(progress, BenchmarkPlan::alignedBlock(plan.randomBlockSize), "IOPS");
    case BenchmarkTest::fileOps:
        return operationsAmount(progress, 1, operationsPerSecond());
    case BenchmarkTest::sequentialWrite:
    case BenchmarkTest::sequentialRead:
        break;
    }
    return bytesAmount(progress);
}

QString bar(double fraction, int columns, bool unicode) {
    const auto filled = static_cast<int>(fraction * columns);
    const QChar full = unicode ? QChar(0x2501) : '#';
    const QChar empty = unicode ? QChar(0x2500) : '.';
    return QString(filled, full) + QString(columns - filled, empty);
}

/// The line with as many of the pieces behind it as fit.
QString withPieces(QString line, const QStringList& pieces, int columns) {
    for (const QString& piece : pieces)
        if (columnsOf(line) + 2 + columnsOf(piece) <= columns)
            line += "  " + piece;
    return beginningOf(line, columns);
}

/// Without a sequential write the engine prepares the data file first, and tells no progress meanwhile.
bool preparesFile(const BenchmarkPlan& plan) {
    return !plan.tests.contains(BenchmarkTest::sequentialWrite) &&
           plan.tests != std::set{BenchmarkTest::fileOps} && !plan.tests.empty();
}

} // namespace

QString progressLine(const BenchmarkProgress& progress, const BenchmarkPlan& plan, LineStyle style) {
    const int columns = std::max(style.columns, 0);
    const Amount amount = amountOf(progress, plan);
    QString line = title(progress.test, BenchmarkPlan::alignedBlock(plan.randomBlockSize));

    if (progress.totalBytes > 0) {
        const double fraction = std::clamp(static_cast<double>(progress.completedBytes) /
                                               static_cast<double>(progress.totalBytes),
                                           0.0, 1.0);
        const QString percent = QString::number(static_cast<int>(fraction * 100)).rightJustified(3) + " %";
        const QString blanks = blanksUpTo(titleColumns, line);
        const int full = columnsOf(line + blanks) + 2 + columnsOf(percent) + 2 + columnsOf(amount.done) + 2 +
                         columnsOf(amount.rate);
        const int barColumns = std::min(columns - full - 2, mostBarColumns);
        if (barColumns >= leastBarColumns)
            line += blanks + "  " + bar(fraction, barColumns, style.unicode);
        line += "  " + percent;
    }
    return withPieces(line, {amount.done, amount.rate}, columns);
}

QString checkLine(const CapacityCourse& course, LineStyle style) {
    const auto& last = course.last();
    if (!last)
        return HostProgress::tr("Starting");
    const int columns = std::max(style.columns, 0);
    QString line = capacityPhaseName(last->phase);
    line += blanksUpTo(titleColumns, line);
    if (const auto fraction = course.fraction()) {
        const int barColumns = std::min(columns - 70, mostBarColumns / 2);
        if (barColumns >= leastBarColumns)
            line += bar(*fraction, barColumns, style.unicode) + "  ";
        line += QString::number(static_cast<int>(*fraction * 100)).rightJustified(3) + " %";
    }
    QStringList pieces;
    if (const auto rate = course.rate()) {
        pieces << partOf(Format::bytes(last->done).rightJustified(10), Format::bytes(last->total))
               << Format::rate(*rate).rightJustified(9);
    }
    if (const auto left = course.timeLeft())
        //: %1: the time until the end, as "2 min".
        pieces << HostProgress::tr("%1 left").arg(spanText(*left));
    return withPieces(line, pieces, columns);
}

QString beginningOf(const QString& line, int columns) {
    QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, line);
    qsizetype fits = 0;
    for (qsizetype end = 0;
         (end = characters.toNextBoundary()) != -1 && columnsOf(line.left(end)) <= columns;)
        fits = end;
    return line.left(fits);
}

void replaceLine(const QString& line) {
    pollfd terminal{.fd = STDERR_FILENO, .events = POLLOUT, .revents = 0};
    if (poll(&terminal, 1, 0) != 1 || !(terminal.revents & POLLOUT))
        return;
    const QByteArray text = "\r" + line.toUtf8() + "\x1b[K";
    [[maybe_unused]] const ssize_t ignored =
        write(STDERR_FILENO, text.constData(), static_cast<std::size_t>(text.size()));
}

bool ProgressBar::isPossible() { return isatty(STDERR_FILENO) && qgetenv("TERM") != "dumb"; }

ProgressBar::ProgressBar(BenchmarkPlan plan)
    : m_plan(std::move(plan)) {}

ProgressBar::~ProgressBar() { replaceLine({}); }

void ProgressBar::note(const BenchmarkProgress& progress) {
    const std::lock_guard guard(m_lock);
    m_latest = progress;
}

void ProgressBar::draw(bool stopping) {
    const LineStyle style = lineStyle(STDERR_FILENO);
    const auto shown = [&](const QString& text) { replaceLine(beginningOf(text, style.columns)); };
    if (stopping)
        return shown(HostProgress::tr("Stopping, removing the test files"));

    std::unique_lock guard(m_lock);
    const auto latest = m_latest;
    guard.unlock();
    if (latest)
        return replaceLine(progressLine(*latest, m_plan, style));
    const auto waited = std::chrono::floor<std::chrono::seconds>(std::chrono::steady_clock::now() - m_start);
    //: %1: the seconds since the start.
    const QString what = preparesFile(m_plan) ? HostProgress::tr("Preparing the test file, %1 s")
                                              //: %1: the seconds since the start.
                                              : HostProgress::tr("Starting, %1 s");
    shown(what.arg(waited.count()));
}

} // namespace TarnwickHost
