#pragma once

#include "OndelCore/health/OndelSMART.h"
#include "OndelCore/platform/drives/SmartBlocks.h"

#include <string>
#include <vector>

namespace OndelCore::health {

/// A disk's record and, in one line, where it came from or why it is empty.
struct SmartReading {
    std::string disk; ///< its name below "/dev"
    OndelSMART record;
    std::string source;
};

/// All disks under a device, and in one line where their records came from or why there are none.
struct SmartReadings {
    std::vector<SmartReading> disks;
    std::string source;
};

/// Every disk that `ondel_read_smart` would ask, with sources other than the real system's if the caller
/// hands some in. Threads, Fails: as there.
SmartReadings readSmart(const std::string& deviceName, const platform::SmartSources& sources = {});

/// The record for what came back from the drive or spoke for it. Threads: any.
OndelSMART recordOf(const platform::SmartAnswer& answer);

} // namespace OndelCore::health
