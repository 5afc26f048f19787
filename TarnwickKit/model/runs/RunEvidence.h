#pragma once

#include "OndelCore/Hashing.h"
#include "OndelCore/benchmark/BenchmarkResult.h"
#include "OndelCore/benchmark/evidence/Evidence.h"
#include "OndelCore/platform/drives/Circumstances.h"

#include <concepts>
#include <optional>
#include <type_traits>

namespace TarnwickKit::model {

/// What was observed during a run, as its record keeps it. Absent parts were not tested or not observed.
struct RunEvidence {
    std::optional<OndelCore::benchmark::TestEvidence> sequentialWrite{};
    std::optional<OndelCore::benchmark::TestEvidence> sequentialRead{};
    std::optional<OndelCore::benchmark::TestEvidence> randomRead{};
    std::optional<OndelCore::benchmark::TestEvidence> randomWrite{};
    std::optional<OndelCore::benchmark::TestEvidence> fileOps{};
    std::optional<OndelCore::benchmark::Latency> randomReadLatency{};
    std::optional<OndelCore::benchmark::Latency> randomWriteLatency{};
    std::optional<OndelCore::benchmark::Latency> createLatency{};
    std::optional<OndelCore::benchmark::Latency> statLatency{};
    std::optional<OndelCore::benchmark::Latency> renameLatency{};
    std::optional<OndelCore::benchmark::Latency> deleteLatency{};
    std::optional<OndelCore::platform::Circumstances> circumstances{};

    static RunEvidence from(const OndelCore::benchmark::BenchmarkResult& result);

    bool operator==(const RunEvidence&) const = default;
    std::size_t hash() const {
        return OndelCore::hashFields(sequentialWrite, sequentialRead, randomRead, randomWrite, fileOps,
                                     randomReadLatency, randomWriteLatency, createLatency, statLatency,
                                     renameLatency, deleteLatency, circumstances);
    }
};

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

} // namespace TarnwickKit::model
