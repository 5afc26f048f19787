#pragma once

#include "OndelCore/benchmark/BenchmarkPlan.h"
#include "OndelCore/benchmark/BenchmarkResult.h"

#include <cstdint>
#include <optional>
#include <system_error>
#include <vector>

namespace OndelCore::benchmark {

/// A test that moved data, in the form in which all four are judged. Units: bytes, seconds.
struct ObservedTransfer {
    BenchmarkTest test;
    bool writes;
    std::int64_t moved; ///< by its system calls; never negative
    std::int64_t blockSize;
    double loopSeconds; ///< without the closing flush
    const std::vector<ThroughputSample>& samples;
    const std::optional<std::error_code>& flushError;
    const TestEvidence& evidence;

    std::int64_t transfers() const;
    /// What the disks and the thread moved; `own`: in the test's own direction, else in the other. Absent
    /// also where a count makes no sense.
    std::optional<std::int64_t> diskBytes(bool own) const;
    std::optional<std::int64_t> threadBytes(bool own) const;
    /// What the volume's own device moved in the test's direction.
    std::optional<std::int64_t> volumeBytes() const;
};

/// A run as its remarks see it. Refers to the plan and the result that it was made of.
class ObservedRun {
public:
    ObservedRun(const BenchmarkPlan& plan, const BenchmarkResult& result);

    const BenchmarkPlan& plan;
    const BenchmarkResult& result;
    /// Of nothing where nobody looked: each flag is then not set.
    const platform::Circumstances& circumstances;
    std::vector<ObservedTransfer> transfers;
    /// The disks count nothing although there was something to count: counting is switched off, or they are
    /// not the ones that worked.
    bool isWitnessBlind = false;
    /// The same of the volume's own device, while the disks did count something.
    bool isVolumeBlind = false;

    bool reaches(platform::FileSystemReach reach) const { return circumstances.reach == reach; }
    bool hasCircumstances() const { return result.circumstances.has_value(); }
    /// Some test's traffic at the disks is known.
    bool seesDisks() const;
    /// The share of a test's bytes that was seen at the disks, 0 to 1. Absent where that cannot be told.
    std::optional<double> shareAtDisk(const ObservedTransfer& test) const;
    /// That share is too small for the disk's own figure.
    bool isFromMemory(const ObservedTransfer& test) const;
    /// How long the data file was; absent without one.
    std::optional<std::int64_t> fileSize() const;
};

} // namespace OndelCore::benchmark
