#pragma once

#include "OndelCore/Hashing.h"
#include "OndelCore/benchmark/BenchmarkTest.h"

#include <cstdint>
#include <functional>
#include <optional>

namespace OndelCore::benchmark {

/// How far the running test is. The two counts are bytes only in the sequential and random tests:
///   sequentialWrite   bytes written so far; total 0 while the end is not known (fillDisk)
///   sequentialRead    bytes read so far, of the data file's length
///   random tests      operations times the block
///   fileOps           operations, of four times the file count
struct BenchmarkProgress {
    BenchmarkTest test = BenchmarkTest::sequentialWrite;
    std::int64_t completedBytes = 0;
    std::int64_t totalBytes = 0;
    double instantBytesPerSecond = 0; ///< of the last interval; always 0 outside the sequential tests
    double elapsed = 0;               ///< seconds since this test's measuring began
    std::optional<double> celsius{};  ///< the hottest drive's temperature, where a sensor tells

    bool operator==(const BenchmarkProgress&) const = default;
    std::size_t hash() const {
        return hashFields(test, completedBytes, totalBytes, instantBytesPerSecond, elapsed, celsius);
    }
};

/// Hears how a run goes on; called on the worker, from inside the measured loops.
using ProgressListener = std::function<void(const BenchmarkProgress&)>;

} // namespace OndelCore::benchmark
