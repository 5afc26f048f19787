#pragma once

#include "OndelCore/Export.h"
#include "OndelCore/capacity/CapacityPlan.h"
#include "OndelCore/capacity/CapacityProgress.h"
#include "OndelCore/capacity/CapacityResult.h"
#include "OndelCore/volumes/VolumeCapabilities.h"
#include "OndelCore/volumes/VolumeInfo.h"
#include "TarnwickKit/model/runs/RunRecord.h"

#include <QDateTime>
#include <QMetaType>
#include <QString>
#include <QUuid>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace TarnwickKit::model {

/// What a check says about the volume.
enum class CapacityVerdict {
    good,     ///< everything that was planned was written, and came back from the disk as it was
    unproven, ///< nothing is wrong, but not everything was looked at, or it did not come from the disk
    bad,      ///< something did not come back as it was written
};

/// The lasting form of a capacity check that no error broke off: what was asked for, what was found, and
/// facts of the volume at the time. Units: sizes in bytes, times in seconds.
struct ONDEL_KIT CapacityRecord {
    QUuid id;
    QString volumeName;
    QString connection;               ///< as RunRecord's
    QDateTime date;                   ///< when the check began
    std::optional<std::int64_t> size; ///< as asked for; absent: all free space
    std::int64_t leaveFree = 0;
    std::optional<double> again; ///< the pause before a second reading; absent: there was none
    /// A person ended the check. The result has the cells as they were, and of what they show the bytes at
    /// least.
    bool wasStopped = false;
    OndelCore::capacity::CapacityResult result;
    std::optional<QString> fsType;
    std::optional<QString> deviceModel;
    std::optional<QString> deviceProtocol;
    std::optional<QString> version; ///< of the program

    /// The record of a check. Its temperatures are left out: they belong to the figures of a run. `volume`
    /// and `capabilities`: as when the check began. Threads, fails: as RunRecord::from.
    static CapacityRecord from(const OndelCore::capacity::CapacityResult& result,
                               const OndelCore::capacity::CapacityPlan& plan,
                               const std::optional<OndelCore::volumes::VolumeInfo>& volume,
                               const std::optional<OndelCore::volumes::VolumeCapabilities>& capabilities,
                               const QDateTime& date,
                               const RunRecord::IdentityOf& driveIdentity = RunRecord::identityOf);

    /// The record of a check that was stopped after its last event. Else as `from`.
    static CapacityRecord
    fromStopped(const OndelCore::capacity::CapacityProgress& last,
                const OndelCore::capacity::CapacityPlan& plan,
                const std::optional<OndelCore::volumes::VolumeInfo>& volume,
                const std::optional<OndelCore::volumes::VolumeCapabilities>& capabilities,
                const QDateTime& date, const RunRecord::IdentityOf& driveIdentity = RunRecord::identityOf);

    bool isBad() const { return result.hasDefects() || result.realSize; }
    /// Whether a check that was not a quick one wrote and got back all that was planned. A check of all free
    /// space may end a little early: how much a file system needs for itself is known only when it is full.
    bool isWhole() const;
    /// Whether less than nine tenths of what was read were seen to come from the disk.
    bool isFromMemory() const;
    CapacityVerdict verdict() const;
    /// What lists call the check: the volume's name, else "Volume".
    QString title() const;

    bool operator==(const CapacityRecord&) const = default;
};

/// What is known of a check that is stopped after its last event: the cells, how much was written and read,
/// and of what did not come back one block per cell.
ONDEL_KIT OndelCore::capacity::CapacityResult
resultWhenStopped(const OndelCore::capacity::CapacityProgress& last);

/// The cells in at most `most` equal groups, each with the worst state of those in it.
ONDEL_KIT std::vector<OndelCore::capacity::BlockState>
worstOf(const std::vector<OndelCore::capacity::BlockState>& cells, std::size_t most);

} // namespace TarnwickKit::model

Q_DECLARE_METATYPE(TarnwickKit::model::CapacityRecord)
