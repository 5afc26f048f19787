#pragma once

#include "TarnwickKit/model/runs/RunRecord.h"

#include <concepts>
#include <type_traits>

namespace TarnwickKit::model {

template <typename Part, typename Value>
concept IsA = std::same_as<std::remove_const_t<Part>, Value>;

/// Each calls `visit(key, field)` for each field of a part of the evidence, in order.
void visitFields(IsA<OndelCore::benchmark::Latency> auto& latency, auto visit) {
    visit("p50", latency.p50);
    visit("p99", latency.p99);
    visit("p999", latency.p999);
    visit("worst", latency.worst);
}
void visitFields(IsA<OndelCore::benchmark::Traffic> auto& traffic, auto visit) {
    visit("bytes", traffic.bytes);
    visit("requests", traffic.requests);
}
void visitFields(IsA<OndelCore::benchmark::TestEvidence> auto& test, auto visit) {
    visit("began", test.began);
    visit("ended", test.ended);
    visit("diskReads", test.diskReads);
    visit("diskWrites", test.diskWrites);
    visit("volumeReads", test.volumeReads);
    visit("volumeWrites", test.volumeWrites);
    visit("threadReads", test.threadReads);
    visit("threadWrites", test.threadWrites);
    visit("refusedTransfers", test.refusedTransfers);
    visit("isBypassRefused", test.isBypassRefused);
    visit("flushDuration", test.flushDuration);
    visit("longestPause", test.longestPause);
    visit("longPauses", test.longPauses);
}
void visitFields(IsA<OndelCore::platform::CircumstanceSample> auto& sample, auto visit) {
    visit("elapsed", sample.elapsed);
    visit("celsius", sample.celsius);
    visit("ioPressure", sample.ioPressure);
}
void visitFields(IsA<OndelCore::platform::DriveLink> auto& link, auto visit) {
    visit("kind", link.kind);
    visit("now", link.now);
    visit("best", link.best);
}
void visitFields(IsA<OndelCore::platform::Misalignment> auto& misalignment, auto visit) {
    visit("offset", misalignment.offset);
    visit("physicalBlock", misalignment.physicalBlock);
}
void visitFields(IsA<OndelCore::platform::Circumstances> auto& found, auto visit) {
    visit("kernel", found.kernel);
    visit("fileSystemType", found.fileSystemType);
    visit("reach", found.reach);
    visit("isServedByProgram", found.isServedByProgram);
    visit("compresses", found.compresses);
    visit("copiesOnWrite", found.copiesOnWrite);
    visit("checksumsData", found.checksumsData);
    visit("journalsData", found.journalsData);
    visit("isEncrypted", found.isEncrypted);
    visit("allowsDirectIo", found.allowsDirectIo);
    visit("disks", found.disks);
    visit("isFileOnDisk", found.isFileOnDisk);
    visit("isCachedFileOnDisk", found.isCachedFileOnDisk);
    visit("isVirtualDisk", found.isVirtualDisk);
    visit("isRotational", found.isRotational);
    visit("hasVolatileWriteCache", found.hasVolatileWriteCache);
    visit("misalignment", found.misalignment);
    visit("link", found.link);
    visit("isOnBattery", found.isOnBattery);
    visit("hasPowerSaveGovernor", found.hasPowerSaveGovernor);
    visit("memoryBytes", found.memoryBytes);
    visit("capacityBytes", found.capacityBytes);
    visit("freeBytes", found.freeBytes);
    visit("maxCelsius", found.maxCelsius);
    visit("criticalCelsius", found.criticalCelsius);
    visit("samples", found.samples);
}
void visitFields(IsA<RunEvidence> auto& evidence, auto visit) {
    visit("sequentialWrite", evidence.sequentialWrite);
    visit("sequentialRead", evidence.sequentialRead);
    visit("randomRead", evidence.randomRead);
    visit("randomWrite", evidence.randomWrite);
    visit("fileOps", evidence.fileOps);
    visit("randomReadLatency", evidence.randomReadLatency);
    visit("randomWriteLatency", evidence.randomWriteLatency);
    visit("createLatency", evidence.createLatency);
    visit("statLatency", evidence.statLatency);
    visit("renameLatency", evidence.renameLatency);
    visit("deleteLatency", evidence.deleteLatency);
    visit("circumstances", evidence.circumstances);
}

/// Calls `visit(key, field)` for each field of a record, in order. A field that is not a std::optional is
/// required.
void visitFields(IsA<RunRecord> auto& run, auto visit) {
    visit("id", run.id);
    visit("volumeName", run.volumeName);
    visit("connection", run.connection);
    visit("date", run.date);
    visit("duration", run.duration);
    visit("writeBps", run.writeBps);
    visit("writePeakBps", run.writePeakBps);
    visit("writeMinBps", run.writeMinBps);
    visit("readBps", run.readBps);
    visit("readPeakBps", run.readPeakBps);
    visit("readMinBps", run.readMinBps);
    visit("randomReadBps", run.randomReadBps);
    visit("randomWriteBps", run.randomWriteBps);
    visit("randomReadIOPS", run.randomReadIOPS);
    visit("randomWriteIOPS", run.randomWriteIOPS);
    visit("fileOpsPerSec", run.fileOpsPerSec);
    visit("writeSamples", run.writeSamples);
    visit("readSamples", run.readSamples);
    visit("fsType", run.fsType);
    visit("optimalIO", run.optimalIO);
    visit("blockSize", run.blockSize);
    visit("maxName", run.maxName);
    visit("capacityBytes", run.capacityBytes);
    visit("freeBytes", run.freeBytes);
    visit("sizeLabel", run.sizeLabel);
    visit("writeBlock", run.writeBlock);
    visit("readBlock", run.readBlock);
    visit("randomBlock", run.randomBlock);
    visit("bypassCache", run.bypassCache);
    visit("deviceModel", run.deviceModel);
    visit("deviceProtocol", run.deviceProtocol);
    visit("kind", run.kind);
    visit("customTitle", run.customTitle);
    visit("kernel", run.kernel);
    visit("version", run.version);
    visit("evidence", run.evidence);
    visit("remarks", run.remarks);
}

} // namespace TarnwickKit::model
