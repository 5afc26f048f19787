#pragma once

#include "OndelCore/Hashing.h"

#include <cstdint>
#include <optional>

namespace OndelCore::benchmark {

/// How long single operations took. Units: seconds, within 1 % (the worst: exact).
struct Latency {
    double p50 = 0;  ///< half of the operations took no longer
    double p99 = 0;  ///< all but 1 in 100 took no longer
    double p999 = 0; ///< all but 1 in 1000
    double worst = 0;

    bool operator==(const Latency&) const = default;
    std::size_t hash() const { return hashFields(p50, p99, p999, worst); }
};

/// Bytes and requests that went one way. Requests of file systems and programs are merged and split on their
/// way down, so their number here is the disks' own.
struct Traffic {
    std::int64_t bytes = 0;
    std::int64_t requests = 0;

    bool operator==(const Traffic&) const = default;
    std::size_t hash() const { return hashFields(bytes, requests); }
};

/// What was observed while one test ran, beside what its own calls answered. What could not be observed is
/// absent: never 0, never guessed.
struct TestEvidence {
    /// When the test began and ended. Units: seconds since the run began.
    double began = 0;
    double ended = 0;
    /// What all whole disks under the volume delivered and took meanwhile, for whomever.
    std::optional<Traffic> diskReads{};
    std::optional<Traffic> diskWrites{};
    /// The same of the volume's own device on them, where that is not a whole disk.
    std::optional<Traffic> volumeReads{};
    std::optional<Traffic> volumeWrites{};
    /// What the system accounts to the measuring thread alone; 0 where a program serves the file system.
    /// Units: bytes.
    std::optional<std::int64_t> threadReads{};
    std::optional<std::int64_t> threadWrites{};
    /// Transfers that the file system refused to do past its cache, and that were made through it.
    std::int64_t refusedTransfers = 0;
    /// It refused to bypass the cache at all, although that was asked for.
    bool isBypassRefused = false;
    /// How long the closing flush took. Units: seconds.
    std::optional<double> flushDuration{};
    /// The longest time from the end of one transfer or operation to the end of the next. Units: seconds.
    double longestPause = 0;
    /// How many of them took over a second.
    std::int64_t longPauses = 0;

    bool operator==(const TestEvidence&) const = default;
    std::size_t hash() const {
        return hashFields(began, ended, diskReads, diskWrites, volumeReads, volumeWrites, threadReads,
                          threadWrites, refusedTransfers, isBypassRefused, flushDuration, longestPause,
                          longPauses);
    }
};

} // namespace OndelCore::benchmark
