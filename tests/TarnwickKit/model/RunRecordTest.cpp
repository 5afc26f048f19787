#include "TarnwickKit/model/runs/RunRecord.h"

#include "SampleRun.h"
#include "TarnwickKit/model/runs/EvidenceCodec.h"
#include "TarnwickKit/model/runs/RunCodec.h"
#include "TarnwickKit/model/runs/RunFields.h"
#include "TarnwickKit/model/runs/RunFile.h"
#include "TarnwickKit/model/runs/TarnwickReport.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <limits>

namespace TarnwickKit::model {

namespace {

using namespace OndelCore::benchmark;
using OndelCore::volumes::VolumeCapabilities;
using OndelCore::volumes::VolumeInfo;
using Kind = RunRecord::Kind;

const QDateTime start(QDate(2024, 5, 1), QTime(12, 34, 56, 789), QTimeZone::utc());

DriveIdentity drive(const std::filesystem::path&) { return {"ACME Disk", "NVMe"}; }
DriveIdentity noDrive(const std::filesystem::path&) {
    ADD_FAILURE() << "a network volume has no drive to ask";
    return {};
}

VolumeInfo volume(bool isInternal, bool isRemovable) {
    return {"Data", "", 1000, 400, 0, isInternal, isRemovable, false, false, "/mnt/data", {}};
}

VolumeCapabilities capabilities(const char* type) {
    VolumeCapabilities known;
    known.filesystemType = type;
    known.maxNameLength = 255;
    known.blockSize = 4096;
    known.optimalIOSize = 131072;
    return known;
}

ThroughputResult throughput(std::size_t sampleCount) {
    ThroughputResult result{1000, 2.0, 4096, {}};
    for (std::size_t index = 0; index < sampleCount; ++index)
        result.samples.push_back({static_cast<double>(index), 1000.0 - static_cast<double>(index)});
    return result;
}

TEST(RunRecord, HoldsTheFiguresOfARun) {
    BenchmarkResult result;
    result.sequentialWrite = throughput(3);
    result.sequentialRead = throughput(1);
    result.randomRead = IOPSResult{500, 0.25, 8192};
    result.randomWrite = IOPSResult{500, 0, 8192};
    result.fileOps = FileOpsResult{{1000, 4}, {1, 1}, {1, 1}, {1, 1}};
    BenchmarkPlan plan;
    plan.writeBlockSize = 1;
    plan.readBlockSize = 2;
    plan.randomBlockSize = 3;
    plan.bypassCache = false;
    result.circumstances = fullEvidence(200).circumstances;
    auto run =
        RunRecord::from(result, volume(true, false), capabilities("ext4"), start, plan, std::nullopt, drive);
    EXPECT_EQ(run.kernel, "6.1.0-18-amd64");
    EXPECT_EQ(run.evidence->fileOps, result.fileOps->evidence);
    EXPECT_EQ(run.evidence->circumstances->samples.size(), 100u);
    EXPECT_EQ(run.remarks, remarksOn(plan, result));
    run.version = "1.2.3";
    run.evidence = RunEvidence();
    run.remarks.emplace();
    const QByteArray id = run.id.toString(QUuid::WithoutBraces).toUpper().toLatin1();
    EXPECT_EQ(
        encodeRun(run).value().toStdString(),
        R"({"id":")" + id.toStdString() +
            R"(","volumeName":"Data","connection":"Internal",)"
            R"("date":"2024-05-01T12:34:56Z","duration":4.25,"writeBps":998,"writePeakBps":1000,"writeMinBps":998,)"
            R"("readBps":500,"readPeakBps":1000,"randomReadBps":16384000,"randomWriteBps":0,"randomReadIOPS":2000,)"
            R"("randomWriteIOPS":0,"fileOpsPerSec":250,"writeSamples":[{"t":0,"v":1000},{"t":1,"v":999},)"
            R"({"t":2,"v":998}],"readSamples":[{"t":0,"v":1000}],"fsType":"ext4","optimalIO":131072,)"
            R"("blockSize":4096,"maxName":255,"capacityBytes":1000,"freeBytes":400,"sizeLabel":"5.0 GiB",)"
            R"("writeBlock":1,"readBlock":2,"randomBlock":3,"bypassCache":false,"deviceModel":"ACME Disk",)"
            R"("deviceProtocol":"NVMe","kind":"internalDrive","kernel":"6.1.0-18-amd64","version":"1.2.3",)"
            R"("evidence":{},"remarks":[]})");

