#pragma once

#include "OndelCore/platform/drives/BlockDevices.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace OndelCore::platform {

/// How a whole disk is attached to the machine.
struct DriveBus {
    std::optional<std::string> name; ///< the usual name; absent for virtual devices
    bool isExternal = false;         ///< outside the machine's case, or a memory card
};

/// Threads: any. Fails: no name, not external.
DriveBus busOfDisk(const BlockDevice& wholeDisk);

/// The folders of the controllers of an NVMe disk in the device tree. Threads: any. Fails: none.
std::vector<std::filesystem::path> nvmeControllers(const BlockDevice& wholeDisk);

/// Whether the disk is one that a virtual machine is given in place of a real one. Threads: any. Fails:
/// false.
bool isOfVirtualMachine(const BlockDevice& wholeDisk);

/// Whether the SCSI vendor text is "ATA", which marks an ATA disk behind a translator (SAT-2, 8.1.3).
/// Threads: any. Fails: false.
bool hasAtaForVendor(const BlockDevice& wholeDisk);

} // namespace OndelCore::platform
