#pragma once

#include "OndelCore/platform/drives/BlockDevices.h"

#include <optional>
#include <string>

namespace OndelCore::platform {

/// How a whole disk hangs on the machine.
struct DriveBus {
    std::optional<std::string> name; ///< in people's words; absent for what is no piece of hardware
    bool isExternal = false;         ///< outside of the machine's case, or a card in a slot
};

/// Threads: any. Fails: no name, not external.
DriveBus busOfDisk(const BlockDevice& wholeDisk);

/// Whether the SCSI layer puts the word for an ATA disk behind a translator where a vendor's name stands
/// (SAT-2, 8.1.3). Threads: any. Fails: false.
bool hasAtaForVendor(const BlockDevice& wholeDisk);

} // namespace OndelCore::platform
