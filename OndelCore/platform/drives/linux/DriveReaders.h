#pragma once

#include "OndelCore/platform/drives/SmartBlocks.h"
#include "OndelCore/platform/drives/linux/DriveCalls.h"

namespace OndelCore::platform {

/// What one reader got out of one disk.
struct DriveReply {
    SmartAnswer answer;
    /// This process was not let through to the disk; someone else might be.
    bool isRefused = false;
};

/// Asks an NVMe drive for its health log. Threads: any; blocks. Fails: an empty answer.
DriveReply readNvmeDrive(const BlockDevice& disk, DriveCalls& calls);

/// Asks a disk of the SCSI layer that declares to carry ATA commands (SATA ports, SAS controllers, USB
/// bridges with SCSI/ATA translation). A disk that sleeps, or does not say whether it does, is left alone,
/// and so is one that gives no verdict. Threads: any; blocks. Fails: an empty answer.
DriveReply readAtaDrive(const BlockDevice& disk, DriveCalls& calls, const DevicePropertySource& database);

/// Asks UDisks2 for what it knows of a disk. Needs no event loop. Threads: any; blocks.
/// Fails: an empty answer.
SmartAnswer readFromUDisks(const BlockDevice& disk, const SmartSources& sources);

/// The reply when `open` or a command ended with this errno.
DriveReply unreachable(const BlockDevice& disk, int error);

} // namespace OndelCore::platform
