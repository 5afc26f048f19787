#pragma once

#include "OndelCore/Export.h"
#include "OndelCore/Hashing.h"
#include "OndelCore/benchmark/BenchmarkPlan.h"
#include "OndelCore/benchmark/BenchmarkResult.h"
#include "OndelCore/benchmark/BenchmarkTest.h"

#include <array>
#include <optional>
#include <string_view>
#include <vector>

namespace OndelCore::benchmark {

/// What the evidence says about a figure or a run. The comment of each gives its numbers, in their order.
enum class RemarkCode {
    fromMemory,  ///< of a test: less than 90 % of it was seen at the disk. Share seen, 0 to 1
    flushFailed, ///< of a test, or of the run (preparation): errno
    cachedBelow, ///< the file system or what lies below it caches although asked not to
    speedFell,   ///< of a sequential test, for good: bytes/s before, bytes/s after, bytes moved before
    gotHot, ///< of a test: degrees C, seconds from its start, limit in degrees C, share that the rate fell by
    stalls, ///< of a test: pauses over a second, seconds of the longest
    otherTraffic,  ///< of a test: bytes that others moved on the same disks meanwhile
    slowLink,      ///< bits/s now, bits/s that the drive could do, kind (DriveLink::Kind)
    misaligned,    ///< bytes from the physical block's start, bytes of a physical block
    nearlyFull,    ///< share of the volume that was free, 0 to 1
    smallTest,     ///< bytes of the test, bytes of the memory or of a drive's usual cache that may hold it
    powerSaving,   ///< 1 on battery, 2 power-saving governor, 3 both
    notObservable, ///< no disk is to be seen (network, a program's file system)
    inMemory,      ///< the file system keeps its files in memory
    fileOnDisk,    ///< the volume is a file on another disk
    virtualDisk,   ///< the disk is one of a virtual machine
    compresses,    ///< the volume compresses
    copiesOnWrite, ///< the volume copies on write: 1 if it checksums data too, else 0
    journalsData,  ///< the volume writes data twice
    throughPortal, ///< the folder was handed over by the desktop's document portal, which serves it
};

/// How much a remark takes from what it is about. A figure with an invalid one is not the disk's.
enum class RemarkWeight { note, caution, invalid };

/// One thing that the evidence says about a test's figures or about the run.
struct Remark {
    RemarkCode code = RemarkCode::notObservable;
    RemarkWeight weight = RemarkWeight::note;
    std::optional<BenchmarkTest> test{}; ///< absent: about the whole run
    std::vector<double> numbers{};       ///< see RemarkCode

    bool operator==(const Remark&) const = default;
    std::size_t hash() const { return hashFields(code, weight, test, numbers); }
};

/// A code's stable name ("fromMemory"), for files, logs and scripts.
ONDEL_PUBLIC std::string_view rawValue(RemarkCode code);
/// A weight's stable name ("invalid").
ONDEL_PUBLIC std::string_view rawValue(RemarkWeight weight);
/// The code with exactly this name; absent for another.
ONDEL_PUBLIC std::optional<RemarkCode> remarkCode(std::string_view rawValue);
/// The weight with exactly this name; absent for another.
ONDEL_PUBLIC std::optional<RemarkWeight> remarkWeight(std::string_view rawValue);
/// How many numbers a remark of this code has.
ONDEL_PUBLIC std::size_t numbersOf(RemarkCode code);

/// The remarks that a run's evidence gives reason for: worst first; about the run before its tests, these in
/// their order. A remark needs proof in the evidence; where something is not known there is none.
ONDEL_PUBLIC std::vector<Remark> remarksOn(const BenchmarkPlan& plan, const BenchmarkResult& result);

} // namespace OndelCore::benchmark
