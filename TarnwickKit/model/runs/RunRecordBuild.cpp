// How a record is made of a run's result and of what was known of its volume.

#include "TarnwickKit/model/format/Format.h"
#include "TarnwickKit/model/runs/RunRecord.h"
#include "TarnwickKit/model/runs/ThinnedCurve.h"

#include <algorithm>
#include <utility>

namespace TarnwickKit::model {

using namespace Qt::StringLiterals;
using OndelCore::benchmark::BenchmarkPlan;
using OndelCore::benchmark::BenchmarkResult;
using OndelCore::benchmark::ThroughputResult;
using OndelCore::volumes::VolumeCapabilities;
using OndelCore::volumes::VolumeInfo;

namespace {

/// Without facts of the volume a run counts as internal.
std::pair<QString, RunRecord::Kind> attachment(const std::optional<VolumeInfo>& volume, bool isOnNetwork) {
    if (isOnNetwork)
        return {u"Network"_s, RunRecord::Kind::network};
    if (volume && volume->isRemovable)
        return {u"Removable"_s, RunRecord::Kind::external};
    if (!volume || volume->isInternal)
        return {u"Internal"_s, RunRecord::Kind::internalDrive};
    return {u"External"_s, RunRecord::Kind::external};
}

double sumOfDurations(const BenchmarkResult& result) {
    const auto duration = [](const auto& test) { return test ? test->duration : 0; };
    return duration(result.sequentialWrite) + duration(result.sequentialRead) + duration(result.randomRead) +
           duration(result.randomWrite);
}

std::vector<RunSample> curve(const ThroughputResult& test) {
    std::vector<RunSample> points;
    points.reserve(test.samples.size());
    for (const auto& sample : test.samples)
        points.push_back({sample.elapsed, sample.bytesPerSecond});
    return thinned(points);
}

void fillResult(RunRecord& run, const BenchmarkResult& result) {
    if (const auto& write = result.sequentialWrite) {
        run.writeBps = write->sustainedBytesPerSecond();
        run.writePeakBps = write->peakBytesPerSecond();
        run.writeMinBps = write->lowestBytesPerSecond();
        run.writeSamples = curve(*write);
    }
    if (const auto& read = result.sequentialRead) {
        run.readBps = read->sustainedBytesPerSecond();
        run.readPeakBps = read->peakBytesPerSecond();
        run.readMinBps = read->lowestBytesPerSecond();
        run.readSamples = curve(*read);
    }
    if (const auto& random = result.randomRead) {
        run.randomReadIOPS = random->iops();
        run.randomReadBps = random->bytesPerSecond();
    }
    if (const auto& random = result.randomWrite) {
        run.randomWriteIOPS = random->iops();
        run.randomWriteBps = random->bytesPerSecond();
    }
    if (result.fileOps)
        run.fileOpsPerSec = result.fileOps->create.opsPerSecond();
}

void fillVolume(RunRecord& run, const std::optional<VolumeInfo>& volume,
                const std::optional<VolumeCapabilities>& capabilities,
                const RunRecord::IdentityOf& driveIdentity) {
    const bool isOnNetwork = capabilities && isNetworkFilesystem(capabilities->filesystemType);
    std::tie(run.connection, run.kind) = attachment(volume, isOnNetwork);
    run.volumeName = volume ? volume->name : u"Volume"_s;
    if (volume) {
        run.capacityBytes = volume->total;
        run.freeBytes = volume->available;
    }
    if (capabilities) {
        run.fsType = capabilities->filesystemType;
        run.optimalIO = capabilities->optimalIOSize;
        run.blockSize = capabilities->blockSize;
        run.maxName = capabilities->maxNameLength;
    }
    if (isOnNetwork) {
        run.deviceProtocol = DriveInfo::networkProtocol(run.fsType);
    } else if (volume && volume->volumeURL) {
        const DriveIdentity identity = driveIdentity(*volume->volumeURL);
        run.deviceModel = identity.model;
        run.deviceProtocol = identity.protocolName;
    }
}

void fillPlan(RunRecord& run, const BenchmarkPlan& plan) {
    const auto* fixed = plan.size.asFixed();
    run.sizeLabel = fixed ? Format::bytes(fixed->bytes) : u"Fill disk"_s;
    run.writeBlock = plan.writeBlockSize;
    run.readBlock = plan.readBlockSize;
    run.randomBlock = plan.randomBlockSize;
    run.bypassCache = plan.bypassCache;
}

} // namespace

DriveIdentity RunRecord::identityOf(const std::filesystem::path& volumeURL) {
    return DriveInfo::identity(volumeURL);
}

RunRecord RunRecord::from(const BenchmarkResult& result, const std::optional<VolumeInfo>& volume,
                          const std::optional<VolumeCapabilities>& capabilities, const QDateTime& date,
                          const BenchmarkPlan& plan, std::optional<double> duration,
                          const IdentityOf& driveIdentity) {
    RunRecord run;
    run.id = QUuid::createUuid();
    run.date = date;
    run.duration = std::max(0.0, duration ? *duration : sumOfDurations(result));
    fillResult(run, result);
    fillVolume(run, volume, capabilities, driveIdentity);
    fillPlan(run, plan);
    return run;
}

} // namespace TarnwickKit::model
