#include "TarnwickKit/views/runs/RunFacts.h"

#include "TarnwickKit/model/format/Format.h"
#include "TarnwickKit/views/style/LegibleText.h"

#include <QtNumeric>

namespace TarnwickKit::views {

using model::RunRecord;
namespace Format = model::Format;

namespace {

constexpr std::int64_t usualRandomBlock = 4096;

class ItemList {
public:
    void add(const QString& label, const std::optional<QString>& value) {
        if (value)
            m_items.append(QVariant::fromValue(InfoItem{label, *value}));
    }
    QVariantList take() { return std::move(m_items); }

private:
    QVariantList m_items;
};

template <typename Value, typename Text>
std::optional<QString> words(const std::optional<Value>& value, Text text) {
    return value ? std::optional(text(*value)) : std::nullopt;
}

QVariantList minorFigures(const RunRecord& run) {
    const QString block = Format::block(run.randomBlock.value_or(usualRandomBlock));
    const auto figure = [](const std::optional<double>& value, const QString& unit) {
        return value ? Format::grouped(*value) + unit : QStringLiteral("--");
    };
    const QString iops = QStringLiteral(" IOPS");
    ItemList items;
    items.add(Runs::tr("Random %1 read").arg(block), figure(run.randomReadIOPS, iops));
    items.add(Runs::tr("Random %1 write").arg(block), figure(run.randomWriteIOPS, iops));
    items.add(Runs::tr("File operations"), figure(run.fileOpsPerSec, QStringLiteral(" /s")));
    return items.take();
}

void addBlocks(ItemList& items, const RunRecord& run) {
    const auto block = [&](bool wasMeasured, const std::optional<std::int64_t>& size) {
        return wasMeasured ? words(size, Format::block) : std::nullopt;
    };
    const auto write = block(run.writeBps.has_value(), run.writeBlock);
    const auto read = block(run.readBps.has_value(), run.readBlock);
    if (write && read && run.writeBlock == run.readBlock) {
        items.add(Runs::tr("Read/Write"), write);
    } else {
        items.add(Runs::tr("Write"), write);
        items.add(Runs::tr("Read"), read);
    }
    items.add(Runs::tr("Random"), block(run.randomReadBps || run.randomWriteBps, run.randomBlock));
}

QVariantList capturedFacts(const RunRecord& run) {
    ItemList items;
    items.add(Runs::tr("File system"), words(model::visibleText(run.fsType),
                                             [](const QString& type) { return legible(type).toUpper(); }));
    items.add(Runs::tr("Capacity"), words(run.capacityBytes, Format::bytes));
    items.add(Runs::tr("Free"), words(run.freeBytes, Format::bytes));
    items.add(Runs::tr("Size"), words(model::visibleText(run.sizeLabel), legible));
    addBlocks(items, run);
    items.add(Runs::tr("Cache"), words(run.bypassCache, [](bool bypassed) {
                  return bypassed ? Runs::tr("Bypassed") : Runs::tr("Cached");
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

RunFacts RunFacts::of(const RunRecord& run) {
    const bool isNetwork =
        run.kind == RunRecord::Kind::network || (run.fsType && model::isNetworkFilesystem(*run.fsType));
    const auto kind = isNetwork ? RunRecord::Kind::network : run.kind;
    const auto orNone = [](const std::optional<double>& rate) { return rate.value_or(qQNaN()); };
    return RunFacts{.id = run.id,
                    .title = legible(run.title()),
                    .screenshotTitle = legible(run.screenshotTitle()),
                    .screenshotSubtitle = legible(run.screenshotSubtitle()),
                    .badgeSymbol = symbolOf(kind),
                    .customTitle = legible(run.customTitle.value_or(QString())),
                    .stamp = Format::runStamp(run.date, run.duration),
                    .shortStamp = Format::shortStamp(run.date),
                    .connection = isNetwork ? Runs::tr("Network") : legible(run.connection),
                    .isNetwork = isNetwork,
                    .kind = static_cast<int>(kind),
                    .writeBps = orNone(run.writeBps),
                    .writePeakBps = orNone(run.writePeakBps),
                    .writeMinBps = orNone(run.writeMinBps),
                    .readBps = orNone(run.readBps),
                    .readPeakBps = orNone(run.readPeakBps),
                    .readMinBps = orNone(run.readMinBps),
                    .minor = minorFigures(run),
                    .captured = capturedFacts(run)};
}

} // namespace TarnwickKit::views
