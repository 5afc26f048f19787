#pragma once

#include "TarnwickKit/model/runs/RunRecord.h"

#include <QTimeZone>

namespace test {

/// A run on an external drive with all optional fields.
inline TarnwickKit::model::RunRecord fullRun() {
    TarnwickKit::model::RunRecord run;
    run.id = QUuid::createUuid();
    run.volumeName = QStringLiteral("Backup");
    run.connection = QStringLiteral("External");
    run.date = QDateTime(QDate(2024, 5, 1), QTime(12, 34), QTimeZone::utc());
    run.duration = 63;
    run.kind = TarnwickKit::model::RunRecord::Kind::external;
    run.writeBps = 987e6;
    run.writePeakBps = 1150e6;
    run.writeMinBps = 700e6;
    run.readBps = run.readPeakBps = run.readMinBps = 1043e6;
    run.randomReadBps = run.randomWriteBps = 50e6;
    run.randomReadIOPS = 12345;
    run.randomWriteIOPS = 23456;
    run.fileOpsPerSec = 1999;
    for (int i = 0; i < 100; ++i) {
        run.writeSamples.push_back({i * 0.1, 9e8 + 1e6 * (i % 17)});
        run.readSamples.push_back({i * 0.09, 1e9 + 1e6 * (i % 23)});
    }
    run.fsType = QStringLiteral("ext4");
    run.capacityBytes = std::int64_t{2} << 40;
    run.freeBytes = std::int64_t{1} << 40;
    run.sizeLabel = QStringLiteral("5.0 GiB");
    run.writeBlock = run.readBlock = 1 << 20;
    run.randomBlock = 16384;
    run.bypassCache = true;
    run.deviceModel = QStringLiteral("Samsung PSSD T7");
    run.deviceProtocol = QStringLiteral("USB");
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
