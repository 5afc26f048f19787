#pragma once

#include "OndelCore/capacity/CheckRun.h"

#include <optional>
#include <vector>

namespace OndelCore::capacity {

/// What became of a pass that writes. Where every byte was taken, `end` is absent.
struct WriteOutcome {
    CapacityPass pass;
    std::optional<EarlyEnd> end{};
    int error = 0; ///< errno of what ended it
};

/// Writes the stretches, by rising offset, and flushes. Content is made ahead on a thread of its own.
/// `watchesReserve`: stop when only the plan's reserve is left. Fails: throws BenchmarkError::Io if the
/// volume is gone, or Cancelled.
WriteOutcome writeStretches(const CheckRun& run, CapacityPhase phase, const std::vector<Stretch>& stretches,
                            bool watchesReserve);

/// Reads what was written, and compares it on a thread of its own. `defects`: gets what is wrong, but for
/// what is in `known` already, if that is given. Fails: as above.
CapacityPass readWritten(const CheckRun& run, CapacityPhase phase, DefectList& defects,
                         const DefectList* known = nullptr);

} // namespace OndelCore::capacity
