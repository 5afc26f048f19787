#pragma once

#include "OndelCore/capacity/CapacityResult.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace OndelCore::capacity {

/// Joins wrong blocks to runs. Keeps the first 65536 runs (5 MiB), more than any text shows, for what is
/// concluded from their places. Threads: one at a time.
class DefectList {
public:
    static constexpr std::size_t mostKept = 65536;

    /// By rising offset.
    void add(const CapacityDefect& defect);

    const std::vector<CapacityDefect>& runs() const { return m_runs; }
    std::int64_t furtherRuns() const { return m_furtherRuns; }
    std::int64_t bytesOf(DefectKind kind) const { return m_bytes.at(static_cast<std::size_t>(kind)); }
    /// Whether the block at `offset` is in a run. Beyond what is kept, once something was left out, every one
    /// counts as such.
    bool covers(std::int64_t offset) const;

private:
    std::vector<CapacityDefect> m_runs;
    CapacityDefect m_last; ///< the last run of all, kept or not
    std::int64_t m_furtherRuns = 0;
    std::array<std::int64_t, allDefectKinds.size()> m_bytes{};
};

/// Enters into the result what the lists hold: `writing` what failed there, `reading` and `again` what the
/// two readings found.
void enterDefects(CapacityResult& result, const DefectList& writing, const DefectList& reading,
                  const DefectList& again);

} // namespace OndelCore::capacity
