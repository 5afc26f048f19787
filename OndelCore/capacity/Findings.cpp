#include "OndelCore/capacity/Findings.h"

#include "OndelCore/capacity/BlockPattern.h"

#include <algorithm>

namespace OndelCore::capacity {

RangeMap::RangeMap(std::int64_t bytes) {
    constexpr std::int64_t mostCells = 4096;
    const std::int64_t blocks = std::max<std::int64_t>(1, (bytes + blockBytes - 1) / blockBytes);
    const std::int64_t blocksPerCell = (blocks + mostCells - 1) / mostCells;
    m_cells.cellBytes = blocksPerCell * blockBytes;
    m_cells.states.resize(static_cast<std::size_t>((blocks + blocksPerCell - 1) / blocksPerCell));
}

void RangeMap::mark(std::int64_t offset, std::int64_t length, BlockState state) {
    const std::lock_guard guard(m_lock);
    const std::int64_t end = offset + length;
    for (std::int64_t cell = offset / m_cells.cellBytes; cell * m_cells.cellBytes < end; ++cell) {
        BlockState& worst = m_cells.states.at(static_cast<std::size_t>(cell));
        worst = std::max(worst, state);
    }
}

std::shared_ptr<const CapacityCells> RangeMap::snapshot() const {
    const std::lock_guard guard(m_lock);
    return std::make_shared<const CapacityCells>(m_cells);
}

void Findings::addWritten(std::int64_t offset, std::int64_t length) {
    if (!written.empty() && written.back().end() == offset)
        written.back().length += length;
    else
        written.push_back({offset, length});
    map.mark(offset, length, BlockState::written);
}

std::int64_t Findings::bytesWritten() const {
    std::int64_t sum = 0;
    for (const Stretch& stretch : written)
        sum += stretch.length;
    return sum;
}

} // namespace OndelCore::capacity
