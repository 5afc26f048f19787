#pragma once

#include "TarnwickKit/model/capacity/CapacityRecord.h"
#include "TarnwickKit/model/runs/RunFields.h"

namespace TarnwickKit::model {

/// Each calls `visit(key, field)` for each field of a check or of a part of it that has a key, in order.
void visitFields(IsA<OndelCore::capacity::CapacityRate> auto& point, auto visit) {
    visit("offset", point.offset);
    visit("bytesPerSecond", point.bytesPerSecond);
}
void visitFields(IsA<OndelCore::capacity::CapacityDefect> auto& defect, auto visit) {
    visit("kind", defect.kind);
    visit("offset", defect.offset);
    visit("length", defect.length);
    visit("holds", defect.holds);
    visit("flippedBits", defect.flippedBits);
    visit("errno", defect.error);
    visit("repeats", defect.repeats);
    visit("isOnlyLater", defect.isOnlyLater);
}
void visitFields(IsA<OndelCore::capacity::CapacityRealSize> auto& size, auto visit) {
    visit("reason", size.reason);
    visit("bytes", size.bytes);
    visit("isExact", size.isExact);
}
void visitFields(IsA<OndelCore::capacity::CapacityPass> auto& pass, auto visit) {
    visit("bytes", pass.bytes);
    visit("duration", pass.duration);
    visit("rates", pass.rates);
    visit("wentThroughCache", pass.wentThroughCache);
    visit("flushErrno", pass.flushError);
    visit("shareAtDisk", pass.shareAtDisk);
}
void visitFields(IsA<OndelCore::capacity::CapacitySampling> auto& quick, auto visit) {
    visit("isSpread", quick.isSpread);
    visit("reserved", quick.reserved);
    visit("samples", quick.samples);
    visit("spacing", quick.spacing);
}
void visitFields(IsA<OndelCore::capacity::CapacityCells> auto& cells, auto visit) {
    visit("cellBytes", cells.cellBytes);
    visit("states", cells.states);
}
void visitFields(IsA<CapacityRecord> auto& check, auto visit) {
    visit("id", check.id);
    visit("volumeName", check.volumeName);
    visit("connection", check.connection);
    visit("date", check.date);
    visit("duration", check.result.duration);
    visit("size", check.size);
    visit("leaveFree", check.leaveFree);
    visit("again", check.again);
    visit("wasStopped", check.wasStopped);
    visit("planned", check.result.planned);
    visit("written", check.result.written);
    visit("verified", check.result.verified);
    visit("wrong", check.result.wrong);
    visit("unreadable", check.result.unreadable);
    visit("writeFailed", check.result.writeFailed);
    visit("recovered", check.result.recovered);
    visit("defects", check.result.defects);
    visit("furtherDefects", check.result.furtherDefects);
    visit("bytesByKind", check.result.bytesByKind);
    visit("realSize", check.result.realSize);
    visit("earlyEnd", check.result.earlyEnd);
    visit("write", check.result.write);
    visit("read", check.result.read);
    visit("readAgain", check.result.readAgain);
    visit("quick", check.result.quick);
    visit("cells", check.result.cells);
    visit("volumeTotal", check.result.volumeTotal);
    visit("volumeFree", check.result.volumeFree);
    visit("fsType", check.fsType);
    visit("deviceModel", check.deviceModel);
    visit("deviceProtocol", check.deviceProtocol);
    visit("version", check.version);
}

} // namespace TarnwickKit::model
