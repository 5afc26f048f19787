#pragma once

#include "OndelCore/platform/drives/SmartBlocks.h"
#include "OndelCore/platform/drives/linux/DriveCalls.h"

#include <optional>

namespace OndelCore::platform {

/// The result of one reader for one disk.
struct DriveReply {
    SmartAnswer answer;
    /// This process lacks the permission; a service may have it.
    bool isRefused = false;
};

/// Reads the health log of an NVMe drive. Threads: any; blocks. Fails: an empty answer.
DriveReply readNvmeDrive(const BlockDevice& disk, DriveCalls& calls);

/// Reads an ATA disk in the SCSI layer (SATA ports, SAS controllers, USB bridges with SCSI/ATA translation)
/// that declares to take ATA commands. Stops if the disk sleeps, if its power mode is unknown, or if it has
/// no verdict. Threads: any; blocks. Fails: an empty answer.
DriveReply readAtaDrive(const BlockDevice& disk, DriveCalls& calls, const DevicePropertySource& database);

/// Reads the data that UDisks2 has on a disk. Needs no event loop. Threads: any; blocks. Fails: an empty
/// answer.
SmartAnswer readFromUDisks(const BlockDevice& disk, const SmartSources& sources);

/// The temperature that UDisks2 read from a disk within the last minute, as above. Units: degrees Celsius.
/// Fails: absent.
std::optional<double> celsiusFromUDisks(const BlockDevice& disk, const SmartSources& sources);

/// The reply if `open` or a command failed with this errno.
DriveReply unreachable(const BlockDevice& disk, int error);

} // namespace OndelCore::platform
