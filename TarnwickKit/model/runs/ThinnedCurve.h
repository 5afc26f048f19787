#pragma once

#include "TarnwickKit/model/runs/RunRecord.h"

#include <vector>

namespace TarnwickKit::model {

/// Every so many-th point of a curve, so that 80 to 159 are left of 80 or more. Points are picked, not
/// merged; the first is always among them, the last need not be.
inline std::vector<RunSample> thinned(const std::vector<RunSample>& samples) {
    constexpr std::size_t target = 80;
    const std::size_t step = samples.size() < target ? 1 : samples.size() / target;
    std::vector<RunSample> kept;
    kept.reserve(samples.size() / step + 1);
    for (std::size_t index = 0; index < samples.size(); index += step)
        kept.push_back(samples[index]);
    return kept;
}

} // namespace TarnwickKit::model
