#pragma once

#include "OndelCore/capacity/CapacityResult.h"
#include "OndelCore/capacity/Findings.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace OndelCore::capacity {

/// Where a part of the range lies on the volume. Units: bytes.
struct PlacedStretch {
    std::int64_t offset = 0;
    std::int64_t place = 0;
    std::int64_t length = 0;
};

/// What the real size of a volume is concluded from.
struct RealSizeClues {
    const Findings& findings;
    /// By rising offset; empty where the file system does not tell. Then the order of writing stands for the
    /// order on the volume, as on an empty volume it mostly is.
    std::vector<PlacedStretch> places;
    std::int64_t usedBefore = 0; ///< of the volume, before the check
    bool isQuick = false;
};

/// Absent when the defects have no such pattern: then they are single defects.
std::optional<CapacityRealSize> concludedRealSize(const RealSizeClues& clues);

} // namespace OndelCore::capacity
