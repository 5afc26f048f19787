#pragma once

#include "OndelCore/benchmark/BenchmarkResult.h"
#include "OndelCore/benchmark/TestRun.h"
#include "OndelCore/benchmark/evidence/OperationTimer.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace OndelCore::benchmark {

/// Times a sequential test: one sample and one progress call for each interval of at least the plan's
/// `sampleInterval`. The time starts when the object is made.
class ThroughputRecorder {
public:
    /// `totalBytes`: for the progress calls; 0 while the end is not known.
    ThroughputRecorder(const TestRun& run, BenchmarkTest test, std::int64_t totalBytes)
        : m_run(run)
        , m_test(test)
        , m_totalBytes(totalBytes)
        , m_start(run.now())
        , m_lastTime(m_start)
        , m_lastTransfer(m_start) {}

    /// Call after each transfer. `moved`: bytes moved so far.
    void transferred(std::int64_t moved) {
        const double now = m_run.now();
        m_pauses.add(static_cast<std::int64_t>((now - std::exchange(m_lastTransfer, now)) * 1e9));
        if (!(now - m_lastTime < m_run.plan.sampleInterval) && now > m_lastTime) // no time, no rate
            takeSample(moved, now);
    }

    /// Call after the loop: a sample for what is left since the last one, so that the tail of a test always
    /// shows.
    void loopEnded(std::int64_t moved) {
        const double now = m_run.now();
        if (moved > m_lastBytes && now > m_lastTime)
            takeSample(moved, now);
    }

    /// Ends the time. `blockSize`: as used.
    ThroughputResult result(std::int64_t moved, std::int64_t blockSize) {
        const double duration = m_run.now() - m_start;
        ThroughputResult result{moved, duration, blockSize, std::move(m_samples)};
        m_pauses.tell(result.evidence);
        return result;
    }

private:
    void takeSample(std::int64_t moved, double now);

    const TestRun& m_run;
    BenchmarkTest m_test;
    std::int64_t m_totalBytes;
    double m_start;
    double m_lastTime; ///< of the last sample
    double m_lastTransfer;
    Pauses m_pauses;
    std::int64_t m_lastBytes = 0;
    std::vector<ThroughputSample> m_samples;
};

} // namespace OndelCore::benchmark
