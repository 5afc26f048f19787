#include "TarnwickHost/Progress.h"

#include "TarnwickKit/model/capacity/CapacityText.h"
#include "TarnwickKit/model/format/BenchmarkText.h"
#include "TarnwickKit/model/format/Format.h"

#include <QByteArray>

#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <set>

using namespace OndelCore::benchmark;
using namespace TarnwickKit::model;

namespace TarnwickHost {

namespace {

constexpr qsizetype titleColumns = 20;
constexpr qsizetype leastBarColumns = 8;
constexpr qsizetype mostBarColumns = 40;

/// The right end of the line: how much is done, and how fast. Fixed widths keep the line from jumping.
struct Amount {
    QString done;
    QString rate;
};

Amount bytesAmount(const BenchmarkProgress& progress) {
    QString done = Format::bytes(progress.completedBytes).rightJustified(10);
    if (progress.totalBytes > 0)
        done += " of " + Format::bytes(progress.totalBytes);
    return {done, Format::rate(progress.instantBytesPerSecond).rightJustified(9)};
}

Amount operationsAmount(const BenchmarkProgress& progress, std::int64_t perOperation, const QString& unit) {
    const std::int64_t completed = progress.completedBytes / perOperation;
    const std::int64_t all = progress.totalBytes / perOperation;
    const QString total = Format::grouped(static_cast<double>(all));
    const double rate = progress.elapsed > 0 ? static_cast<double>(completed) / progress.elapsed : 0;
    return {Format::grouped(static_cast<double>(completed)).rightJustified(total.size()) + " of " + total,
            (Format::compact(rate) + ' ' + unit).rightJustified(12)};
}

Amount amountOf(const BenchmarkProgress& progress, const BenchmarkPlan& plan) {
    switch (progress.test) {
    case BenchmarkTest::randomRead:
    case BenchmarkTest::randomWrite:
        return operationsAmount(progress, BenchmarkPlan::alignedBlock(plan.randomBlockSize), "IOPS");
    case BenchmarkTest::fileOps:
        return operationsAmount(progress, 1, "ops/s");
    case BenchmarkTest::sequentialWrite:
    case BenchmarkTest::sequentialRead:
        break;
    }
    return bytesAmount(progress);
}

QString bar(double fraction, qsizetype columns, bool unicode) {
    const auto filled = static_cast<qsizetype>(fraction * static_cast<double>(columns));
    const QChar full = unicode ? QChar(0x2501) : '#';
    const QChar empty = unicode ? QChar(0x2500) : '.';
    return QString(filled, full) + QString(columns - filled, empty);
}

/// The line with as many of the pieces behind it as fit.
QString withPieces(QString line, const QStringList& pieces, qsizetype columns) {
    for (const QString& piece : pieces)
        if (line.size() + 2 + piece.size() <= columns)
            line += "  " + piece;
    return line.left(columns);
}

/// Without a sequential write the engine prepares the data file first, and tells no progress meanwhile.
bool preparesFile(const BenchmarkPlan& plan) {
    return !plan.tests.contains(BenchmarkTest::sequentialWrite) &&
           plan.tests != std::set{BenchmarkTest::fileOps} && !plan.tests.empty();
}

} // namespace

QString progressLine(const BenchmarkProgress& progress, const BenchmarkPlan& plan, LineStyle style) {
    const qsizetype columns = std::max(style.columns, 0);
    const Amount amount = amountOf(progress, plan);
    QString line = title(progress.test, BenchmarkPlan::alignedBlock(plan.randomBlockSize));

    if (progress.totalBytes > 0) {
        const double fraction = std::clamp(static_cast<double>(progress.completedBytes) /
                                               static_cast<double>(progress.totalBytes),
                                           0.0, 1.0);
        const QString percent = QString::number(static_cast<int>(fraction * 100)).rightJustified(3) + " %";
        const qsizetype full =
            titleColumns + 2 + percent.size() + 2 + amount.done.size() + 2 + amount.rate.size();
        const qsizetype barColumns = std::min(columns - full - 2, mostBarColumns);
        if (barColumns >= leastBarColumns)
            line = line.leftJustified(titleColumns) + "  " + bar(fraction, barColumns, style.unicode);
        line += "  " + percent;
    }
    return withPieces(line, {amount.done, amount.rate}, columns);
}

QString checkLine(const CapacityCourse& course, LineStyle style) {
    const auto& last = course.last();
    if (!last)
        return "Starting";
    const qsizetype columns = std::max(style.columns, 0);
    QString line = capacityPhaseName(last->phase).leftJustified(titleColumns);
    if (const auto fraction = course.fraction()) {
        const qsizetype barColumns = std::min<qsizetype>(columns - 70, mostBarColumns / 2);
        if (barColumns >= leastBarColumns)
            line += bar(*fraction, barColumns, style.unicode) + "  ";
        line += QString::number(static_cast<int>(*fraction * 100)).rightJustified(3) + " %";
    }
    QStringList pieces;
    if (const auto rate = course.rate()) {
        pieces << Format::bytes(last->done).rightJustified(10) + " of " + Format::bytes(last->total)
               << Format::rate(*rate).rightJustified(9);
    }
    if (const auto left = course.timeLeft())
        pieces << spanText(*left) + " left";
    return withPieces(line, pieces, columns);
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
    const auto shown = [&](const QString& text) { replaceLine(text.left(style.columns)); };
    if (stopping)
        return shown("Stopping, removing the test files");

    std::unique_lock guard(m_lock);
    const auto latest = m_latest;
    guard.unlock();
    if (latest)
        return replaceLine(progressLine(*latest, m_plan, style));
    const auto waited = std::chrono::floor<std::chrono::seconds>(std::chrono::steady_clock::now() - m_start);
    shown((preparesFile(m_plan) ? "Preparing the test file, " : "Starting, ") +
          QString::number(waited.count()) + " s");
}

} // namespace TarnwickHost
