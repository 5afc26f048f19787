#pragma once

#include "OndelCore/Export.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string_view>
#include <vector>

namespace OndelCore::capacity {

/// In the order of their time. A quick check goes from `preparing` (its space is being reserved) by
/// `sampling` (samples are written) to `reading`; a whole one from `preparing` by `writing` to `reading`.
/// Both may end with `waiting` and `readingAgain`.
enum class CapacityPhase { preparing, sampling, writing, reading, waiting, readingAgain };

/// By rising severity: a cell shows the worst of its blocks that were touched.
enum class BlockState : std::uint8_t {
    untouched,   ///< not written yet; in a quick check also: never will be
    written,     ///< taken by the volume, not read back yet
    verified,    ///< read back as written
    wrong,       ///< read back otherwise
    unreadable,  ///< reading it failed
    writeFailed, ///< writing it failed
};

/// The stable names ("readingAgain", "verified"), for files and scripts.
ONDEL_PUBLIC std::string_view rawValue(CapacityPhase phase);
ONDEL_PUBLIC std::string_view rawValue(BlockState state);

/// The range of a check as a row of cells, the first at offset 0. Units: bytes.
struct CapacityCells {
    std::int64_t cellBytes = 0; ///< how much one cell stands for, a multiple of 4096; the last may be shorter
    std::vector<BlockState> states{}; ///< at most 4096

    bool operator==(const CapacityCells&) const = default;
};

/// How far the running phase is.
struct CapacityProgress {
    CapacityPhase phase = CapacityPhase::preparing;
    /// Units: bytes; in `waiting`: seconds. Writing may end before `total` (see EarlyEnd).
    std::int64_t done = 0;
    std::int64_t total = 0;
    /// Where in the range the check is. Units: bytes.
    std::int64_t offset = 0;
    /// Of the last interval; 0 in `preparing` and `waiting`. Units: bytes per second.
    double bytesPerSecond = 0;
    /// Since the phase began, without the time in which the whole process stood still. Units: seconds.
    double elapsed = 0;
    /// Never null. Owner: shared; later events bring others and leave this one as it is.
    std::shared_ptr<const CapacityCells> cells{};
};

/// Hears how a check goes on.
using CapacityListener = std::function<void(const CapacityProgress&)>;

} // namespace OndelCore::capacity
