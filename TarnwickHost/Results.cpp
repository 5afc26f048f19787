#include "TarnwickHost/Results.h"

#include "TarnwickHost/Terminal.h"
#include "TarnwickKit/model/format/BenchmarkText.h"
#include "TarnwickKit/model/format/Format.h"

#include <QJsonArray>

#include <vector>

using namespace OndelCore::benchmark;
using namespace TarnwickKit::model;

namespace TarnwickHost {

namespace {

QString countRate(double perSecond, const char* unit) { return Format::compact(perSecond) + ' ' + unit; }

TextRow row(const QString& title, const ThroughputResult& result) {
    const auto lowest = result.lowestBytesPerSecond();
    return {title, Format::rate(result.sustainedBytesPerSecond()), Format::rate(result.peakBytesPerSecond()),
            lowest ? Format::rate(*lowest) : "--", Format::rate(result.bytesPerSecond())};
}

TextRow row(const QString& title, const IOPSResult& result) {
    return {title, countRate(result.iops(), "IOPS"), Format::rate(result.bytesPerSecond())};
}

TextRow row(const QString& title, const FileOpsResult& result) {
    const auto rate = [](const FileOpResult& phase) { return countRate(phase.opsPerSecond(), "ops/s"); };
    return {title, rate(result.create), rate(result.stat), rate(result.rename), rate(result.remove)};
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

QJsonObject json(const ThroughputResult& result) {
    QJsonArray samples;
    for (const ThroughputSample& sample : result.samples)
        samples.append(QJsonObject{{"elapsed", sample.elapsed}, {"bytesPerSecond", sample.bytesPerSecond}});
    return {{"bytesProcessed", qint64{result.bytesProcessed}},
            {"duration", result.duration},
            {"blockSize", qint64{result.blockSize}},
            {"samples", samples},
            {"bytesPerSecond", result.bytesPerSecond()},
            {"peakBytesPerSecond", result.peakBytesPerSecond()},
            {"sustainedBytesPerSecond", result.sustainedBytesPerSecond()},
            {"observedCacheCliff", result.observedCacheCliff()}};
}

QJsonObject json(const IOPSResult& result) {
    return {{"operations", qint64{result.operations}},
            {"duration", result.duration},
            {"blockSize", qint64{result.blockSize}},
            {"iops", result.iops()},
            {"bytesPerSecond", result.bytesPerSecond()}};
}

QJsonObject json(const FileOpResult& result) {
    return {{"operations", qint64{result.operations}},
            {"duration", result.duration},
            {"opsPerSecond", result.opsPerSecond()}};
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

} // namespace

QString resultTable(const BenchmarkPlan& plan, const BenchmarkResult& result) {
    const std::int64_t randomBlock = BenchmarkPlan::alignedBlock(plan.randomBlockSize);
    const auto titleOf = [&](BenchmarkTest test) { return title(test, randomBlock); };
    std::vector<TextRow> rows;
    const auto beginBlock = [&](TextRow header) {
        if (!rows.empty())
            rows.emplace_back();
        rows.push_back(std::move(header));
    };
    if (result.sequentialWrite || result.sequentialRead)
        beginBlock({"", "Sustained", "Peak", "Lowest", "Overall"});
    if (result.sequentialWrite)
        rows.push_back(row(titleOf(BenchmarkTest::sequentialWrite), *result.sequentialWrite));
    if (result.sequentialRead)
        rows.push_back(row(titleOf(BenchmarkTest::sequentialRead), *result.sequentialRead));
    if (result.randomRead || result.randomWrite)
        beginBlock({"", "Operations", "Rate"});
    if (result.randomRead)
        rows.push_back(row(titleOf(BenchmarkTest::randomRead), *result.randomRead));
    if (result.randomWrite)
        rows.push_back(row(titleOf(BenchmarkTest::randomWrite), *result.randomWrite));
    if (result.fileOps) {
        beginBlock({"", "Create", "Stat", "Rename", "Delete"});
        rows.push_back(row(titleOf(BenchmarkTest::fileOps), *result.fileOps));
    }
    return textColumns(rows, CellsStand::right);
}

QJsonObject resultJson(const BenchmarkPlan& plan, const BenchmarkResult& result) {
    QJsonObject object{{"plan", planJson(plan)}, {"capabilities", json(result.tried)}};
    const auto add = [&object](BenchmarkTest test, const auto& part) {
        if (part)
            object.insert(name(test), json(*part));
    };
    add(BenchmarkTest::sequentialWrite, result.sequentialWrite);
    add(BenchmarkTest::sequentialRead, result.sequentialRead);
    add(BenchmarkTest::randomRead, result.randomRead);
    add(BenchmarkTest::randomWrite, result.randomWrite);
    add(BenchmarkTest::fileOps, result.fileOps);
    return object;
}

} // namespace TarnwickHost
