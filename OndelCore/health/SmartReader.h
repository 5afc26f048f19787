#pragma once

#include "OndelCore/health/OndelSMART.h"
#include "OndelCore/platform/SmartBlocks.h"

#include <string>

namespace OndelCore::health {

/// A record and, in one line, where it came from or why it is empty.
struct SmartReading {
    OndelSMART record;
    std::string source;
};

/// `ondel_read_smart` with its source, and with sources other than the real system's if the caller hands
/// some in. Threads, Fails: as there.
SmartReading readSmart(const std::string& deviceName, const platform::SmartSources& sources = {});

/// The record for what came back from the drive or spoke for it. Threads: any.
OndelSMART recordOf(const platform::SmartAnswer& answer);

} // namespace OndelCore::health
