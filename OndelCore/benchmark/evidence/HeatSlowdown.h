#pragma once

#include "OndelCore/benchmark/evidence/Evidence.h"
#include "OndelCore/benchmark/evidence/RateCurve.h"
#include "OndelCore/platform/drives/Circumstances.h"

#include <optional>

namespace OndelCore::benchmark {

/// A drive that came close to its limit during a test, stayed hot, and was slower from then on.
struct HeatSlowdown {
    double celsius = 0;
    double elapsed = 0; ///< seconds from the test's start
    double limit = 0;   ///< degrees Celsius
    double fall = 0;    ///< share of the rate before, 0 to 1
};

/// Absent if the drive was hot before the test already: then nothing tells what it does when cool.
std::optional<HeatSlowdown> heatSlowdown(const platform::Circumstances& circumstances,
                                         const TestEvidence& evidence, const RateCurve& curve);

} // namespace OndelCore::benchmark
