#pragma once

#include "TarnwickKit/model/runs/RunRecord.h"

#include <QTimeZone>

#include <random>

namespace TarnwickKit::model {

/// A run with all 33 fields and curves of `points` points each.
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
    return run;
}

} // namespace TarnwickKit::model