    plan.size = BenchmarkSize::fillDisk(1);
    const auto bare = RunRecord::from({}, std::nullopt, std::nullopt, start, plan, -3.0, noDrive);
    EXPECT_EQ(bare.sizeLabel, "Fill disk");
    EXPECT_EQ(bare.volumeName, "Volume");
    EXPECT_EQ(bare.duration, 0) << "a clock that was set back must not make the record unreadable";
    EXPECT_EQ(bare.writeBps, std::nullopt);
    EXPECT_EQ(bare.capacityBytes, std::nullopt);
    EXPECT_EQ(bare.evidence, RunEvidence()) << "recorded, though nothing was observed";
    EXPECT_NE(bare.id, run.id);
}

TEST(RunRecord, NamesTheConnection) {
    struct Case {
        std::optional<VolumeInfo> volume;
        const char *type, *connection;
        Kind kind;
        std::optional<QString> protocol;
    };
    for (const Case& each : {
             Case{volume(true, false), "ext4", "Internal", Kind::internalDrive, "NVMe"},
             Case{volume(true, true), "ext4", "Removable", Kind::external, "NVMe"},
             Case{volume(false, false), "ext4", "External", Kind::external, "NVMe"},
             Case{std::nullopt, "ext4", "Internal", Kind::internalDrive, std::nullopt},
             Case{volume(true, true), "SMBFS", "Network", Kind::network, "SMB"},
             Case{std::nullopt, "cifs", "Network", Kind::network, "SMB"},
         }) {
        const bool isOnNetwork = each.kind == Kind::network;
        const auto run = RunRecord::from({}, each.volume, capabilities(each.type), start, {}, 1.0,
                                         isOnNetwork ? noDrive : drive);
        EXPECT_EQ(run.connection, each.connection);
        EXPECT_EQ(run.kind, each.kind) << each.connection;
        EXPECT_EQ(run.deviceProtocol, each.protocol);
        EXPECT_EQ(run.deviceModel.has_value(), !isOnNetwork && each.volume);
    }
}

TEST(RunRecord, ThinsItsCurves) {
    const std::pair<std::size_t, std::size_t> cases[] = {{0, 0},    {79, 79},   {80, 80},  {159, 159},
                                                         {160, 80}, {239, 120}, {240, 80}, {100000, 80}};
    for (const auto& [samples, points] : cases) {
        BenchmarkResult result;
        result.sequentialRead = throughput(samples);
        const auto curve = RunRecord::from(result, std::nullopt, std::nullopt, start, {}).readSamples;
        EXPECT_EQ(curve.size(), points) << samples;
        if (points > 1) {
            EXPECT_EQ(curve.front().t, 0);
            EXPECT_EQ(curve[1].t, static_cast<double>(std::max<std::size_t>(1, samples / 80)));
        }
    }
}

TEST(RunRecord, FormatsTheHeadline) {
    RunRecord run;
    run.volumeName = "Data";
    const auto titles = [&] { return run.screenshotTitle() + " | " + run.screenshotSubtitle(); };
    run.fsType = "apfs";
    EXPECT_EQ(titles(), "Data | Internal · APFS");
    run.kind = Kind::external;
    EXPECT_EQ(titles(), "External Drive | External");
    run.deviceModel = "ACME Disk";
    run.deviceProtocol = "USB";
    EXPECT_EQ(titles(), "ACME Disk | External · USB");
    run.fsType = "NFS";
    EXPECT_EQ(titles(), "USB Server | Network volume");
    run.deviceProtocol.reset();
    EXPECT_EQ(titles(), "NFS Server | Network volume");
    run.kind = Kind::network;
    run.fsType.reset();
    EXPECT_EQ(titles(), "Network Server | Network volume");
    run.customTitle = "Mine";
    EXPECT_EQ(titles(), "Mine | Network volume");
}

