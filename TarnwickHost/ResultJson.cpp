#include "TarnwickHost/ResultJson.h"

#include "TarnwickKit/model/format/BenchmarkText.h"

#include <QJsonArray>

using namespace OndelCore::benchmark;
using TarnwickKit::model::name;

namespace TarnwickHost {

namespace {

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

/// In the words of "facts", which does not try; what a trial did not tell is left out.
QJsonObject json(const OndelCore::platform::TriedAbilities& tried) {
    QJsonObject object;
    if (tried.sparseFiles)
        object.insert("supportsSparseFiles", *tried.sparseFiles);
    if (tried.cloning)
        object.insert("supportsCloning", *tried.cloning);
    return object;
}

} // namespace

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
