#pragma once

#include "OndelCore/benchmark/BenchmarkError.h"
#include "OndelCore/capacity/BlockPattern.h"
#include "OndelCore/capacity/CapacityPlan.h"
#include "OndelCore/capacity/CapacityResult.h"
#include "OndelCore/capacity/CheckEnvironment.h"
#include "OndelCore/capacity/Findings.h"
#include "OndelCore/capacity/RangeFiles.h"
#include "OndelCore/capacity/StandstillClock.h"

#include <cstdint>
#include <stop_token>

namespace OndelCore::capacity {

/// What all phases of one check work with. Owner: whoever made the check; it outlives the phases.
struct CheckRun {
    const CheckEnvironment& system;
    const CapacityPlan& plan;
    const std::stop_token& stop;
    const CapacityListener& progress;
    int volume;         ///< the target folder, open
    int folder;         ///< the working folder, open
    std::int64_t bytes; ///< the length of the range, in whole blocks
    const BlockPattern& pattern;
    StandstillClock& clock;
    RangeFiles& files;
    Findings& findings;

    /// Every loop calls this before each transfer. Fails: throws Cancelled.
    void throwIfStopped() const {
        if (stop.stop_requested())
            throw benchmark::Cancelled();
    }
};

/// Whether the error says that there is no device any more.
bool meansGone(int error);

/// After many errors in a row: whether nothing at all of what was written can be read. File systems with
/// checksums fail to read what a disk returns wrong; then other places can be read still.
bool isVolumeGone(const CheckRun& run);

} // namespace OndelCore::capacity