/// A record from elsewhere may have names without a visible character.
TEST(RunRecord, AlwaysHasAVisibleTitle) {
    for (const char* blank : {"", " \t\n", "\u200B\u202E", "\u0301\uFE0F"}) {
        RunRecord run;
        run.volumeName = blank;
        run.customTitle = run.fsType = run.deviceModel = run.deviceProtocol = blank;
        const auto titles = [&] {
            return run.title() + " | " + run.screenshotTitle() + " | " + run.screenshotSubtitle();
        };
        EXPECT_EQ(titles(), "Volume | Volume | Internal");
        run.kind = Kind::external;
        EXPECT_EQ(titles(), "Volume | External Drive | External");
        run.kind = Kind::network;
        EXPECT_EQ(titles(), "Volume | Network Server | Network volume");
        run.volumeName = "Data";
        EXPECT_EQ(run.title(), "Data");
    }
}

TEST(RunRecord, LimitsTitlesByCharacters) {
    const QString family = "👨‍👩‍👧‍👦";
    const QString accented = QString::fromUtf8("e\u0301");
    EXPECT_EQ(RunRecord::customTitleFrom("   \n\t "), std::nullopt);
    EXPECT_EQ(RunRecord::customTitleFrom("  a b\n"), "a b");
    EXPECT_EQ(RunRecord::customTitleFrom(" " + QString(61, 'x')), QString(60, 'x'));
    EXPECT_EQ(RunRecord::customTitleFrom(QString(60, 'x')), QString(60, 'x'));
    EXPECT_EQ(RunRecord::customTitleFrom(family.repeated(70)), family.repeated(60));
    EXPECT_EQ(RunRecord::customTitleFrom(accented.repeated(61)), accented.repeated(60));
}

TEST(RunCodec, ReadsBackWhatItWrites) {
    RunRecord run = fullRun();
    run.volumeName = "A \"quoted\" \\ \n \u0001 Ä";
    run.customTitle = QString(2, QChar(0xFEFF)) + "marked";
    run.writeSamples = {{0, 1.5}, {0.1, 1e22}};
    run.freeBytes = 9223372036854775807;
    run.evidence->circumstances->samples = fullEvidence(maxCircumstanceSamples).circumstances->samples;
    const QByteArray json = encodeRun(run).value();
    EXPECT_EQ(decodeRun(json), run);
    EXPECT_EQ(decodeRun(json)->evidence, run.evidence);
    EXPECT_EQ(decodeRun(json)->remarks, run.remarks);
    EXPECT_EQ(std::hash<RunRecord>()(*decodeRun(json)), std::hash<RunRecord>()(run));
    EXPECT_EQ(decodeRuns("[" + json + "," + json + "]"), (std::vector<RunRecord>{run, run}));

    run.date = start.toOffsetFromUtc(7200);
    EXPECT_EQ(decodeRun(encodeRun(run).value())->date, start.addMSecs(-789));
    run.readMinBps = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(encodeRun(run), std::nullopt);
}

/// A record's JSON with another value for one key, or without the key if `value` is empty.
QByteArray replaced(const char* key, const QByteArray& value) {
    RunRecord run = fullRun();
    run.writeSamples = run.readSamples = {};
    run.evidence.reset();
    run.remarks.reset();
    const QByteArray json = encodeRun(run).value();
    const qsizetype begin = json.indexOf(QByteArray("\"") + key + "\":");
    qsizetype end = json.indexOf(",\"", begin);
    if (end < 0)
        end = json.size() - 1;
    const QByteArray member = value.isEmpty() ? "\"unknown\":[{}]" : QByteArray("\"") + key + "\":" + value;
    return json.left(begin) + member + json.mid(end);
}

