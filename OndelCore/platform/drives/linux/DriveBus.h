#pragma once

#include "OndelCore/platform/drives/BlockDevices.h"

#include <optional>
#include <string>

namespace OndelCore::platform {

/// How a whole disk is attached to the machine.
struct DriveBus {
    std::optional<std::string> name; ///< the usual name; absent for virtual devices
    bool isExternal = false;         ///< outside the machine's case, or a memory card
};

/// Threads: any. Fails: no name, not external.
DriveBus busOfDisk(const BlockDevice& wholeDisk);

/// Whether the SCSI vendor text is "ATA", which marks an ATA disk behind a translator (SAT-2, 8.1.3).
/// Threads: any. Fails: false.
bool hasAtaForVendor(const BlockDevice& wholeDisk);

} // namespace OndelCore::platform
