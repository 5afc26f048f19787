#include "OndelCore/capacity/PassMeter.h"

#include "OndelCore/capacity/ChunkRing.h"

#include <algorithm>
#include <utility>

namespace OndelCore::capacity {

PassMeter::PassMeter(const CheckRun& run, CapacityPhase phase, std::int64_t total)
    : m_run(run)
    , m_progress{.phase = phase, .total = total}
    , m_start(run.clock.now())
    , m_last(m_start)
    , m_told(m_start) {
    constexpr std::int64_t most = 512;
    const std::int64_t chunks = (run.bytes + chunkBytes - 1) / chunkBytes;
    const std::int64_t perBucket = (chunks + most - 1) / most;
    m_bucketBytes = perBucket * chunkBytes;
    m_buckets.resize(static_cast<std::size_t>((chunks + perBucket - 1) / perBucket));
    tell();
}

void PassMeter::transferred(std::int64_t offset, std::int64_t length) {
    constexpr std::int64_t interval = 100'000'000;
    m_progress.done += length;
    m_progress.offset = offset + length;
    add(offset, length);
    if (m_last - m_told < interval)
        return;
    m_progress.bytesPerSecond =
        static_cast<double>(m_progress.done - m_toldBytes) / (static_cast<double>(m_last - m_told) * 1e-9);
    m_told = m_last;
    m_toldBytes = m_progress.done;
    tell();
}

void PassMeter::add(std::int64_t offset, std::int64_t length) {
    const std::int64_t now = m_run.clock.now();
    const std::int64_t duration = std::max<std::int64_t>(0, now - std::exchange(m_last, now));
    m_pauses.add(duration);
    Bucket& bucket =
        m_buckets.at(std::min(static_cast<std::size_t>(offset / m_bucketBytes), m_buckets.size() - 1));
    bucket.bytes += length;
    bucket.nanoseconds += duration;
}

void PassMeter::tell() {
    m_progress.elapsed = static_cast<double>(m_last - m_start) * 1e-9;
    m_progress.cells = m_run.findings.map.snapshot();
    m_run.progress(m_progress);
}

CapacityPass PassMeter::finish() {
    m_last = m_run.clock.now();
    CapacityPass pass;
    pass.bytes = m_progress.done;
    pass.duration = static_cast<double>(m_last - m_start) * 1e-9;
    std::int64_t offset = 0;
    for (const Bucket& bucket : m_buckets) {
        if (bucket.bytes > 0 && bucket.nanoseconds > 0)
            pass.rates.push_back(
                {offset, static_cast<double>(bucket.bytes) * 1e9 / static_cast<double>(bucket.nanoseconds)});
        offset += m_bucketBytes;
    }
    m_pauses.tell(pass.evidence);
    tell();
    return pass;
}

} // namespace OndelCore::capacity
