#include "TarnwickKit/views/runs/RunFacts.h"

#include "TarnwickKit/model/format/BenchmarkText.h"
#include "TarnwickKit/model/format/Format.h"
#include "TarnwickKit/model/format/RemarkText.h"
#include "TarnwickKit/model/format/VolumeText.h"
#include "TarnwickKit/model/runs/Comparison.h"
#include "TarnwickKit/model/runs/FiguresText.h"
#include "TarnwickKit/views/style/LegibleText.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QtNumeric>

namespace TarnwickKit::views {

using model::RunRecord;
using OndelCore::benchmark::BenchmarkTest;
using OndelCore::benchmark::Latency;
using OndelCore::benchmark::Remark;
using OndelCore::benchmark::RemarkWeight;
namespace Format = model::Format;

namespace {

struct RunFactsText {
    Q_DECLARE_TR_FUNCTIONS(RunFactsText)
};

constexpr std::int64_t usualRandomBlock = 4096;

class ItemList {
public:
    void add(const QString& label, const std::optional<QString>& value) {
        if (value)
            m_items.append(QVariant::fromValue(InfoItem{label, *value}));
    }
    void add(const InfoItem& item) { m_items.append(QVariant::fromValue(item)); }
    QVariantList take() { return std::move(m_items); }

private:
    QVariantList m_items;
};

template <typename Value, typename Text>
std::optional<QString> words(const std::optional<Value>& value, Text text) {
    return value ? std::optional(text(*value)) : std::nullopt;
}

constexpr QLatin1StringView dot(" \xB7 ");

QString latencyLine(const Latency& latency) { return model::latencyFigures(latency).join(dot); }

QString testTitle(BenchmarkTest test, const RunRecord& run) {
    return model::title(test, run.randomBlock.value_or(usualRandomBlock));
}

/// Which of the shown figures are not the disk's.
QString lineOfMarks(const RunRecord& run) {
    QStringList titles;
    for (const model::CompareMetric& metric : model::CompareMetric::all())
        if (run.*metric.magnitude && run.isInvalid(metric.test))
            titles << testTitle(metric.test, run);
    if (titles.isEmpty())
        return {};
    //: Names of tests follow
    return (titles.size() == 1 ? RunFactsText::tr("Not the disk’s figure: %1")
                               : RunFactsText::tr("Not the disk’s figures: %1"))
        .arg(titles.join(QStringLiteral(", ")));
}

QString symbolOf(RemarkWeight weight) {
    switch (weight) {
    case RemarkWeight::invalid:
        return QStringLiteral("exclamationmark.octagon.fill");
    case RemarkWeight::caution:
        return QStringLiteral("exclamationmark.triangle.fill");
    case RemarkWeight::note:
        break;
    }
    return QStringLiteral("info.circle");
}

QVariantList minorFigures(const RunRecord& run) {
    const QString block = Format::block(run.randomBlock.value_or(usualRandomBlock));
    ItemList items;
    const auto add = [&](BenchmarkTest test, const QString& label, const std::optional<double>& value,
                         const QString& unit, std::optional<Latency> model::RunEvidence::* latency) {
        const bool hasLatency = value && latency && run.evidence && *run.evidence.*latency;
        items.add(InfoItem{.label = label,
                           .value = value ? Format::grouped(*value) + unit : QStringLiteral("--"),
                           .warning = value && run.isInvalid(test),
                           .note = hasLatency ? latencyLine(*(*run.evidence.*latency)) : QString(),
                           .test = model::name(test)});
    };
    const QString iops = QStringLiteral(" IOPS");
    //: %1 is the size of a block, as 4 KiB
    add(BenchmarkTest::randomRead, RunFactsText::tr("Random %1 read").arg(block), run.randomReadIOPS, iops,
        &model::RunEvidence::randomReadLatency);
    //: %1 is the size of a block, as 4 KiB
    add(BenchmarkTest::randomWrite, RunFactsText::tr("Random %1 write").arg(block), run.randomWriteIOPS, iops,
        &model::RunEvidence::randomWriteLatency);
    add(BenchmarkTest::fileOps, RunFactsText::tr("File operations"), run.fileOpsPerSec, QStringLiteral(" /s"),
        nullptr);
    return items.take();
}

void addBlocks(ItemList& items, const RunRecord& run) {
    const auto block = [&](bool wasMeasured, const std::optional<std::int64_t>& size) {
        return wasMeasured ? words(size, Format::block) : std::nullopt;
    };
    const auto write = block(run.writeBps.has_value(), run.writeBlock);
    const auto read = block(run.readBps.has_value(), run.readBlock);
    if (write && read && run.writeBlock == run.readBlock) {
        //: The size of the blocks that were read and written
        items.add(RunFactsText::tr("Read/Write"), write);
    } else {
        //: The size of the blocks that were written
        items.add(RunFactsText::tr("Write"), write);
        //: The size of the blocks that were read
        items.add(RunFactsText::tr("Read"), read);
    }
    //: The size of the blocks that were read and written at random
    items.add(RunFactsText::tr("Random"), block(run.randomReadBps || run.randomWriteBps, run.randomBlock));
}

QVariantList capturedFacts(const RunRecord& run) {
    ItemList items;
    if (const QString drive = driveOf(run); !drive.isEmpty())
        items.add(RunFactsText::tr("Drive"), drive);
    items.add(RunFactsText::tr("File system"), words(model::visibleText(run.fsType), [](const QString& type) {
                  return legible(type).toUpper();
              }));
    items.add(RunFactsText::tr("Capacity"), words(run.capacityBytes, Format::bytes));
    //: The free space of the volume
    items.add(RunFactsText::tr("Free"), words(run.freeBytes, Format::bytes));
    //: The size of the test's file
    items.add(RunFactsText::tr("Size"), words(model::visibleText(run.sizeLabel), [](const QString& size) {
                  return legible(model::testSizeText(size));
              }));
    addBlocks(items, run);
    items.add(RunFactsText::tr("Cache"), words(run.bypassCache, [](bool bypassed) {
                  return bypassed ? /*: The system's cache was */ RunFactsText::tr("Bypassed")
                                  : /*: Reads and writes went through the system's cache */ RunFactsText::tr(
                                        "Cached");
              }));
    return items.take();
}

QString symbolOf(RunRecord::Kind kind) {
    switch (kind) {
    case RunRecord::Kind::internalDrive:
        return QStringLiteral("internaldrive");
    case RunRecord::Kind::external:
        return QStringLiteral("externaldrive");
    case RunRecord::Kind::network:
        return QStringLiteral("externaldrive.connected.to.line.below");
    }
    Q_UNREACHABLE();
}

} // namespace

QString driveOf(const RunRecord& run, const QString& title) {
    const std::optional<QString> model = model::visibleText(run.deviceModel);
    if (!model)
        return {};
    QStringList names;
    for (const auto& name : {model, model::visibleText(run.deviceProtocol)})
        if (name && *name != title)
            names << legible(*name);
    return names.join(dot);
}

QList<RemarkItem> remarkItems(const RunRecord& run) {
    QList<RemarkItem> items;
    for (const Remark& remark : run.remarks.value_or(std::vector<Remark>())) {
        const QString sentence = model::remarkSentence(remark);
        if (sentence.isEmpty())
            continue;
        items << RemarkItem{
            .weight = static_cast<int>(remark.weight),
            .word = model::remarkWeightWord(remark.weight),
            .symbol = symbolOf(remark.weight),
            .sentence = remark.test ? RunFactsText::tr("%1: %2").arg(testTitle(*remark.test, run), sentence)
                                    : sentence,
            .advice = model::remarkAdvice(remark)};
    }
    return items;
}

ComparedRuns Runs::history(const model::AnalyzerModel* analyzer) { return {analyzer->history().runs()}; }

QVariantList Runs::remarks(const RunRecord& run) {
    QVariantList items;
    for (const RemarkItem& item : remarkItems(run))
        items << QVariant::fromValue(item);
    return items;
}

bool Runs::hasRemarks(const RunRecord& run) { return !remarkItems(run).isEmpty(); }

QString Runs::copyFigures(const RunRecord& run) {
    QClipboard* clipboard = QGuiApplication::clipboard();
    clipboard->setText(model::figuresText(run));
    return clipboard->ownsClipboard() ? RunFactsText::tr("Figures copied")
                                      : RunFactsText::tr("The figures couldn't be copied.");
}

QString Runs::spoken(const QString& figure, bool isMarked) {
    return isMarked ? RunFactsText::tr("%1, not the disk’s figure").arg(figure) : figure;
}

RunFacts RunFacts::of(const RunRecord& run) {
    const bool isNetwork =
        run.kind == RunRecord::Kind::network || (run.fsType && model::isNetworkFilesystem(*run.fsType));
    const auto kind = isNetwork ? RunRecord::Kind::network : run.kind;
    const auto orNone = [](const std::optional<double>& rate) { return rate.value_or(qQNaN()); };
    return RunFacts{
        .id = run.id,
        .title = legible(run.title()),
        .screenshotTitle = legible(run.screenshotTitle()),
        .screenshotSubtitle = legible(run.screenshotSubtitle()),
        .badgeSymbol = symbolOf(kind),
        .customTitle = legible(run.customTitle.value_or(QString())),
        .stamp = Format::runStamp(run.date, run.duration),
        .shortStamp = Format::shortStamp(run.date),
        .connection = legible(model::connectionText(isNetwork ? QStringLiteral("Network") : run.connection)),
        .isNetwork = isNetwork,
        .kind = static_cast<int>(kind),
        .writeBps = orNone(run.writeBps),
        .writePeakBps = orNone(run.writePeakBps),
        .writeMinBps = orNone(run.writeMinBps),
        .readBps = orNone(run.readBps),
        .readPeakBps = orNone(run.readPeakBps),
        .readMinBps = orNone(run.readMinBps),
        .isWriteMarked = run.writeBps && run.isInvalid(BenchmarkTest::sequentialWrite),
        .isReadMarked = run.readBps && run.isInvalid(BenchmarkTest::sequentialRead),
        .markedLine = lineOfMarks(run),
        .minor = minorFigures(run),
        .captured = capturedFacts(run)};
}

} // namespace TarnwickKit::views
