#include "OndelCore/benchmark/BenchmarkPlan.h"

namespace OndelCore::benchmark {

const std::vector<BenchmarkSize::Preset>& BenchmarkSize::presets() {
    constexpr std::int64_t gibibyte = 1073741824;
    static const std::vector<Preset> presets{
        {"1 GiB", fixed(gibibyte)},       {"5 GiB", fixed(5 * gibibyte)},
        {"10 GiB", fixed(10 * gibibyte)}, {"20 GiB", fixed(20 * gibibyte)},
        {"64 GiB", fixed(64 * gibibyte)}, {"Fill disk", fillDisk(defaultLeaveFree)},
    };
    return presets;
}

const BenchmarkPlan& BenchmarkPlan::defaultPlan() {
    static const BenchmarkPlan plan;
    return plan;
}

} // namespace OndelCore::benchmark
