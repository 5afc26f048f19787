#pragma once

#include "OndelCore/capacity/CapacityProgress.h"
#include "OndelCore/capacity/DefectList.h"

#include <cstdint>
#include <memory>
#include <mutex>
#include <vector>

namespace OndelCore::capacity {

/// A part of the range. Units: bytes.
struct Stretch {
    std::int64_t offset = 0;
    std::int64_t length = 0;

    std::int64_t end() const { return offset + length; }
    bool operator==(const Stretch&) const = default;
};

/// The map of a range: the worst state of the blocks in each cell. Threads: any.
class RangeMap {
public:
    explicit RangeMap(std::int64_t bytes);

    void mark(std::int64_t offset, std::int64_t length, BlockState state);
    std::shared_ptr<const CapacityCells> snapshot() const;

private:
    mutable std::mutex m_lock;
    CapacityCells m_cells;
};

/// What is known of the range so far. Written by the thread that transfers while it writes, and by the one
/// that compares afterwards.
struct Findings {
    explicit Findings(std::int64_t bytes)
        : map(bytes) {}

    RangeMap map;
    std::vector<Stretch> written; ///< by rising offset, neighbours joined
    DefectList writing;
    DefectList reading;
    DefectList again;

    /// Beyond the last.
    void addWritten(std::int64_t offset, std::int64_t length);
    std::int64_t bytesWritten() const;
};

} // namespace OndelCore::capacity
