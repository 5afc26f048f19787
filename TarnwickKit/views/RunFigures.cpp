#include "TarnwickKit/views/RunFigures.h"

#include "OndelCore/benchmark/BenchmarkResult.h"

#include <algorithm>

namespace TarnwickKit::views {

using OndelCore::benchmark::BenchmarkResult;
using OndelCore::benchmark::ThroughputResult;
using OndelCore::benchmark::ThroughputSample;

namespace {

/// The first sample is left out: it holds the start's hesitation.
double leastRate(const ThroughputResult& test) {
    if (test.samples.size() < 2)
        return RunFigures::none;
    return std::min_element(test.samples.begin() + 1, test.samples.end(),
                            [](const ThroughputSample& a, const ThroughputSample& b) {
                                return a.bytesPerSecond < b.bytesPerSecond;
                            })
        ->bytesPerSecond;
}

} // namespace

RunFigures RunFigures::of(const BenchmarkResult& result) {
    RunFigures figures;
    if (const auto& write = result.sequentialWrite) {
        figures.writeBps = write->sustainedBytesPerSecond();
        figures.writePeakBps = write->peakBytesPerSecond();
        figures.writeMinBps = leastRate(*write);
    }
    if (const auto& read = result.sequentialRead) {
        figures.readBps = read->sustainedBytesPerSecond();
        figures.readPeakBps = read->peakBytesPerSecond();
        figures.readMinBps = leastRate(*read);
    }
    if (const auto& random = result.randomRead) {
        figures.randomReadIOPS = random->iops();
        figures.randomBlock = static_cast<double>(random->blockSize);
    }
    if (const auto& random = result.randomWrite) {
        figures.randomWriteIOPS = random->iops();
        figures.randomBlock = static_cast<double>(random->blockSize);
    }
    if (result.fileOps)
        figures.fileOpsPerSec = result.fileOps->create.opsPerSecond();
    return figures;
}

} // namespace TarnwickKit::views
