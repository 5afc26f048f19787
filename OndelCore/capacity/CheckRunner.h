#pragma once

#include "OndelCore/capacity/CapacityPlan.h"
#include "OndelCore/capacity/CapacityResult.h"
#include "OndelCore/capacity/CheckEnvironment.h"

#include <stop_token>

namespace OndelCore::capacity {

// What CapacityCheck is made of, for the check itself, its tests and its benchmarks.

/// One whole check. Threads, failures: as CapacityCheck::run; `progress` must be callable.
CapacityResult runCheck(const CheckEnvironment& system, const CapacityPlan& plan, const std::stop_token& stop,
                        const CapacityListener& progress);

} // namespace OndelCore::capacity
