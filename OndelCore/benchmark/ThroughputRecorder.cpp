#include "OndelCore/benchmark/ThroughputRecorder.h"

namespace OndelCore::benchmark {

void ThroughputRecorder::takeSample(std::int64_t moved, double now) {
    const double rate = static_cast<double>(moved - m_lastBytes) / (now - m_lastTime);
    const double elapsed = now - m_start;
    m_samples.push_back({elapsed, rate});
    m_run.progress({m_test, moved, m_totalBytes, rate, elapsed});
    m_lastTime = now;
    m_lastBytes = moved;
}

} // namespace OndelCore::benchmark
