#include "OndelCore/capacity/CapacityCheck.h"

#include "OndelCore/benchmark/BenchmarkError.h"

namespace OndelCore::capacity {

CapacityResult CapacityCheck::run(const CapacityPlan& /*plan*/, std::stop_token /*stop*/,
                                  const CapacityListener& /*progress*/) const {
    throw benchmark::BenchmarkError(benchmark::BenchmarkError::NotWritable{});
}

} // namespace OndelCore::capacity