TEST(RunCodec, IgnoresOnlyUnknownKeysAndAbsentOptions) {
    QByteArray longCurve = "[{\"t\":0,\"v\":0}";
    for (std::size_t points = 1; points < maxCurvePoints; ++points)
        longCurve += ",{\"t\":0,\"v\":0}";
    struct Case {
        const char* key;
        std::vector<QByteArray> read, refused;
    };
    for (const Case& each : std::initializer_list<Case>{
             {"sizeLabel", {"", "null"}, {"1"}},
             {"kernel", {"1", "[]", R"("")"}, {"tru", "[1,]"}},
             {"bypassCache", {}, {"1"}},
             {"kind", {}, {"", R"("Network")"}},
             {"id",
              {R"("1b4e28ba-2fa1-4d2b-883f-0016d3cca427")", R"("00000000-0000-0000-0000-000000000000")"},
              {"", R"("{1B4E28BA-2FA1-4D2B-883F-0016D3CCA4}")"}},
             {"date",
              {},
              {R"("2024-05-01T12:34:56.5Z")", R"("2024-05-01T12:34:56+00:00")", R"("2024-05-01T24:00:00Z")",
               R"("2024-02-30T12:34:56Z")"}},
             {"duration", {"1e-5000", "-0"}, {"1e400", "-1", "9.3e18", "NaN", "01", R"("1")"}},
             {"writeBps", {"9e24"}, {"9.3e24"}},
             {"randomReadIOPS", {}, {"9.3e18"}},
             {"maxName", {"2.55e2"}, {"255.5", "-1"}},
             {"capacityBytes", {"9223372036854775807"}, {"9223372036854775808"}},
             {"volumeName",
              {R"("\ud83d\ude00\u00e4\/")"},
              {R"("\ud83d")", R"("\ude00\ud83d")", R"("\ud83d\ue000")", R"("\x")", R"("\u12")", "\"a\nb\"",
               "\"\xff\""}},
             {"writeSamples",
              {R"([{"t":0,"v":1,"w":null}])", longCurve + "]"},
              {R"([{"t":0}])", R"([{"t":0,"v":-1}])", longCurve + R"(,{"t":0,"v":0}])"}},
             {"fsType",
              {R"("x","deep":)" + QByteArray(60, '[') + QByteArray(60, ']')},
              {R"("x","deep":)" + QByteArray(100000, '[')}},
         }) {
        for (const QByteArray& value : each.read)
            EXPECT_TRUE(decodeRun(replaced(each.key, value))) << each.key << ": " << value.left(60).data();
        for (const QByteArray& value : each.refused)
            EXPECT_FALSE(decodeRun(replaced(each.key, value))) << each.key << ": " << value.left(60).data();
    }
}

/// The run in `fullRun` with the JSON `evidence` and `remarks`, as it is read.
std::optional<RunRecord> observed(const QByteArray& evidence, const QByteArray& remarks = "[]") {
    RunRecord run = fullRun(0);
    run.evidence.reset();
    run.remarks.reset();
    QByteArray json = encodeRun(run).value();
    json.chop(1);
    return decodeRun(json + R"(,"evidence":)" + evidence + R"(,"remarks":)" + remarks + "}");
}

