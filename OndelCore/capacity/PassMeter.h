#pragma once

#include "OndelCore/benchmark/evidence/OperationTimer.h"
#include "OndelCore/capacity/CheckRun.h"

#include <cstdint>
#include <vector>

namespace OndelCore::capacity {

/// Times one pass: its rate by place, its pauses, and the progress calls. The time starts when the object is
/// made. Threads: the one that transfers.
class PassMeter {
public:
    /// `total`: how much it is to transfer, for the progress calls.
    PassMeter(const CheckRun& run, CapacityPhase phase, std::int64_t total);

    /// Call after each transfer.
    void transferred(std::int64_t offset, std::int64_t length);
    /// Call after what takes time at a place and moves nothing.
    void worked(std::int64_t offset) { add(offset, 0); }
    /// Ends the pass and brings the last progress.
    CapacityPass finish();

private:
    struct Bucket {
        std::int64_t bytes = 0;
        std::int64_t nanoseconds = 0;
    };
    void add(std::int64_t offset, std::int64_t length);
    void tell();

    const CheckRun& m_run;
    CapacityProgress m_progress;
    std::int64_t m_bucketBytes;
    std::vector<Bucket> m_buckets;
    std::int64_t m_start;
    std::int64_t m_last;
    std::int64_t m_told;
    std::int64_t m_toldBytes = 0;
    benchmark::Pauses m_pauses;
};

} // namespace OndelCore::capacity
