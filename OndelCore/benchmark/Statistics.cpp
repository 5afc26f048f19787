// The figures derived from what was measured. Nothing of them is stored.

#include "OndelCore/benchmark/BenchmarkResult.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace OndelCore::benchmark {

namespace {

double perSecond(double amount, double seconds) { return seconds > 0 ? amount / seconds : 0; }

double median(std::vector<double> values, double ofNone) {
    if (values.empty())
        return ofNone;
    std::ranges::sort(values);
    const std::size_t middle = values.size() / 2;
    if (values.size() % 2 == 1)
        return values[middle];
    return (values[middle - 1] + values[middle]) * 0.5;
}

} // namespace

std::vector<FlushFailure> BenchmarkResult::flushFailures() const {
    std::vector<FlushFailure> failures;
    const auto add = [&](std::optional<BenchmarkTest> test, const std::optional<std::error_code>& error) {
        if (error)
            failures.push_back({test, *error});
    };
    add(std::nullopt, preparationFlushError);
    if (sequentialWrite)
        add(BenchmarkTest::sequentialWrite, sequentialWrite->flushError);
    if (randomWrite)
        add(BenchmarkTest::randomWrite, randomWrite->flushError);
    return failures;
}

double ThroughputResult::bytesPerSecond() const {
    return perSecond(static_cast<double>(bytesProcessed), duration);
}

double ThroughputResult::peakBytesPerSecond() const {
    if (samples.empty())
        return bytesPerSecond();
    return std::ranges::max(samples, {}, &ThroughputSample::bytesPerSecond).bytesPerSecond;
}

std::optional<double> ThroughputResult::lowestBytesPerSecond() const {
    if (samples.size() < 2)
        return std::nullopt;
    return std::ranges::min_element(samples.begin() + 1, samples.end(), {}, &ThroughputSample::bytesPerSecond)
        ->bytesPerSecond;
}

double ThroughputResult::sustainedBytesPerSecond() const {
    if (samples.empty() || !(samples.back().elapsed > 0))
        return bytesPerSecond();

    const double cutOff = samples.back().elapsed * 0.6666666666666666;
    const auto ratesFrom = [this](double firstElapsed) {
        std::vector<double> rates;
        for (const ThroughputSample& sample : samples)
            if (sample.elapsed >= firstElapsed)
                rates.push_back(sample.bytesPerSecond);
        return rates;
    };
    std::vector<double> rates = ratesFrom(cutOff);
    if (rates.empty())
        rates = ratesFrom(-std::numeric_limits<double>::infinity());
    return median(std::move(rates), bytesPerSecond());
}

bool ThroughputResult::observedCacheCliff() const {
    const double peak = peakBytesPerSecond();
    return peak > 0 && peak * 0.8 > sustainedBytesPerSecond();
}

double IOPSResult::iops() const { return perSecond(static_cast<double>(operations), duration); }

double IOPSResult::bytesPerSecond() const { return static_cast<double>(blockSize) * iops(); }

double FileOpResult::opsPerSecond() const { return perSecond(static_cast<double>(operations), duration); }

} // namespace OndelCore::benchmark
