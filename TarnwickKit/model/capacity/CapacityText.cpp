#include "TarnwickKit/model/capacity/CapacityText.h"

#include "TarnwickKit/model/format/DisplayText.h"
#include "TarnwickKit/model/format/Format.h"
#include "TarnwickKit/model/format/Plural.h"
#include "TarnwickKit/model/format/VolumeText.h"
#include "TarnwickKit/model/runs/RunRecord.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <vector>

namespace TarnwickKit::model {

using namespace Qt::StringLiterals;
using namespace OndelCore::capacity;

namespace {

struct CapacityText {
    Q_DECLARE_TR_FUNCTIONS(CapacityText)
};

constexpr std::int64_t blockBytes = 4096;
/// From here on a size says more than a number of blocks.
constexpr std::int64_t countedBlocks = 10000;

std::int64_t blocksIn(std::int64_t bytes) { return bytes / blockBytes + (bytes % blockBytes > 0 ? 1 : 0); }

QString counted(std::int64_t count) { return Format::grouped(static_cast<double>(count)); }

bool isDefective(BlockState state) { return state >= BlockState::wrong; }

std::int64_t lostBytes(const CapacityResult& result) {
    return result.wrong + result.unreadable + result.writeFailed;
}

/// The listed defects that the sentence is about: what a second try got right matters only without others.
std::vector<CapacityDefect> mainDefects(const CapacityResult& result) {
    std::vector<CapacityDefect> main = result.defects;
    if (lostBytes(result) > 0)
        std::erase_if(main, [](const CapacityDefect& each) { return each.kind == DefectKind::recovered; });
    return main;
}

/// Where the first block lies that did not come back. A stopped check knows no better than its cells.
std::int64_t firstDefect(const CapacityResult& result) {
    if (const auto defects = mainDefects(result); !defects.empty())
        return defects.front().offset;
    const auto found = std::ranges::find_if(result.cells.states, isDefective);
    return found == result.cells.states.end()
               ? 0
               : (found - result.cells.states.begin()) * result.cells.cellBytes;
}

bool isFoundLaterOnly(const CapacityResult& result) {
    const auto defects = mainDefects(result);
    return !defects.empty() && result.furtherDefects == 0 &&
           std::ranges::all_of(defects, &CapacityDefect::isOnlyLater);
}

// --- The sentence on what is wrong

QString realSizeSentence(const CapacityRecord& check) {
    const CapacityRealSize& real = *check.result.realSize;
    const QString kept = decimalSize(real.bytes);
    if (!check.result.volumeTotal)
        return CapacityText::tr("This volume keeps only the first %1 of what is written to it.").arg(kept);
    const QString claimed = decimalSize(*check.result.volumeTotal);
    return real.isExact
               ? CapacityText::tr("This volume claims %1, but keeps only the first %2.").arg(claimed, kept)
               : CapacityText::tr("This volume claims %1, but keeps only about the first %2.")
                     .arg(claimed, kept);
}

/// What happened to blocks, as sentences for one block, for several at one place, for several at more places,
/// and for more than anybody counts.
struct BlockSentences {
    const char* one;
    const char* together;
    const char* scattered;
    const char* large;
};

QString told(const BlockSentences& sentences, const CapacityResult& result, std::int64_t bytes) {
    const std::int64_t blocks = blocksIn(bytes);
    // What could not be written is part of the whole, unless it is told alone, beside what was written.
    const std::int64_t range = result.written + (bytes > result.writeFailed ? result.writeFailed : 0);
    const QString place = Format::bytes(firstDefect(result));
    if (blocks == 1)
        return CapacityText::tr(sentences.one).arg(place);
    if (blocks >= countedBlocks)
        return CapacityText::tr(sentences.large).arg(Format::bytes(bytes), Format::bytes(range), place);
    const bool isTogether = mainDefects(result).size() == 1 && result.furtherDefects == 0;
    return CapacityText::tr(isTogether ? sentences.together : sentences.scattered, nullptr, plural(blocks))
        .arg(counted(blocks), place);
}

constexpr BlockSentences changedSentences{
    QT_TRANSLATE_NOOP("CapacityText", "One block at %1 came back changed."),
    QT_TRANSLATE_N_NOOP("CapacityText", "%1 blocks at %2 came back changed."),
    QT_TRANSLATE_N_NOOP("CapacityText", "%1 blocks came back changed, the first at %2."),
    QT_TRANSLATE_NOOP("CapacityText", "%1 of %2 came back changed, the first block at %3.")};
constexpr BlockSentences laterSentences{
    QT_TRANSLATE_NOOP("CapacityText", "One block at %1 was right at first, and changed later."),
    QT_TRANSLATE_N_NOOP("CapacityText", "%1 blocks at %2 were right at first, and changed later."),
    QT_TRANSLATE_N_NOOP("CapacityText", "%1 blocks were right at first and changed later, the first at %2."),
    QT_TRANSLATE_NOOP("CapacityText",
                      "%1 of %2 were right at first and changed later, the first block at %3.")};
constexpr BlockSentences unreadableSentences{
    QT_TRANSLATE_NOOP("CapacityText", "One block at %1 could not be read."),
    QT_TRANSLATE_N_NOOP("CapacityText", "%1 blocks at %2 could not be read."),
    QT_TRANSLATE_N_NOOP("CapacityText", "%1 blocks could not be read, the first at %2."),
    QT_TRANSLATE_NOOP("CapacityText", "%1 of %2 could not be read, the first block at %3.")};
constexpr BlockSentences unwrittenSentences{
    QT_TRANSLATE_NOOP("CapacityText", "One block at %1 could not be written."),
    QT_TRANSLATE_N_NOOP("CapacityText", "%1 blocks at %2 could not be written."),
    QT_TRANSLATE_N_NOOP("CapacityText", "%1 blocks could not be written, the first at %2."),
    QT_TRANSLATE_NOOP("CapacityText", "%1 beside %2 could not be written, the first block at %3.")};
constexpr BlockSentences recoveredSentences{
    QT_TRANSLATE_NOOP("CapacityText", "One block at %1 could be written or read only at a second try."),
    QT_TRANSLATE_N_NOOP("CapacityText", "%1 blocks at %2 could be written or read only at a second try."),
    QT_TRANSLATE_N_NOOP("CapacityText",
                        "%1 blocks could be written or read only at a second try, the first at %2."),
    QT_TRANSLATE_NOOP("CapacityText",
                      "%1 of %2 could be written or read only at a second try, the first block at %3.")};
constexpr BlockSentences mixedSentences{
    QT_TRANSLATE_NOOP("CapacityText", "One block at %1 did not come back as it was written."),
    QT_TRANSLATE_N_NOOP("CapacityText", "%1 blocks at %2 did not come back as they were written."),
    QT_TRANSLATE_N_NOOP("CapacityText", "%1 blocks did not come back as they were written, the first at %2."),
    QT_TRANSLATE_NOOP("CapacityText",
                      "%1 of %2 did not come back as they were written, the first block at %3.")};

QString badSentence(const CapacityRecord& check) {
    const CapacityResult& result = check.result;
    if (result.realSize)
        return realSizeSentence(check);
    const QString place = Format::bytes(firstDefect(result));
    if (check.wasStopped)
        return CapacityText::tr(
                   "Before it was stopped, the check met blocks that did not come back as they were "
                   "written, the first at %1.")
            .arg(place);
    if (result.earlyEnd == EarlyEnd::writeErrors && result.wrong + result.unreadable == 0)
        return CapacityText::tr("The volume could be written up to %1 of %2, and refused everything beyond.")
            .arg(Format::bytes(result.written), Format::bytes(result.planned));
    const std::int64_t all = lostBytes(result);
    if (all == 0)
        return told(recoveredSentences, result, result.recovered);
    if (isFoundLaterOnly(result))
        return told(laterSentences, result, all);
    if (result.wrong == all)
        return told(changedSentences, result, all);
    if (result.unreadable == all)
        return told(unreadableSentences, result, all);
    if (result.writeFailed == all)
        return told(unwrittenSentences, result, all);
    return told(mixedSentences, result, all);
}

// --- The sentence on what is right

QString stoppedSentence(const CapacityResult& result) {
    return result.verified == 0
               ? CapacityText::tr("The check was stopped before anything was read back.")
               : CapacityText::tr("The check was stopped when %1 of %2 had come back as written.")
                     .arg(Format::bytes(result.verified), Format::bytes(result.planned));
}

QString quickSentence(const CapacityRecord& check) {
    const QString range = Format::bytes(check.result.planned);
    if (check.result.quick && !check.result.quick->isSpread)
        return CapacityText::tr("This file system cannot spread samples: only %1 in one place were checked, "
                                "and hold what was written.")
            .arg(Format::bytes(check.result.written));
    return check.size
               ? CapacityText::tr("Samples all over %1 hold what was written, which is no proof.").arg(range)
               : CapacityText::tr(
                     "Samples all over %1 of free space hold what was written, which is no proof.")
                     .arg(range);
}

QString shortSentence(const CapacityResult& result) {
    const bool isQuota = result.earlyEnd == EarlyEnd::quota;
    return (isQuota
                ? CapacityText::tr("Your share of the volume was used up after %1 of %2; these hold what was "
                                   "written.")
                : CapacityText::tr("The volume was full after %1 of %2; these hold what was written."))
        .arg(Format::bytes(result.written), Format::bytes(result.planned));
}

QString goodSentence(const CapacityRecord& check) {
    const CapacityResult& result = check.result;
    const QString written = Format::bytes(result.written);
    if (check.isFromMemory())
        return CapacityText::tr("All %1 came back as written, but mostly from memory: that says little about "
                                "the disk.")
            .arg(written);
    return check.size ? CapacityText::tr("All %1 hold what was written.").arg(written)
                      : CapacityText::tr("All %1 of free space hold what was written.").arg(written);
}

// --- Facts

void addText(std::vector<CapacityFact>& facts, const QString& label, const QStringList& texts) {
    QStringList visible;
    for (const QString& text : texts)
        if (visibleText(text))
            visible << harmless(text);
    if (!visible.isEmpty())
        facts.push_back({label, visible.join(u" · "_s)});
}

void addSize(std::vector<CapacityFact>& facts, const QString& label, std::int64_t bytes) {
    if (bytes > 0)
        facts.push_back({label, Format::bytes(bytes), true});
}

void addPass(std::vector<CapacityFact>& facts, const QString& label, const CapacityPass& pass) {
    if (pass.bytes == 0)
        return;
    facts.push_back({label, pass.duration > 0 ? u"%1 · %2 · %3"_s.arg(Format::bytes(pass.bytes),
                                                                      Format::rate(pass.bytesPerSecond()),
                                                                      spanText(pass.duration))
                                              : Format::bytes(pass.bytes)});
}

void addSizes(std::vector<CapacityFact>& facts, const CapacityRecord& check) {
    const CapacityResult& result = check.result;
    if (result.volumeTotal)
        facts.push_back({CapacityText::tr("Claimed size"), decimalSize(*result.volumeTotal)});
    if (result.realSize) {
        const QString size = decimalSize(result.realSize->bytes);
        facts.push_back({CapacityText::tr("Real size"),
                         result.realSize->isExact ? size : CapacityText::tr("about %1").arg(size), true});
    }
    const QString range = Format::bytes(result.planned);
    facts.push_back({CapacityText::tr("Space to check"),
                     check.size ? range : CapacityText::tr("%1 of free space").arg(range)});
    if (result.quick && result.quick->isSpread)
        facts.push_back({CapacityText::tr("Samples"),
                         CapacityText::tr("%1, one every %2")
                             .arg(counted(result.quick->samples), Format::block(result.quick->spacing))});
    else if (result.quick && !check.wasStopped)
        facts.push_back({CapacityText::tr("Samples"), CapacityText::tr("In one place")});
}

QString pausedSentence(const CapacityDefect& defect, const QString& sentence) {
    return defect.isOnlyLater ? sentence + u' ' + CapacityText::tr("It was right at the first reading.")
                              : sentence;
}

QString flipSentence(const CapacityDefect& defect, const QString& place, const QString& length) {
    return defect.flippedBits == 1
               ? CapacityText::tr("At %1, %2: one bit was flipped.").arg(place, length)
               : CapacityText::tr("At %1, %2: %3 bits were flipped.", nullptr, plural(defect.flippedBits))
                     .arg(place, length, counted(defect.flippedBits));
}

QString failureSentence(const CapacityDefect& defect, const QString& place, const QString& length) {
    const QString why = defect.error ? QString::fromStdString(defect.error->message())
                                     : CapacityText::tr("no reason is known");
    const char* sentence = QT_TRANSLATE_NOOP("CapacityText", "At %1, %2: could not be read (%3).");
    if (defect.kind == DefectKind::writeFailed)
        sentence = QT_TRANSLATE_NOOP("CapacityText", "At %1, %2: could not be written (%3).");
    else if (defect.kind == DefectKind::recovered)
        sentence = QT_TRANSLATE_NOOP("CapacityText",
                                     "At %1, %2: could be written or read only at a second try (%3).");
    return CapacityText::tr(sentence).arg(place, length, why);
}

QString otherBlockSentence(const CapacityDefect& defect, const QString& place, const QString& length) {
    if (!defect.holds)
        return CapacityText::tr("At %1, %2: what was written elsewhere came back.").arg(place, length);
    return (defect.repeats
                ? CapacityText::tr("At %1, %2: the block that was written at %3 came back, again and again.")
                : CapacityText::tr("At %1, %2: what was written at %3 came back."))
        .arg(place, length, Format::bytes(*defect.holds));
}

QString defectSentence(const CapacityDefect& defect) {
    const QString place = Format::bytes(defect.offset);
    const QString length = Format::block(defect.length);
    switch (defect.kind) {
    case DefectKind::zeros:
        return CapacityText::tr("At %1, %2: zeros came back.").arg(place, length);
    case DefectKind::otherBlock:
        return otherBlockSentence(defect, place, length);
    case DefectKind::foreign:
        return CapacityText::tr("At %1, %2: something came back that was never written there.")
            .arg(place, length);
    case DefectKind::bitFlips:
        return flipSentence(defect, place, length);
    case DefectKind::unreadable:
    case DefectKind::writeFailed:
    case DefectKind::recovered:
        break;
    }
    return failureSentence(defect, place, length);
}

QString figureOfSpan(double seconds) {
    constexpr double fewSeconds = 9.95; // more would read 10.0
    const auto whole = static_cast<std::int64_t>(std::lround(std::clamp(seconds, 0.0, 1e12)));
    if (seconds < fewSeconds && seconds != std::round(seconds))
        return u"%1 s"_s.arg(Format::decimals(std::max(0.0, seconds), 1));
    if (whole < 100)
        return u"%1 s"_s.arg(whole);
    const std::int64_t minutes = (whole + 30) / 60;
    if (minutes < 100)
        return u"%1 min"_s.arg(minutes);
    return minutes % 60 == 0 ? u"%1 h"_s.arg(minutes / 60)
                             : u"%1 h %2 min"_s.arg(minutes / 60).arg(minutes % 60);
}

} // namespace

QString spanText(double seconds) { return Format::leftToRight(figureOfSpan(seconds)); }

QString decimalSize(std::int64_t bytes) {
    constexpr std::array units{"B"_L1, "kB"_L1, "MB"_L1, "GB"_L1, "TB"_L1};
    auto value = static_cast<double>(bytes);
    std::size_t unit = 0;
    for (; value >= 999.95 && unit + 1 < units.size(); ++unit) // 999.95 would read 1000.0
        value /= 1000;
    const double tenths = std::round(value * 10) / 10;
    return Format::leftToRight(Format::decimals(tenths, tenths == std::round(tenths) ? 0 : 1) + u' ' +
                               units.at(unit));
}

QString capacitySentence(const CapacityRecord& check) {
    if (check.isBad())
        return badSentence(check);
    if (check.wasStopped)
        return stoppedSentence(check.result);
    if (check.result.quick)
        return quickSentence(check);
    return check.isWhole() ? goodSentence(check) : shortSentence(check.result);
}

std::vector<CapacityFact> capacityFacts(const CapacityRecord& check) {
    const CapacityResult& result = check.result;
    std::vector<CapacityFact> facts;
    addText(facts, CapacityText::tr("Volume"),
            {volumeNameText(check.volumeName), connectionText(check.connection),
             check.fsType.value_or(QString())});
    addText(facts, CapacityText::tr("Drive"),
            {check.deviceModel.value_or(QString()), check.deviceProtocol.value_or(QString())});
    addSizes(facts, check);
    addPass(facts, CapacityText::tr("Written"), result.write);
    addPass(facts, CapacityText::tr("Read back"), result.read);
    if (result.readAgain)
        addPass(facts, CapacityText::tr("Read again after %1").arg(spanText(check.again.value_or(0))),
                *result.readAgain);
    if (result.verified > 0)
        facts.push_back({CapacityText::tr("As written"), Format::bytes(result.verified)});
    addSize(facts, CapacityText::tr("Changed"), result.wrong);
    addSize(facts, CapacityText::tr("Could not be read"), result.unreadable);
    addSize(facts, CapacityText::tr("Could not be written"), result.writeFailed);
    addSize(facts, CapacityText::tr("Only at a second try"), result.recovered);
    if (const auto share = result.read.shareAtDisk)
        facts.push_back({CapacityText::tr("Read from the disk"),
                         Format::percent(QString::number(static_cast<int>(100 * *share + 1e-9))),
                         check.isFromMemory()});
    return facts;
}

QStringList capacityDefects(const CapacityRecord& check, std::size_t most) {
    const auto& defects = check.result.defects;
    QStringList sentences;
    for (std::size_t index = 0; index < std::min(most, defects.size()); ++index)
        sentences << pausedSentence(defects[index], defectSentence(defects[index]));
    const std::int64_t more =
        static_cast<std::int64_t>(defects.size()) - sentences.size() + check.result.furtherDefects;
    if (more > 0)
        sentences
            << (more == 1
                    ? CapacityText::tr("And at one more place.")
                    : CapacityText::tr("And at %1 more places.", nullptr, plural(more)).arg(counted(more)));
    return sentences;
}

QString capacityPhaseName(CapacityPhase phase) {
    switch (phase) {
    case CapacityPhase::preparing:
        return CapacityText::tr("Preparing…");
    case CapacityPhase::sampling:
        return CapacityText::tr("Writing samples");
    case CapacityPhase::writing:
        return CapacityText::tr("Writing");
    case CapacityPhase::reading:
        return CapacityText::tr("Reading back");
    case CapacityPhase::waiting:
        return CapacityText::tr("Waiting");
    case CapacityPhase::readingAgain:
        break;
    }
    return CapacityText::tr("Reading again");
}

QString blockStateName(BlockState state) {
    switch (state) {
    case BlockState::untouched:
        return CapacityText::tr("Not written");
    case BlockState::written:
        return CapacityText::tr("Written");
    case BlockState::verified:
        return CapacityText::tr("As written");
    case BlockState::wrong:
        return CapacityText::tr("Changed");
    case BlockState::unreadable:
        return CapacityText::tr("Unreadable");
    case BlockState::writeFailed:
        break;
    }
    return CapacityText::tr("Not writable");
}

} // namespace TarnwickKit::model