/// What is wrong is absent with the smallest optional part that it belongs to.
TEST(RunCodec, LeavesOutEvidenceThatCannotBe) {
    const QByteArray test = R"({"began":0,"ended":1,"refusedTransfers":0,"longestPause":0,"longPauses":0)";
    const auto whole = [&](const QByteArray& members) {
        return observed(R"({"randomRead":)" + test + members + R"(},"statLatency":{}})").value();
    };
    EXPECT_EQ(whole(R"(,"later":[{}],"diskReads":{"bytes":1,"requests":2})").evidence->randomRead->diskReads,
              (Traffic{1, 2}));
    for (const char* members : {R"(,"diskReads":{"bytes":-1,"requests":2})", R"(,"diskReads":{"bytes":1})",
                                R"(,"diskReads":7)", R"(,"diskReads":null)"}) {
        const RunRecord run = whole(members);
        EXPECT_EQ(run.evidence->randomRead, (TestEvidence{.began = 0, .ended = 1})) << members;
        EXPECT_FALSE(run.evidence->statLatency);
    }
    for (const char* members : {R"(,"began":-1)", R"(,"ended":1e400)", R"(,"isBypassRefused":0)"})
        EXPECT_EQ(whole(members).evidence, RunEvidence()) << members;
    for (const QByteArray& evidence :
         {QByteArray("[]"), QByteArray("1"), QByteArray("null"), QByteArray(R"("x")")}) {
        ASSERT_TRUE(observed(evidence)) << evidence.toStdString();
        EXPECT_FALSE(observed(evidence)->evidence) << evidence.toStdString();
    }
    EXPECT_FALSE(observed("{\"randomRead\":{]}")) << "damage is no observation";

    const auto circumstances = [](const QByteArray& members) {
        return observed(R"({"circumstances":{"disks":1)" + members + "}}")->evidence->circumstances;
    };
    for (const char* members :
         {R"(,"maxCelsius":65261)", R"(,"maxCelsius":-40)", R"(,"reach":"orbit")", R"(,"kernel":"a\nb")",
          R"(,"link":{"kind":"parallel","now":1,"best":2})", R"(,"misalignment":{"offset":1.5})"})
        EXPECT_EQ(circumstances(members), (OndelCore::platform::Circumstances{.disks = 1})) << members;
    const auto samples = [&](std::size_t count) {
        QByteArray list = R"({"elapsed":1})";
        for (std::size_t index = 1; index < count; ++index)
            list += R"(,{"elapsed":1})";
        return circumstances(R"(,"samples":[)" + list + "]");
    };
    EXPECT_EQ(samples(maxCircumstanceSamples)->samples.size(), maxCircumstanceSamples);
    EXPECT_FALSE(samples(maxCircumstanceSamples + 1));
}

TEST(RunCodec, LeavesOutRemarksThatItDoesNotKnow) {
    const QByteArray known = R"({"code":"virtualDisk","weight":"note","numbers":[]})";
    for (const char* other : {
             R"({"code":"virtuaDisk","weight":"note","numbers":[]})",
             R"({"code":"virtualDisk","weight":"grave","numbers":[]})",
             R"({"code":"stalls","weight":"caution","test":"warmUp","numbers":[3,4]})",
             R"({"code":"stalls","weight":"caution","numbers":[3,4]})",
             R"({"code":"stalls","weight":"caution","test":"fileOps","numbers":[3]})",
             R"({"code":"stalls","weight":"caution","test":"fileOps","numbers":[3,-4]})",
             R"({"code":"fromMemory","weight":"invalid","test":"fileOps","numbers":[1.1]})",
             R"({"code":"slowLink","weight":"note","numbers":[1,2,3]})",
             R"({"code":5,"weight":"note","numbers":[]})",
             R"({"weight":"note","numbers":[]})",
             R"({"code":"virtualDisk"})",
             "[]",
             "null",
         }) {
        const auto run = observed("{}", "[" + QByteArray(other) + "," + known + "]");
        ASSERT_TRUE(run && run->remarks) << other;
        EXPECT_EQ(run->remarks, (std::vector{Remark{RemarkCode::virtualDisk}})) << other;
    }
    const auto later = observed("{}", R"([{"code":"nearlyFull","weight":"note","numbers":[0.04,7],"x":1}])");
    EXPECT_EQ(later->remarks->at(0).numbers, std::vector{0.04});
    EXPECT_EQ(observed("{}", "[" + (known + ",").repeated(63) + known + "]")->remarks->size(), maxRemarks);
    EXPECT_FALSE(observed("{}", "[" + (known + ",").repeated(64) + known + "]")->remarks);
    EXPECT_FALSE(observed("{}", "{}")->remarks);
}

