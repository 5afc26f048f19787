#pragma once

#include "TarnwickKit/model/capacity/CapacityRecord.h"

#include <QTimeZone>

#include <system_error>

namespace TarnwickKit::model {

namespace capacity = OndelCore::capacity;

constexpr std::int64_t mebi = 1048576;
constexpr std::int64_t gibi = 1024 * mebi;

/// A check of `planned` bytes of free space on a stick of 128 GB, all of them right.
inline CapacityRecord goodCheck(std::int64_t planned = 118 * gibi) {
    CapacityRecord check;
    check.id = QUuid::fromString(QStringLiteral("01234567-89AB-CDEF-0123-456789ABCDEF"));
    check.volumeName = QStringLiteral("STICK");
    check.connection = QStringLiteral("Removable");
    check.date = QDateTime(QDate(2026, 3, 14), QTime(9, 26, 53), QTimeZone::utc());
    check.leaveFree = 64 * mebi;
    check.fsType = QStringLiteral("exfat");
    check.version = QStringLiteral("1.0.0");
    check.result.planned = check.result.written = check.result.verified = planned;
    check.result.volumeTotal = 128'000'000'000;
    check.result.volumeFree = planned + 64 * mebi;
    check.result.write = {.bytes = planned, .duration = 1500, .rates = {{0, 8e7}, {planned / 2, 7.5e7}}};
    check.result.read = {.bytes = planned, .duration = 1200, .rates = {{0, 1e8}, {planned / 2, 9e7}}};
    check.result.read.shareAtDisk = 1;
    check.result.cells = {.cellBytes = planned / 4096,
                          .states = std::vector(4096, capacity::BlockState::verified)};
    check.result.duration = 2702.5;
    return check;
}

/// The same with these places wrong.
inline CapacityRecord badCheck(const std::vector<capacity::CapacityDefect>& defects,
                               std::int64_t planned = 118 * gibi) {
    CapacityRecord check = goodCheck(planned);
    capacity::CapacityResult& result = check.result;
    result.defects = defects;
    for (const capacity::CapacityDefect& defect : defects) {
        const bool isUnreadable = defect.kind == capacity::DefectKind::unreadable;
        const bool isUnwritten = defect.kind == capacity::DefectKind::writeFailed;
        (isUnreadable ? result.unreadable : isUnwritten ? result.writeFailed : result.wrong) += defect.length;
        result.bytesByKind.at(static_cast<std::size_t>(defect.kind)) += defect.length;
        result.verified -= defect.length;
        const auto state = isUnreadable  ? capacity::BlockState::unreadable
                           : isUnwritten ? capacity::BlockState::writeFailed
                                         : capacity::BlockState::wrong;
        for (std::int64_t at = defect.offset; at < defect.offset + defect.length;
             at += result.cells.cellBytes)
            result.cells.states.at(static_cast<std::size_t>(at / result.cells.cellBytes)) = state;
    }
    return check;
}

/// A false capacity: beyond `real` bytes nothing is kept.
inline CapacityRecord falseCheck(std::int64_t real, bool isExact) {
    const std::int64_t kept = real - real % 4096;
    CapacityRecord check = badCheck({{.kind = capacity::DefectKind::otherBlock,
                                      .offset = kept,
                                      .length = 118 * gibi - kept,
                                      .holds = 0}});
    check.result.realSize = {capacity::CapacityRealSize::Reason::wrapsAround, real, isExact};
    return check;
}

/// A check that was stopped while it was reading.
inline CapacityRecord stoppedCheck(std::int64_t verified) {
    CapacityRecord check = goodCheck();
    check.wasStopped = true;
    check.result.verified = verified;
    check.result.read = {};
    return check;
}

} // namespace TarnwickKit::model
