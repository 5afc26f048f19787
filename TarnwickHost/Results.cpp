#include "TarnwickHost/Results.h"

#include "TarnwickHost/Facts.h"
#include "TarnwickHost/Remarks.h"
#include "TarnwickKit/model/format/BenchmarkText.h"
#include "TarnwickKit/model/format/Format.h"
#include "TarnwickKit/model/runs/Comparison.h"
#include "TarnwickKit/model/runs/RunCodec.h"
#include "TarnwickKit/model/runs/RunRecord.h"
#include "TarnwickKit/model/runs/RunText.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>

#include <optional>
#include <system_error>
#include <vector>

using namespace OndelCore::benchmark;
using namespace TarnwickKit::model;

namespace TarnwickHost {

namespace {

struct HostResults {
    Q_DECLARE_TR_FUNCTIONS(HostResults)
};

/// The columns of the table that hold a test's title and figures.
constexpr std::size_t figureColumns = 5;

QString countRate(double perSecond, const QString& unit) { return Format::compact(perSecond) + ' ' + unit; }

TextRow row(const QString& title, const ThroughputResult& result) {
    const auto lowest = result.lowestBytesPerSecond();
    return {title, Format::rate(result.sustainedBytesPerSecond()), Format::rate(result.peakBytesPerSecond()),
            lowest ? Format::rate(*lowest) : "--", Format::rate(result.bytesPerSecond())};
}

TextRow row(const QString& title, const IOPSResult& result) {
    TextRow figures{title, countRate(result.iops(), "IOPS"), Format::rate(result.bytesPerSecond())};
    if (const auto& latency = result.latency)
        figures.insert(figures.end(), {Format::latency(latency->p99), Format::latency(latency->worst)});
    return figures;
}

bool hasLatency(const std::optional<IOPSResult>& result) { return result && result->latency; }

TextRow row(const QString& title, const FileOpsResult& result) {
    const auto rate = [](const FileOpResult& phase) {
        return countRate(phase.opsPerSecond(), operationsPerSecond());
    };
    return {title, rate(result.create), rate(result.stat), rate(result.rename), rate(result.remove)};
}

/// The drive's names below the table; empty without.
QString driveLine(const DriveIdentity& drive, int columns) {
    QStringList names;
    for (const auto& name : {drive.model, drive.protocolName})
        if (const auto visible = visibleText(name))
            names << *visible;
    const QString line = labelled(HostResults::tr("Drive") + "  ", names, " · ", columns);
    return line.isEmpty() ? line : '\n' + line;
}

QJsonObject sizeJson(const BenchmarkSize& size) {
    if (const auto* fixed = size.asFixed())
        return {{"fixed", qint64{fixed->bytes}}};
    return {{"fillDisk", QJsonObject{{"leaveFree", qint64{size.asFillDisk()->leaveFree}}}}};
}

QJsonObject planJson(const BenchmarkPlan& plan) {
    QJsonArray tests;
    for (const BenchmarkTest test : plan.tests)
        tests.append(name(test));
    return {{"tests", tests},
            {"size", sizeJson(plan.size)},
            {"writeBlockSize", qint64{plan.writeBlockSize}},
            {"readBlockSize", qint64{plan.readBlockSize}},
            {"randomBlockSize", qint64{plan.randomBlockSize}},
            {"randomOpCount", qint64{plan.randomOpCount}},
            {"fileOpCount", qint64{plan.fileOpCount}},
            {"bypassCache", plan.bypassCache},
            {"sampleInterval", plan.sampleInterval}};
}

/// For a flush that failed: what the system answered.
void addError(QJsonObject& object, const char* key, const std::optional<std::error_code>& error) {
    if (error)
        object.insert(QLatin1String(key), QJsonObject{{"errno", error->value()},
                                                      {"text", QString::fromStdString(error->message())}});
}

/// As under "evidence".
void addLatency(QJsonObject& object, const std::optional<Latency>& latency) {
    if (!latency)
        return;
    const QJsonObject evidence = evidenceJson({.statLatency = latency});
    if (evidence.contains("statLatency"))
        object.insert("latency", evidence["statLatency"]);
}

QJsonObject json(const ThroughputResult& result) {
    QJsonArray samples;
    for (const ThroughputSample& sample : result.samples)
        samples.append(QJsonObject{{"elapsed", sample.elapsed}, {"bytesPerSecond", sample.bytesPerSecond}});
    QJsonObject object{{"bytesProcessed", qint64{result.bytesProcessed}},
                       {"duration", result.duration},
                       {"blockSize", qint64{result.blockSize}},
                       {"samples", samples},
                       {"bytesPerSecond", result.bytesPerSecond()},
                       {"peakBytesPerSecond", result.peakBytesPerSecond()},
                       {"sustainedBytesPerSecond", result.sustainedBytesPerSecond()},
                       {"observedCacheCliff", result.observedCacheCliff()}};
    if (const auto lowest = result.lowestBytesPerSecond())
        object.insert("lowestBytesPerSecond", *lowest);
    addError(object, "flushError", result.flushError);
    return object;
}

QJsonObject json(const IOPSResult& result) {
    QJsonObject object{{"operations", qint64{result.operations}},
                       {"duration", result.duration},
                       {"blockSize", qint64{result.blockSize}},
                       {"iops", result.iops()},
                       {"bytesPerSecond", result.bytesPerSecond()}};
    addLatency(object, result.latency);
    addError(object, "flushError", result.flushError);
    return object;
}

QJsonObject json(const FileOpResult& result) {
    QJsonObject object{{"operations", qint64{result.operations}},
                       {"duration", result.duration},
                       {"opsPerSecond", result.opsPerSecond()}};
    addLatency(object, result.latency);
    return object;
}

QJsonObject json(const FileOpsResult& result) {
    return {{"create", json(result.create)},
            {"stat", json(result.stat)},
            {"rename", json(result.rename)},
            {"delete", json(result.remove)}};
}

/// With the keys of "facts". Trials without an answer are left out.
QJsonObject json(const OndelCore::platform::TriedAbilities& tried) {
    QJsonObject object;
    if (tried.sparseFiles)
        object.insert("supportsSparseFiles", *tried.sparseFiles);
    if (tried.cloning)
        object.insert("supportsCloning", *tried.cloning);
    return object;
}

/// When, where and with what, by the keys of a run file and of "facts".
void addOrigin(QJsonObject& object, const MeasuredRun& run) {
    object.insert("formatVersion", qint64{runFormatVersion});
    object.insert("folder", QString::fromStdString(run.place.folder.string()));
    object.insert("folderURL", urlText(run.place.folder));
    if (run.place.volume)
        object.insert("volume", volumeJson(*run.place.volume));
    if (run.place.capabilities)
        object.insert("fileSystem", capabilitiesJson(*run.place.capabilities));
    if (const QJsonObject drive = driveJson(run.drive); !drive.isEmpty())
        object.insert("drive", drive);
    const auto record = run.record ? encodeRun(*run.record) : std::nullopt;
    const QJsonObject stored = QJsonDocument::fromJson(record.value_or(QByteArray())).object();
    for (const char* key : {"id", "date", "duration", "connection", "kind", "kernel", "version"})
        if (const QJsonValue value = stored[QLatin1String(key)]; !value.isUndefined())
            object.insert(QLatin1String(key), value);
}

} // namespace

QString resultTable(const MeasuredRun& run, int columns) {
    const BenchmarkResult& result = run.result;
    const std::int64_t randomBlock = BenchmarkPlan::alignedBlock(run.plan.randomBlockSize);
    std::vector<TextRow> rows;
    const auto beginBlock = [&](TextRow header) {
        if (!rows.empty())
            rows.emplace_back();
        rows.push_back(std::move(header));
    };
    const auto add = [&](BenchmarkTest test, const auto& part) {
        if (!part)
            return;
        TextRow figures = row(title(test, randomBlock), *part);
        if (isInvalid(run.remarks, test)) {
            figures.resize(figureColumns);
            figures.push_back(invalidMark());
        }
        rows.push_back(figures);
    };
    if (result.sequentialWrite || result.sequentialRead)
        beginBlock({"", HostResults::tr("Sustained"), HostResults::tr("Peak"), HostResults::tr("Lowest"),
                    HostResults::tr("Overall")});
    add(BenchmarkTest::sequentialWrite, result.sequentialWrite);
    add(BenchmarkTest::sequentialRead, result.sequentialRead);
    if (result.randomRead || result.randomWrite)
        beginBlock({"", HostResults::tr("Operations"), HostResults::tr("Rate")});
    if (hasLatency(result.randomRead) || hasLatency(result.randomWrite))
        //: The slowest operation; "p99" is the time that 99 of 100 operations stay below.
        rows.back().insert(rows.back().end(), {"p99", HostResults::tr("Worst")});
    add(BenchmarkTest::randomRead, result.randomRead);
    add(BenchmarkTest::randomWrite, result.randomWrite);
    if (result.fileOps)
        //: What the file-operations test does with files; "Stat" asks for a file's size and dates.
        beginBlock({"", HostResults::tr("Create"), HostResults::tr("Stat"), HostResults::tr("Rename"),
                    HostResults::tr("Delete")});
    add(BenchmarkTest::fileOps, result.fileOps);
    if (rows.empty())
        return {};
    return textColumns(rows, CellsStand::right) + driveLine(run.drive, columns) +
           remarkList(run.remarks, randomBlock, columns);
}

QJsonObject resultJson(const MeasuredRun& run) {
    const BenchmarkResult& result = run.result;
    QJsonObject object{{"plan", planJson(run.plan)},
                       {"capabilities", json(result.tried)},
                       {"evidence", evidenceJson(RunEvidence::from(result))},
                       {"remarks", remarksJson(run.remarks)}};
    const auto add = [&object](BenchmarkTest test, const auto& part) {
        if (part)
            object.insert(name(test), json(*part));
    };
    add(BenchmarkTest::sequentialWrite, result.sequentialWrite);
    add(BenchmarkTest::sequentialRead, result.sequentialRead);
    add(BenchmarkTest::randomRead, result.randomRead);
    add(BenchmarkTest::randomWrite, result.randomWrite);
    add(BenchmarkTest::fileOps, result.fileOps);
    addError(object, "preparationFlushError", result.preparationFlushError);
    addOrigin(object, run);
    return object;
}

} // namespace TarnwickHost
