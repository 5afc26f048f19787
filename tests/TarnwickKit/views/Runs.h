#pragma once

#include "tests/TarnwickKit/model/SampleRun.h"

namespace test {

/// A run on an external drive with all fields but a title of its own, evidence and remarks, and with figures
/// that read well.
inline TarnwickKit::model::RunRecord fullRun() {
    TarnwickKit::model::RunRecord run = TarnwickKit::model::fullRun(100);
    run.volumeName = QStringLiteral("Backup");
    run.customTitle = std::nullopt;
    run.evidence = std::nullopt;
    run.remarks = std::nullopt;
    run.writeBps = 987e6;
    run.writePeakBps = 1150e6;
    run.writeMinBps = 700e6;
    run.readBps = 1043e6;
    run.readPeakBps = 1100e6;
    run.readMinBps = 900e6;
    run.randomReadIOPS = 12345;
    run.randomWriteIOPS = 23456;
    run.fileOpsPerSec = 1999;
    run.capacityBytes = std::int64_t{2} << 40;
    run.freeBytes = std::int64_t{1} << 40;
    run.writeBlock = run.readBlock = 1 << 20;
    run.randomBlock = 16384;
    return run;
}

/// A run with only the required fields.
inline TarnwickKit::model::RunRecord bareRun() {
    TarnwickKit::model::RunRecord run;
    run.volumeName = QStringLiteral("Old");
    run.date = fullRun().date;
    return run;
}

} // namespace test
