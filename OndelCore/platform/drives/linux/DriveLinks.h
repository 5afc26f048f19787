#pragma once

#include "OndelCore/platform/drives/BlockDevices.h"
#include "OndelCore/platform/drives/Circumstances.h"

#include <optional>

namespace OndelCore::platform {

/// The link of a whole disk: PCIe of an NVMe drive, SATA, or USB. Both rates are those of the line, of all
/// lanes. Threads: any; asks the device tree only. Fails: absent unless both what was negotiated and what the
/// drive itself could do are known.
std::optional<DriveLink> linkOfDisk(const BlockDevice& wholeDisk);

} // namespace OndelCore::platform
