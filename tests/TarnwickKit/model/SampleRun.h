#pragma once

#include "TarnwickKit/model/runs/RunRecord.h"

#include <QTimeZone>

#include <random>

namespace TarnwickKit::model {

/// Evidence with all fields, and `samples` seconds of circumstances.
inline RunEvidence fullEvidence(std::size_t samples = 60) {
    using namespace OndelCore::benchmark;
    using namespace OndelCore::platform;
    const Traffic read{5368709120, 20480}, written{4096, 1};
    const TestEvidence test{0.0123456789, 12.3456789012, read, written, read, written, 5368709120, 0, 1, true,
                            0.0312345678, 1.2345678901,  2};
    const Latency latency{0.000081234567, 0.00031234567, 0.00123456789, 0.0123456789};
    std::vector<CircumstanceSample> all;
    for (std::size_t index = 0; index < samples; ++index)
        all.push_back({.elapsed = static_cast<double>(index) * 1.000123456,
                       .celsius = 30.85 + static_cast<double>(index % 40),
                       .ioPressure = static_cast<double>(index % 7) / 7});
    const Circumstances found{.kernel = "6.1.0-18-amd64",
                              .fileSystemType = "ext4",
                              .reach = FileSystemReach::device,
                              .isServedByProgram = true,
                              .compresses = true,
                              .copiesOnWrite = true,
                              .checksumsData = true,
                              .journalsData = true,
                              .isEncrypted = true,
                              .allowsDirectIo = false,
                              .disks = 2,
                              .isFileOnDisk = true,
                              .isCachedFileOnDisk = true,
                              .isVirtualDisk = true,
                              .isRotational = false,
                              .hasVolatileWriteCache = true,
                              .misalignment = Misalignment{512, 4096},
                              .link = DriveLink{DriveLink::Kind::usb, 480e6, 5e9},
                              .isOnBattery = true,
                              .hasPowerSaveGovernor = true,
                              .memoryBytes = 16777216000,
                              .capacityBytes = 2000398934016,
                              .freeBytes = 1200398934016,
                              .maxCelsius = 84.85,
                              .criticalCelsius = 89.85,
                              .samples = all};
    return {test, test, test, test, test, latency, latency, latency, latency, latency, latency, found};
}

/// A run with all 37 fields and curves of `points` points each.
inline RunRecord fullRun(std::size_t points = 159) {
    RunRecord run;
    run.id = QUuid::createUuid();
    run.volumeName = "Vlüme 💾";
    run.connection = "External";
    run.date = QDateTime(QDate(2024, 5, 1), QTime(12, 34, 56), QTimeZone::utc());
    run.duration = 63.25;
    run.writeBps = 512345678.125;
    run.writePeakBps = 712345678.5;
    run.writeMinBps = 112345678.75;
    run.readBps = 2512345678.1;
    run.readPeakBps = 3512345678.2;
    run.readMinBps = 1512345678.3;
    run.randomReadBps = 51234567.8;
    run.randomWriteBps = 41234567.8;
    run.randomReadIOPS = 12508.4;
    run.randomWriteIOPS = 10067.1;
    run.fileOpsPerSec = 20345.6;
    std::mt19937 random(1);
    std::uniform_real_distribution<double> rate(1e8, 3e9);
    for (std::size_t index = 0; index < points; ++index) {
        const double t = 0.0201234567 * static_cast<double>(index + 1);
        run.writeSamples.push_back({t, rate(random)});
        run.readSamples.push_back({t, rate(random)});
    }
    run.fsType = "ext4";
    run.optimalIO = 131072;
    run.blockSize = 4096;
    run.maxName = 255;
    run.capacityBytes = 2000398934016;
    run.freeBytes = 1200398934016;
    run.sizeLabel = "5.0 GiB";
    run.writeBlock = 131072;
    run.readBlock = 131072;
    run.randomBlock = 4096;
    run.bypassCache = true;
    run.deviceModel = "ACME Disk 2000";
    run.deviceProtocol = "USB";
    run.kind = RunRecord::Kind::external;
    run.customTitle = "After the firmware";
    run.kernel = "6.1.0-18-amd64";
    run.version = "0.1.0";
    run.evidence = fullEvidence();
    using namespace OndelCore::benchmark;
    run.remarks = {{RemarkCode::fromMemory, RemarkWeight::invalid, BenchmarkTest::sequentialRead, {0.021}},
                   {RemarkCode::virtualDisk, RemarkWeight::note, {}, {}}};
    return run;
}

} // namespace TarnwickKit::model
