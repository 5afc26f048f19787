#pragma once

#include "OndelCore/Export.h"
#include "OndelCore/Hashing.h"
#include "OndelCore/benchmark/BenchmarkTest.h"
#include "OndelCore/benchmark/evidence/Evidence.h"
#include "OndelCore/platform/drives/Circumstances.h"
#include "OndelCore/platform/storage/TriedAbilities.h"

#include <cstdint>
#include <optional>
#include <system_error>
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
struct ONDEL_PUBLIC ThroughputResult {
    std::int64_t bytesProcessed = 0; ///< what the system calls really moved
    double duration = 0;        ///< seconds; for the write with its closing flush, which lies in no sample
    std::int64_t blockSize = 0; ///< bytes per call, as used
    std::vector<ThroughputSample> samples{}; ///< in time order
    /// Why the closing flush of the write failed; absent when it did not. Not all that was written may be on
    /// the medium then, and the rate is that of the system calls all the same.
    std::optional<std::error_code> flushError{};
    TestEvidence evidence{};

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
    std::size_t hash() const {
        return hashFields(bytesProcessed, duration, blockSize, samples, flushError, evidence);
    }
};

/// A random test as measured, one operation outstanding at a time.
struct ONDEL_PUBLIC IOPSResult {
    std::int64_t operations = 0;
    double duration = 0;                         ///< seconds; for writes with the closing flush
    std::int64_t blockSize = 0;                  ///< bytes per operation, as used
    std::optional<std::error_code> flushError{}; ///< of the closing flush of writes, as above
    std::optional<Latency> latency{};            ///< of each operation without that flush
    TestEvidence evidence{};

    double iops() const;           ///< operations per second; 0 without a duration
    double bytesPerSecond() const; ///< blockSize times iops

    bool operator==(const IOPSResult&) const = default;
    std::size_t hash() const {
        return hashFields(operations, duration, blockSize, flushError, latency, evidence);
    }
};

/// One phase of the file-operations test.
struct ONDEL_PUBLIC FileOpResult {
    std::int64_t operations = 0;
    double duration = 0;              ///< seconds
    std::optional<Latency> latency{}; ///< of each operation

    double opsPerSecond() const; ///< 0 without a duration

    bool operator==(const FileOpResult&) const = default;
    std::size_t hash() const { return hashFields(operations, duration, latency); }
};

/// The file-operations test as measured: every phase goes over all files before the next begins.
struct FileOpsResult {
    FileOpResult create{};
    FileOpResult stat{};
    FileOpResult rename{};
    FileOpResult remove{};   ///< the phase "delete", a word that the language keeps for itself
    TestEvidence evidence{}; ///< of all phases

    bool operator==(const FileOpsResult&) const = default;
    std::size_t hash() const { return hashFields(create, stat, rename, remove, evidence); }
};

/// A flush to the medium that failed, after which the run went on.
struct FlushFailure {
    std::optional<BenchmarkTest> test; ///< absent: after the preparation of the data file
    std::error_code error;

    bool operator==(const FlushFailure&) const = default;
};

/// What a run brought; a test that was not asked for is absent.
struct ONDEL_PUBLIC BenchmarkResult {
    std::optional<ThroughputResult> sequentialWrite{};
    std::optional<ThroughputResult> sequentialRead{};
    std::optional<IOPSResult> randomRead{};
    std::optional<IOPSResult> randomWrite{};
    std::optional<FileOpsResult> fileOps{};
    /// Why the flush after the preparation of the data file failed; absent when it did not.
    std::optional<std::error_code> preparationFlushError{};
    /// What the file system did when it was tried after the tests.
    platform::TriedAbilities tried{};
    /// Absent where nobody looked.
    std::optional<platform::Circumstances> circumstances{};

    /// In the order of their time; mostly none.
    std::vector<FlushFailure> flushFailures() const;

    bool operator==(const BenchmarkResult&) const = default;
    std::size_t hash() const {
        return hashFields(sequentialWrite, sequentialRead, randomRead, randomWrite, fileOps,
                          preparationFlushError, tried, circumstances);
    }
};

} // namespace OndelCore::benchmark
