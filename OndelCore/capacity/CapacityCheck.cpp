#include "OndelCore/capacity/CapacityCheck.h"

#include "OndelCore/capacity/CheckRunner.h"

namespace OndelCore::capacity {

CapacityResult CapacityCheck::run(const CapacityPlan& plan, const std::stop_token& stop,
                                  const CapacityListener& progress) const {
    return runCheck(CheckEnvironment{}, plan, stop, progress ? progress : [](const CapacityProgress&) {});
}

} // namespace OndelCore::capacity