/// A run is worth more than what was observed beside it.
TEST(RunCodec, WritesOnlyWhatItReads) {
    RunRecord run = fullRun(0);
    run.kernel = "a\nb";
    run.version = QString(129, 'x');
    run.evidence->randomRead->began = std::numeric_limits<double>::quiet_NaN();
    run.evidence->circumstances->maxCelsius = 65261;
    run.evidence->circumstances->fileSystemType = "\x1b[2J";
    run.evidence->circumstances->samples.assign(maxCircumstanceSamples + 1, {.elapsed = -1});
    run.remarks->front().numbers = {};
    run.remarks->resize(100, {RemarkCode::virtualDisk});
    const QByteArray json = encodeRun(run).value();
    const RunRecord read = decodeRun(json).value();
    EXPECT_EQ(json.count("\"code\""), 63) << "the first has no number";
    run.kernel.reset();
    run.version.reset();
    run.evidence->randomRead.reset();
    run.evidence->circumstances->maxCelsius.reset();
    run.evidence->circumstances->fileSystemType.clear();
    run.evidence->circumstances->samples.clear();
    run.remarks->erase(run.remarks->begin());
    run.remarks->resize(63);
    EXPECT_EQ(read, run);
}

TEST(RunCodec, TellsWhyItRefuses) {
    struct Case {
        QByteArray json;
        const char* reason;
    };
    const QByteArray run = encodeRun(fullRun(0)).value();
    for (const Case& each : {
             Case{replaced("sizeLabel", "1"), "sizeLabel: a text was expected"},
             Case{replaced("bypassCache", "1"), "bypassCache: true or false was expected"},
             Case{replaced("maxName", R"("255")"), "maxName: a number was expected"},
             Case{replaced("date", R"("May 1")"), "date: a date as in 2024-05-01T12:34:56Z was expected"},
             Case{replaced("duration", "-1"), "duration: this cannot be shown"},
             Case{replaced("kind", ""), "kind is missing"},
             Case{replaced("fsType", R"("x","formatVersion":2)"),
                  "formatVersion: a newer program is needed to read this"},
             Case{" [" + run + "," + replaced("id", "1") + "]", "run 2: id: a text was expected"},
             Case{"PNG", "an object was expected"},
             Case{run + "x", "more text stands behind the end"},
         }) {
        try {
            requireRuns(each.json);
            ADD_FAILURE() << each.reason;
        } catch (const JsonError& error) {
            EXPECT_STREQ(error.what(), each.reason);
        }
    }
    EXPECT_EQ(requireRuns("\n[" + run + "," + run + "]").size(), 2u);
    EXPECT_EQ(requireRuns(replaced("fsType", R"("x","formatVersion":1)")).size(), 1u);
    EXPECT_EQ(decodeRun(replaced("volumeName", R"("\ufeffA")"))->volumeName, QString(QChar(0xFEFF)) + "A");
}

/// The keys of an object in the published schema.
QStringList schemaKeys(const QJsonObject& part) { return part["properties"].toObject().keys(); }

template <typename Part>
QStringList fieldKeys(const QStringList& more = {}) {
    QStringList keys = more;
    const Part part;
    visitFields(part, [&keys](std::string_view key, const auto&) { keys << QString::fromLatin1(key); });
    keys.sort();
    return keys;
}

