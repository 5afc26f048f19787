#pragma once

#include "TarnwickKit/model/runs/RunRecord.h"

namespace TarnwickKit::model {

/// Calls `visit(key, field)` for the fields of a record in their order. A field that is no std::optional is
/// always there.
template <typename Record, typename Visit>
void visitFields(Record& run, Visit visit) {
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
}

} // namespace TarnwickKit::model
