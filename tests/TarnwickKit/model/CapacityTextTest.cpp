#include "TarnwickKit/model/capacity/CapacityText.h"

#include "SampleCheck.h"
#include "TarnwickKit/model/capacity/CapacityCodec.h"
#include "TarnwickKit/model/capacity/CapacityFields.h"
#include "TarnwickKit/model/capacity/CapacityReport.h"

#include <QFile>

#include <gtest/gtest.h>

#include <cerrno>
#include <string_view>

namespace TarnwickKit::model {

namespace {

using capacity::CapacityDefect;
using capacity::DefectKind;

struct Outcome {
    CapacityRecord check;
    CapacityVerdict verdict;
    const char* sentence;
};

CapacityRecord with(CapacityRecord check, const auto& change) {
    change(check);
    return check;
}

CapacityDefect defect(DefectKind kind, std::int64_t offset, std::int64_t blocks) {
    return {.kind = kind, .offset = offset, .length = blocks * 4096};
}

constexpr std::int64_t somewhere = 41 * gibi + gibi / 5;

const std::vector<Outcome>& outcomes() {
    using enum CapacityVerdict;
    static const std::vector<Outcome> table{
        {goodCheck(), good, "All 118.0 GiB of free space hold what was written."},
        {with(goodCheck(4 * gibi), [](auto& check) { check.size = 4 * gibi; }), good,
         "All 4.0 GiB hold what was written."},
        {with(goodCheck(),
              [](auto& check) {
                  check.result.written = check.result.verified = 117 * gibi;
                  check.result.earlyEnd = capacity::EarlyEnd::full;
              }),
         good, "All 117.0 GiB of free space hold what was written."},
        {with(goodCheck(),
              [](auto& check) {
                  check.result.written = check.result.verified = 31 * gibi;
                  check.result.earlyEnd = capacity::EarlyEnd::full;
              }),
         unproven, "The volume was full after 31.0 GiB of 118.0 GiB; these hold what was written."},
        {with(goodCheck(),
              [](auto& check) {
                  check.result.written = check.result.verified = 117 * gibi;
                  check.result.earlyEnd = capacity::EarlyEnd::quota;
              }),
         unproven,
         "Your share of the volume was used up after 117.0 GiB of 118.0 GiB; these hold what was written."},
        {with(goodCheck(), [](auto& check) { check.result.read.shareAtDisk = 0.89; }), unproven,
         "All 118.0 GiB came back as written, but mostly from memory: that says little about the disk."},
        {with(goodCheck(), [](auto& check) { check.result.quick.emplace().isSpread = true; }), unproven,
         "Samples all over 118.0 GiB of free space hold what was written, which is no proof."},
        {with(goodCheck(),
              [](auto& check) {
                  check.result.quick.emplace();
                  check.result.written = check.result.verified = 64 * mebi;
              }),
         unproven,
         "This file system cannot spread samples: only 64.0 MiB in one place were checked, and hold what was "
         "written."},
        {stoppedCheck(0), unproven, "The check was stopped before anything was read back."},
        {stoppedCheck(118 * gibi), unproven, // before the second reading
         "The check was stopped when 118.0 GiB of 118.0 GiB had come back as written."},
        {stoppedCheck(31 * gibi), unproven,
         "The check was stopped when 31.0 GiB of 118.0 GiB had come back as written."},
        {with(stoppedCheck(31 * gibi),
              [](auto& check) {
                  check.result.wrong = 4096;
                  check.result.cells.states[2048] = capacity::BlockState::unreadable;
              }),
         bad,
         "Before it was stopped, the check met blocks that did not come back as they were written, the first "
         "at 59.0 GiB."},
        {falseCheck(31'400'000'000, true), bad,
         "This volume claims 128 GB, but keeps only the first 31.4 GB."},
        {falseCheck(31'400'000'000, false), bad,
         "This volume claims 128 GB, but keeps only about the first 31.4 GB."},
        {with(falseCheck(31'400'000'000, true), [](auto& check) { check.result.volumeTotal.reset(); }), bad,
         "This volume keeps only the first 31.4 GB of what is written to it."},
        {badCheck({defect(DefectKind::bitFlips, somewhere, 1)}), bad,
         "One block at 41.2 GiB came back changed."},
        {badCheck({defect(DefectKind::zeros, somewhere, 3)}), bad, "3 blocks at 41.2 GiB came back changed."},
        {badCheck({defect(DefectKind::zeros, somewhere, 1200), defect(DefectKind::foreign, 60 * gibi, 34)}),
         bad, "1,234 blocks came back changed, the first at 41.2 GiB."},
        {badCheck({defect(DefectKind::zeros, somewhere, gibi / 4096)}), bad,
         "1.0 GiB of 118.0 GiB came back changed, the first block at 41.2 GiB."},
        {badCheck({defect(DefectKind::unreadable, somewhere, 3)}), bad,
         "3 blocks at 41.2 GiB could not be read."},
        {badCheck({defect(DefectKind::writeFailed, somewhere, 1)}), bad,
         "One block at 41.2 GiB could not be written."},
        {with(badCheck({defect(DefectKind::writeFailed, somewhere, 256)}),
              [](auto& check) {
                  check.result.written = somewhere;
                  check.result.earlyEnd = capacity::EarlyEnd::writeErrors;
              }),
         bad, "The volume could be written up to 41.2 GiB of 118.0 GiB, and refused everything beyond."},
        {badCheck({defect(DefectKind::zeros, somewhere, 1), defect(DefectKind::unreadable, 60 * gibi, 2)}),
         bad, "3 blocks did not come back as they were written, the first at 41.2 GiB."},
        {with(badCheck({defect(DefectKind::unreadable, 0, gibi / 4096),
                        defect(DefectKind::writeFailed, gibi, 2 * gibi / 4096)}),
              [](auto& check) { check.result.written = gibi; }),
         bad, "3.0 GiB of 3.0 GiB did not come back as they were written, the first block at 0 B."},
        {with(badCheck({defect(DefectKind::bitFlips, somewhere, 2)}),
              [](auto& check) { check.result.defects.front().isOnlyLater = true; }),
         bad, "2 blocks at 41.2 GiB were right at first, and changed later."},
        {with(goodCheck(),
              [](auto& check) {
                  check.result.defects = {defect(DefectKind::recovered, somewhere, 256)};
                  check.result.recovered = mebi;
              }),
         bad, "256 blocks at 41.2 GiB could be written or read only at a second try."},
        {with(badCheck(
                  {defect(DefectKind::recovered, mebi, 256), defect(DefectKind::unreadable, somewhere, 3)}),
              [](auto& check) {
                  check.result.wrong = 0;
                  check.result.recovered = mebi;
              }),
         bad, "3 blocks at 41.2 GiB could not be read."},
    };
    return table;
}

TEST(CapacityText, TellsEachOutcomeInOneSentence) {
    for (const Outcome& outcome : outcomes()) {
        EXPECT_EQ(capacitySentence(outcome.check).toStdString(), outcome.sentence);
        EXPECT_EQ(outcome.check.verdict(), outcome.verdict) << outcome.sentence;
    }
}

TEST(CapacityText, TellsWhatCameBackAndWhere) {
    CapacityRecord check = badCheck(
        {defect(DefectKind::zeros, 0, 1), defect(DefectKind::otherBlock, mebi, 2),
         defect(DefectKind::otherBlock, 2 * mebi, 2), defect(DefectKind::otherBlock, 2 * mebi + 8192, 2),
         defect(DefectKind::foreign, 3 * mebi, 1), defect(DefectKind::bitFlips, gibi, 1),
         defect(DefectKind::bitFlips, 2 * gibi, 1), defect(DefectKind::unreadable, 3 * gibi, 1),
         defect(DefectKind::writeFailed, 4 * gibi, 1)});
    auto& defects = check.result.defects;
    defects[1].holds = 5 * gibi;
    defects[3].holds = 6 * gibi;
    defects[3].repeats = true;
    defects[5].flippedBits = 1;
    defects[6].flippedBits = 1234;
    defects[6].isOnlyLater = true;
    defects[7].error = std::error_code(EIO, std::system_category());
    check.result.furtherDefects = 1;
    EXPECT_EQ(
        capacityDefects(check, 9),
        QStringList(
            {"At 0 B, 4 KiB: zeros came back.", "At 1.0 MiB, 8 KiB: what was written at 5.0 GiB came back.",
             "At 2.0 MiB, 8 KiB: what was written elsewhere came back.",
             "At 2.0 MiB, 8 KiB: the block that was written at 6.0 GiB came back, again and again.",
             "At 3.0 MiB, 4 KiB: something came back that was never written there.",
             "At 1.0 GiB, 4 KiB: one bit was flipped.",
             "At 2.0 GiB, 4 KiB: 1,234 bits were flipped. It was right at the first reading.",
             "At 3.0 GiB, 4 KiB: could not be read (Input/output error).",
             "At 4.0 GiB, 4 KiB: could not be written (no reason is known).", "And at one more place."}));
    EXPECT_EQ(capacityDefects(check, 2).last(), "And at 8 more places.");
}

TEST(CapacityText, SaysWhatItDoesNotKnow) {
    using OndelCore::platform::FileSystemReach;
    EXPECT_EQ(capacityNotes(goodCheck()).size(), 1);
    const auto quick = [](CapacityRecord check, bool isSpread) {
        check.result.quick = {.isSpread = isSpread};
        return check;
    };
    const auto filled = [](CapacityRecord check) {
        check.result.written = mebi;
        check.result.earlyEnd = capacity::EarlyEnd::full;
        return check;
    };
    const CapacityRecord changed = badCheck({defect(DefectKind::zeros, 0, 1)});
    const CapacityRecord unreadable = badCheck({defect(DefectKind::unreadable, 0, 1)});
    const std::vector<std::pair<CapacityRecord, const char*>> table{
        {quick(goodCheck(), true),
         "A quick check writes a few places only. It finds most false capacities in seconds; finding nothing "
         "proves nothing."},
        {quick(changed, true),
         "A quick check writes a few places only: what lies between them was not looked at."},
        {quick(goodCheck(), false),
         "This file system sets no space aside without writing it, so the samples could not be spread. The "
         "result says nothing about the size of the volume: run a check that is not quick."},
        {quick(stoppedCheck(0), false),
         "A quick check writes a few places only. It finds most false capacities in seconds; finding nothing "
         "proves nothing."},
        {stoppedCheck(31 * gibi), // what the disk had to do is not known
         "What no check can tell: whether the space under your files is sound, what the drive keeps in "
         "reserve, and whether a repaired block will last."},
        {filled(goodCheck()), "Less was checked than planned: other programs may have taken the space."},
        {filled(changed), "Less was checked than planned: the volume was full too early. It may have lost "
                          "data of the file system itself."},
        {falseCheck(31'400'000'000, true),
         "What is written beyond its real size is lost, or destroys what lies elsewhere on it. Copy what you "
         "need from it, and do not trust it."},
        {with(unreadable, [](auto& check) { check.result.circumstances.checksumsData = true; }),
         "This file system returns nothing that does not match its checksums: changed data cannot be read on "
         "it."},
        {unreadable,
         "What no check can tell: whether the space under your files is sound, what the drive keeps "
         "in reserve, and whether a repaired block will last."},
        {with(goodCheck(), [](auto& check) { check.result.read.shareAtDisk = 0.12; }),
         "Only 12 % of what was read came from the disk. Check more than the machine’s memory can hold."},
        {with(goodCheck(), [](auto& check) { check.result.read.shareAtDisk.reset(); }),
         "The disk behind this volume cannot be seen, so what came back may have come from a cache."},
        {with(goodCheck(), [](auto& check) { check.result.circumstances.reach = FileSystemReach::memory; }),
         "This volume keeps its files in memory: no disk was checked."},
        {with(stoppedCheck(0), [](auto& check) { check.result.wrong = 4096; }),
         "The check was stopped: what it had not read back is not known."},
    };
    for (const auto& [check, first] : table) {
        const QStringList notes = capacityNotes(check);
        EXPECT_EQ(notes.first().toStdString(), first);
        EXPECT_TRUE(notes.last().startsWith("What no check can tell: whether the space under your files"));
    }
}

TEST(CapacityText, TellsHowTheSamplesLie) {
    const auto samples = [](const CapacityRecord& check) {
        for (const CapacityFact& fact : capacityFacts(check))
            if (fact.label == "Samples")
                return fact.value.toStdString();
        return std::string();
    };
    CapacityRecord check = goodCheck();
    EXPECT_EQ(samples(check), "");
    check.result.quick = {.isSpread = true, .reserved = gibi, .samples = 1030, .spacing = mebi};
    EXPECT_EQ(samples(check), "1,030, one every 1 MiB");
    check.result.quick = {.samples = 1};
    EXPECT_EQ(samples(check), "In one place");
    check.wasStopped = true; // nobody knows
    EXPECT_EQ(samples(check), "");
}

TEST(CapacityText, ReportsInFullWithinTheWidth) {
    CapacityRecord check = falseCheck(31'400'000'000, true);
    check.volumeName = QStringLiteral("STICK\x1b[2J\n");
    const QString report = capacityReport(check, {.columns = 60});
    EXPECT_FALSE(report.contains(QChar(0x1b)));
    for (const QString& line : report.split('\n'))
        EXPECT_LE(line.size(), 60) << line.toStdString();
    for (const char* part :
         {"This volume claims 128 GB, but keeps only the first 31.4", "Real size             31.4 GB",
          "Written               118.0 GiB · 84 MB/s · 25 min",
          "What no check can tell:", "Ondel Tarnwick 1.0.0"})
        EXPECT_TRUE(report.contains(QString::fromUtf8(part))) << part << " in\n" << report.toStdString();
    EXPECT_EQ(capacityReportName(goodCheck()), "Capacity of STICK 2026-03-14.txt");
}

TEST(CapacityText, SpellsSizesAndSpans) {
    const std::vector<std::pair<std::int64_t, const char*>> sizes{{0, "0 B"},
                                                                  {128'000'000'000, "128 GB"},
                                                                  {31'366'000'000, "31.4 GB"},
                                                                  {999'960'000, "1 GB"},
                                                                  {2'000'398'934'016, "2 TB"}};
    for (const auto& [bytes, text] : sizes)
        EXPECT_EQ(decimalSize(bytes), text);
    const std::vector<std::pair<double, const char*>> spans{
        {0.44, "0.4 s"}, {3, "3 s"},       {9.97, "10 s"}, {99.4, "99 s"},
        {100, "2 min"},  {5940, "99 min"}, {7200, "2 h"},  {9030, "2 h 31 min"}};
    for (const auto& [seconds, text] : spans)
        EXPECT_EQ(spanText(seconds), text);
}

// --- Files

TEST(CapacityCodec, ReadsWhatItWrites) {
    std::vector<CapacityRecord> checks;
    for (const Outcome& outcome : outcomes())
        checks.push_back(outcome.check);
    CapacityRecord full = badCheck({{.kind = DefectKind::otherBlock,
                                     .offset = somewhere,
                                     .length = 8192,
                                     .holds = gibi,
                                     .flippedBits = 7,
                                     .error = std::error_code(EIO, std::system_category()),
                                     .repeats = true,
                                     .isOnlyLater = true}});
    full.result.recovered = 4096;
    full.size = 118 * gibi;
    full.again = 600;
    full.deviceModel = QStringLiteral("ACME “Flash”");
    full.deviceProtocol = QStringLiteral("USB");
    full.result.furtherDefects = 3;
    full.result.realSize = {capacity::CapacityRealSize::Reason::dropsBeyond, gibi, false};
    full.result.earlyEnd = capacity::EarlyEnd::quota;
    full.result.write.flushError = std::error_code(ENOSPC, std::system_category());
    full.result.write.wentThroughCache = true;
    full.result.write.evidence.longPauses = 2;
    full.result.read.evidence.diskReads = {4096, 1};
    full.result.readAgain = full.result.read;
    full.result.readAgain->evidence = {};
    full.result.quick = {true, gibi, 100, mebi};
    full.result.circumstances.kernel = "6.1.0-18-amd64";
    full.result.circumstances.reach = OndelCore::platform::FileSystemReach::device;
    full.result.cells.states[7] = capacity::BlockState::untouched;
    checks.push_back(full);
    for (const CapacityRecord& check : checks) {
        const auto json = encodeCheck(check);
        ASSERT_TRUE(json);
        EXPECT_EQ(decodeCheck(*json), check) << json->left(900).toStdString();
        // What the terminal prints is read as well.
        EXPECT_EQ(decodeCheck(checkJson(check).value()), check);
    }
    EXPECT_TRUE(checkJson(full)->startsWith(
        R"({"formatVersion":1,"verdict":"bad","sentence":"This volume claims 128 GB, but keeps only about)"));
}

TEST(CapacityCodec, WritesNoKeyThatIsNotDescribed) {
    QFile page(ONDEL_DOCS "/run-file.md");
    ASSERT_TRUE(page.open(QIODevice::ReadOnly));
    const QByteArray text = page.readAll();
    const QByteArray section = text.mid(text.indexOf("## A capacity check"));
    const auto look = [&](std::string_view key, const auto&) {
        EXPECT_TRUE(section.contains('`' + QByteArray(key.data(), std::ssize(key)) + '`')) << key;
    };
    const auto lookAt = [&look](auto... parts) { (visitFields(parts, look), ...); };
    lookAt(CapacityRecord(), CapacityDefect(), capacity::CapacityRealSize(), capacity::CapacityPass(),
           capacity::CapacitySampling(), capacity::CapacityCells());
    for (const DefectKind kind : capacity::allDefectKinds)
        look(rawValue(kind), kind);
}

TEST(CapacityCodec, RefusesWhatCannotBe) {
    const CapacityRecord check =
        badCheck({{.kind = DefectKind::zeros, .offset = 8192, .length = 4096, .holds = 12288}});
    const QByteArray good = *encodeCheck(check);
    const std::vector<std::pair<const char*, const char*>> changes{
        {R"("offset":8192)", R"("offset":-8192)"},
        {R"("kind":"zeros")", R"("kind":"holes")"},
        {R"("kind":"zeros",)", ""},
        {R"("cells":{)", R"("cells":{"states":"w?",)"},
        {R"("shareAtDisk":1)", R"("shareAtDisk":1.5)"},
        {R"("duration":2702.5)", R"("duration":1e300)"},
        {R"("date":"2026-)", R"("date":"026-)"},
        {R"("id":"0)", R"("id":")"},
        {R"("planned":)", R"("planned":"many","was":)"},
        {R"("id":)", R"("formatVersion":2,"id":)"},
        {R"("defects":[)", R"("errors":[)"},
    };
    for (const auto& [from, to] : changes) {
        QByteArray text = good;
        ASSERT_TRUE(text.contains(from)) << from << " in " << text.left(900).toStdString();
        text.replace(from, to);
        const bool isExtra = QByteArrayView(to).startsWith("\"errors");
        EXPECT_EQ(decodeCheck(text).has_value(), isExtra) << to;
    }
    CapacityRecord wrong = check;
    wrong.result.defects.assign(maxDefects + 1, wrong.result.defects.front());
    EXPECT_FALSE(encodeCheck(wrong));
    const QByteArray one =
        good.mid(good.indexOf("{\"kind\""), good.indexOf("}]") + 1 - good.indexOf("{\"kind\""));
    QByteArray many = good;
    many.replace(one, (one + ',').repeated(maxDefects) + one);
    EXPECT_FALSE(decodeCheck(many));
    wrong = check;
    wrong.result.cells.states.resize(maxCells + 1);
    EXPECT_FALSE(encodeCheck(wrong));
    // Evidence is an extra.
    QByteArray strange = good;
    strange.replace(R"("evidence":{)", R"("evidence":[],"was":{)");
    EXPECT_EQ(decodeCheck(strange)->result.planned, check.result.planned);
}

} // namespace

} // namespace TarnwickKit::model
