#pragma once

#include "OndelCore/benchmark/Hashing.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace OndelCore::benchmark {

/// The rate over one interval of a sequential test.
struct ThroughputSample {
    double elapsed = 0;        ///< seconds from the start of the measured loop to the end of the interval
    double bytesPerSecond = 0; ///< over this interval alone

    bool operator==(const ThroughputSample&) const = default;
    std::size_t hash() const { return hashFields(elapsed, bytesPerSecond); }
};

/// A sequential test as measured, with the figures derived from it.
struct ThroughputResult {
    std::int64_t bytesProcessed = 0; ///< what the system calls really moved
    double duration = 0;        ///< seconds; for the write with its closing flush, which lies in no sample
    std::int64_t blockSize = 0; ///< bytes per call, as used
    std::vector<ThroughputSample> samples{}; ///< in time order

    /// Overall rate; 0 without a duration.
    double bytesPerSecond() const;
    /// The best sample; without samples the overall rate.
    double peakBytesPerSecond() const;
    /// The slowest sample but for the first, in which caches and queues still fill; absent without another.
    std::optional<double> lowestBytesPerSecond() const;
    /// The median rate of the samples in the last third of the time; without samples the overall rate.
    double sustainedBytesPerSecond() const;
    /// The sustained rate lies more than 20 percent below the peak: a cache gave out.
    bool observedCacheCliff() const;

    bool operator==(const ThroughputResult&) const = default;
    std::size_t hash() const { return hashFields(bytesProcessed, duration, blockSize, samples); }
};

/// A random test as measured, one operation outstanding at a time.
struct IOPSResult {
    std::int64_t operations = 0;
    double duration = 0;        ///< seconds; for writes with the closing flush
    std::int64_t blockSize = 0; ///< bytes per operation, as used

    double iops() const;           ///< operations per second; 0 without a duration
    double bytesPerSecond() const; ///< blockSize times iops

    bool operator==(const IOPSResult&) const = default;
    std::size_t hash() const { return hashFields(operations, duration, blockSize); }
};

/// One phase of the file-operations test.
struct FileOpResult {
    std::int64_t operations = 0;
    double duration = 0; ///< seconds

    double opsPerSecond() const; ///< 0 without a duration

    bool operator==(const FileOpResult&) const = default;
    std::size_t hash() const { return hashFields(operations, duration); }
};

struct FileOpsResult {
    FileOpResult create{};
    FileOpResult stat{};
    FileOpResult rename{};
    FileOpResult remove{}; ///< the phase "delete", a word that the language keeps for itself

    bool operator==(const FileOpsResult&) const = default;
    std::size_t hash() const { return hashFields(create, stat, rename, remove); }
};

/// What a run brought; a test that was not asked for is absent.
struct BenchmarkResult {
    std::optional<ThroughputResult> sequentialWrite{};
    std::optional<ThroughputResult> sequentialRead{};
    std::optional<IOPSResult> randomRead{};
    std::optional<IOPSResult> randomWrite{};
    std::optional<FileOpsResult> fileOps{};

    bool operator==(const BenchmarkResult&) const = default;
    std::size_t hash() const {
        return hashFields(sequentialWrite, sequentialRead, randomRead, randomWrite, fileOps);
    }
};

} // namespace OndelCore::benchmark
