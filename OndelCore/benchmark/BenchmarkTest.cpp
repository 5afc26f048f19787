#include "OndelCore/benchmark/BenchmarkTest.h"

#include <algorithm>

namespace OndelCore::benchmark {

namespace {
constexpr std::array<std::string_view, allBenchmarkTests.size()> rawValues{
    "sequentialWrite", "sequentialRead", "randomRead", "randomWrite", "fileOps"};
}

std::string_view rawValue(BenchmarkTest test) { return rawValues.at(static_cast<std::size_t>(test)); }

std::optional<BenchmarkTest> benchmarkTest(std::string_view rawValue) {
    const auto found = std::find(rawValues.begin(), rawValues.end(), rawValue);
    if (found == rawValues.end())
        return std::nullopt;
    return allBenchmarkTests.at(static_cast<std::size_t>(found - rawValues.begin()));
}

} // namespace OndelCore::benchmark
