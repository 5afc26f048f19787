#pragma once

#include "OndelCore/Export.h"
#include "OndelCore/health/OndelSMART.h"
#include "OndelCore/platform/drives/SmartBlocks.h"

#include <string>
#include <vector>

namespace OndelCore::health {

/// A disk's record, and one line of text on its source or why it is empty.
struct SmartReading {
    std::string disk; ///< its name below "/dev"
    OndelSMART record;
    std::string source;
};

/// All disks under a mounted file system, and one line of text on their sources or why there are none.
struct SmartReadings {
    std::vector<SmartReading> disks;
    std::string source;
};

/// Reads the health of every disk under a mounted file system. Threads: any; blocks on the drives, for
/// `sources.patience` at most. Fails: no disks, or empty records, with the reasons in `source`.
SmartReadings readSmart(const platform::Mount& mount, const platform::SmartSources& sources = {});

/// The record of a drive's answer. Threads: any.
OndelSMART recordOf(const platform::SmartAnswer& answer);

} // namespace OndelCore::health
