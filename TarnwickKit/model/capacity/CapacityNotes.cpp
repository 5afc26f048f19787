#include "TarnwickKit/model/capacity/CapacityText.h"

#include <QCoreApplication>

namespace TarnwickKit::model {

using namespace OndelCore::capacity;

namespace {

struct CapacityNoteText {
    Q_DECLARE_TR_FUNCTIONS(CapacityText)
};

QString limitsNote() {
    return CapacityNoteText::tr(
        "What no check can tell: whether the space under your files is sound, what the "
        "drive keeps in reserve, and whether a repaired block will last.");
}

QString quickNote(const CapacityRecord& check) {
    if (!check.result.quick->isSpread && !check.wasStopped)
        return CapacityNoteText::tr(
            "This file system sets no space aside without writing it, so the samples "
            "could not be spread. The result says nothing about the size of the volume: "
            "run a check that is not quick.");
    return check.isBad()
               ? CapacityNoteText::tr("A quick check writes a few places only: what lies between them "
                                      "was not looked at.")
               : CapacityNoteText::tr("A quick check writes a few places only. It finds most false "
                                      "capacities in seconds; finding nothing proves nothing.");
}

/// Why less was written than planned.
QString shortNote(const CapacityRecord& check) {
    return check.isBad() && check.result.earlyEnd == EarlyEnd::full
               ? CapacityNoteText::tr(
                     "Less was checked than planned: the volume was full too early. It may have "
                     "lost data of the file system itself.")
               : CapacityNoteText::tr(
                     "Less was checked than planned: other programs may have taken the space.");
}

void addDataNotes(QStringList& notes, const CapacityRecord& check) {
    const auto reach = check.result.circumstances.reach;
    if (reach == OndelCore::platform::FileSystemReach::memory)
        notes << CapacityNoteText::tr("This volume keeps its files in memory: no disk was checked.");
    else if (check.isFromMemory())
        notes << CapacityNoteText::tr("Only %1 % of what was read came from the disk. Check more than the "
                                      "machine’s memory can hold.")
                     .arg(static_cast<int>(100 * check.result.read.shareAtDisk.value_or(0)));
    else if (!check.result.read.shareAtDisk && check.result.verified > 0 && !check.wasStopped)
        notes << CapacityNoteText::tr(
            "The disk behind this volume cannot be seen, so what came back may have "
            "come from a cache.");
}

} // namespace

QStringList capacityNotes(const CapacityRecord& check) {
    QStringList notes;
    const CapacityResult& result = check.result;
    if (result.realSize)
        notes << CapacityNoteText::tr("What is written beyond its real size is lost, or destroys what lies "
                                      "elsewhere on it. Copy what you need from it, and do not trust it.");
    if (check.wasStopped && check.isBad())
        notes << CapacityNoteText::tr("The check was stopped: what it had not read back is not known.");
    if (result.unreadable > 0 && result.circumstances.checksumsData)
        notes << CapacityNoteText::tr("This file system returns nothing that does not match its checksums: "
                                      "changed data cannot be read on it.");
    if (result.quick)
        notes << quickNote(check);
    if (result.earlyEnd && result.earlyEnd != EarlyEnd::writeErrors && !check.isWhole())
        notes << shortNote(check);
    addDataNotes(notes, check);
    return notes << limitsNote();
}

} // namespace TarnwickKit::model
