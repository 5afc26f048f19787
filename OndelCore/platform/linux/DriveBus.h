#pragma once

#include "OndelCore/platform/BlockDevices.h"

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

} // namespace OndelCore::platform