TEST(RunCodec, HasADescriptionOfEachKey) {
    using namespace OndelCore::platform;
    QFile file(ONDEL_DOCS "/run-file.schema.json");
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QJsonObject schema = QJsonDocument::fromJson(file.readAll()).object();
    const QJsonObject parts = schema["$defs"].toObject();
    const auto keys = [&parts](const char* name) {
        return schemaKeys(parts[QLatin1String(name)].toObject());
    };
    EXPECT_EQ(schemaKeys(schema), fieldKeys<RunRecord>({"formatVersion"}));
    EXPECT_EQ(keys("evidence"), fieldKeys<RunEvidence>());
    EXPECT_EQ(keys("testEvidence"), fieldKeys<TestEvidence>());
    EXPECT_EQ(keys("traffic"), fieldKeys<Traffic>());
    EXPECT_EQ(keys("latency"), fieldKeys<Latency>());
    EXPECT_EQ(keys("circumstances"), fieldKeys<Circumstances>());
    EXPECT_EQ(keys("circumstanceSample"), fieldKeys<CircumstanceSample>());
    EXPECT_EQ(keys("driveLink"), fieldKeys<DriveLink>());
    EXPECT_EQ(keys("misalignment"), fieldKeys<Misalignment>());
}

TEST(RunCodec, RefusesOtherText) {
    const QByteArray run = encodeRun(fullRun()).value();
    const QByteArray tooLong(static_cast<qsizetype>(maxRunFileBytes), ' ');
    for (const QByteArray& text : {QByteArray(), QByteArray("[]"), QByteArray("{}"), run + "x",
                                   run + QByteArray(1, '\0'), run + tooLong})
        EXPECT_FALSE(decodeRun(text)) << text.left(60).toStdString();
    EXPECT_FALSE(decodeRuns("[" + run + ",]"));
    EXPECT_FALSE(decodeRuns("[" + run + run + "]"));
    EXPECT_TRUE(decodeRun(" " + run + "\r\n\t "));
}

TEST(TarnwickReport, WritesAHandoffFile) {
    OndelCore::benchmark::BenchmarkResult result;
    result.sequentialRead = {1000000, 2.0, 4096, {{0.5, 3e6}, {1, 2e6}}};
    result.randomRead = {100, 0.5, 4096};
    const QDateTime date(QDate(2024, 5, 1), QTime(12, 34, 56), QTimeZone::utc());
    const TarnwickReport report = TarnwickReport::from(result, std::nullopt, std::nullopt, date, {});
    EXPECT_EQ(report.run.duration, 2.5);
    EXPECT_TRUE(report.writeCurve().empty());
    EXPECT_EQ(report.writeBytesPerSecond(), std::nullopt);
    EXPECT_EQ(report.readCurve(), (std::vector<QPointF>{{0.5, 3}, {1, 2}}));

    const auto path = report.handoffFile();
    ASSERT_TRUE(path);
    EXPECT_EQ(path, report.handoffFile());
    EXPECT_EQ(path->stem(), report.run.id.toString(QUuid::WithoutBraces).toUpper().toStdString());
    EXPECT_EQ(path->extension(), "." + std::string(TarnwickFile::runExtension));
    EXPECT_EQ(decodeRun(*readRunFile(*path)), report.run);
    EXPECT_EQ(std::filesystem::status(path->parent_path()).permissions(), std::filesystem::perms::owner_all);

    EXPECT_EQ(report.drive(), std::nullopt);
    EXPECT_EQ(report.remarks().size(), static_cast<qsizetype>(report.run.remarks->size()));
    const TarnwickReport full{fullRun()};
    EXPECT_EQ(full.drive(), "ACME Disk 2000 · USB");
    ASSERT_EQ(full.remarks().size(), 2);
    EXPECT_TRUE(full.remarks()[0].startsWith("Invalid · Sequential read: "));
    EXPECT_TRUE(full.remarks()[1].startsWith("Note · "));

    TarnwickReport unwritable = report;
    unwritable.run.writeBps = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(unwritable.handoffFile(), std::nullopt);
}

} // namespace

} // namespace TarnwickKit::model
