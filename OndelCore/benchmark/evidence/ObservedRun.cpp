#include "OndelCore/benchmark/evidence/ObservedRun.h"

#include "OndelCore/SaturatingMath.h"

#include <algorithm>

namespace OndelCore::benchmark {

namespace {

/// A thread's share below this is no count of its transfers: a program that serves the file system makes
/// them, and the thread has read a page of a library.
constexpr double leastThreadShare = 0.1;
constexpr double leastShareAtDisk = 0.9;

const platform::Circumstances nothingKnown{};
const std::vector<ThroughputSample> noSamples{};
const std::optional<std::error_code> noError{};

std::optional<std::int64_t> sensible(const std::optional<std::int64_t>& bytes) {
    return bytes && *bytes >= 0 ? bytes : std::nullopt;
}

std::vector<ObservedTransfer> transfersOf(const BenchmarkResult& result) {
    std::vector<ObservedTransfer> transfers;
    const auto addSequential = [&](BenchmarkTest test, bool writes,
                                   const std::optional<ThroughputResult>& part) {
        if (part)
            transfers.push_back(
                {test, writes, std::max<std::int64_t>(part->bytesProcessed, 0), part->blockSize,
                 part->samples.empty() ? part->duration - part->evidence.flushDuration.value_or(0)
                                       : part->samples.back().elapsed,
                 part->samples, part->flushError, part->evidence});
    };
    const auto addRandom = [&](BenchmarkTest test, bool writes, const std::optional<IOPSResult>& part) {
        if (part)
            transfers.push_back({test, writes,
                                 saturatingMultiply(std::max<std::int64_t>(part->operations, 0),
                                                    std::max<std::int64_t>(part->blockSize, 0)),
                                 part->blockSize, part->duration - part->evidence.flushDuration.value_or(0),
                                 noSamples, part->flushError, part->evidence});
    };
    addSequential(BenchmarkTest::sequentialWrite, true, result.sequentialWrite);
    addSequential(BenchmarkTest::sequentialRead, false, result.sequentialRead);
    addRandom(BenchmarkTest::randomRead, false, result.randomRead);
    addRandom(BenchmarkTest::randomWrite, true, result.randomWrite);
    return transfers;
}

bool accountsForItsTransfers(const ObservedTransfer& test) {
    return static_cast<double>(test.threadBytes(true).value_or(0)) >=
           leastThreadShare * static_cast<double>(test.moved);
}

/// Nothing was counted, neither way, in any test, although data went to a disk: a write with its flush, or
/// transfers that the system accounts to the thread. The thread's count does not tell for a loop device,
/// which the transfers may not leave.
bool isBlind(const std::vector<ObservedTransfer>& transfers, bool hasLoopDevice) {
    bool hasReason = false;
    for (const ObservedTransfer& test : transfers) {
        if (test.diskBytes(true).value_or(1) > 0 || test.diskBytes(false).value_or(1) > 0)
            return false;
        hasReason |= test.moved > 0 && (test.writes || (!hasLoopDevice && accountsForItsTransfers(test)));
    }
    return hasReason;
}

} // namespace

std::int64_t ObservedTransfer::transfers() const {
    return blockSize > 0 ? moved / blockSize + (moved % blockSize > 0 ? 1 : 0) : 0;
}

std::optional<std::int64_t> ObservedTransfer::diskBytes(bool own) const {
    const auto& traffic = own == writes ? evidence.diskWrites : evidence.diskReads;
    return traffic ? sensible(traffic->bytes) : std::nullopt;
}

std::optional<std::int64_t> ObservedTransfer::threadBytes(bool own) const {
    return sensible(own == writes ? evidence.threadWrites : evidence.threadReads);
}

std::optional<std::int64_t> ObservedTransfer::volumeBytes() const {
    const auto& traffic = writes ? evidence.volumeWrites : evidence.volumeReads;
    return traffic ? sensible(traffic->bytes) : std::nullopt;
}

ObservedRun::ObservedRun(const BenchmarkPlan& plan, const BenchmarkResult& result)
    : plan(plan)
    , result(result)
    , circumstances(result.circumstances ? *result.circumstances : nothingKnown)
    , transfers(transfersOf(result))
    , isWitnessBlind(isBlind(transfers, circumstances.isFileOnDisk))
    , isVolumeBlind(std::ranges::none_of(
          transfers, [](const ObservedTransfer& test) { return test.volumeBytes().value_or(0) > 0; })) {}

bool ObservedRun::seesDisks() const {
    return !isWitnessBlind &&
           std::ranges::any_of(transfers, [](const auto& test) { return test.diskBytes(true).has_value(); });
}

std::optional<double> ObservedRun::shareAtDisk(const ObservedTransfer& test) const {
    const auto atDisk = test.diskBytes(true);
    if (!atDisk || test.moved <= 0 || isWitnessBlind || reaches(platform::FileSystemReach::memory))
        return std::nullopt;
    std::int64_t seen = *atDisk;
    if (!circumstances.isServedByProgram && accountsForItsTransfers(test))
        seen = std::min(seen, *test.threadBytes(true)); // the rest was others'
    if (!isVolumeBlind)
        seen = std::min(seen, test.volumeBytes().value_or(seen)); // the rest was of other volumes
    return std::min(static_cast<double>(seen) / static_cast<double>(test.moved), 1.0);
}

bool ObservedRun::isFromMemory(const ObservedTransfer& test) const {
    return shareAtDisk(test).value_or(1) < leastShareAtDisk;
}

std::optional<std::int64_t> ObservedRun::fileSize() const {
    for (const auto* part : {&result.sequentialWrite, &result.sequentialRead})
        if (*part && (*part)->bytesProcessed > 0)
            return (*part)->bytesProcessed;
    const auto* fixed = plan.size.asFixed();
    return fixed != nullptr && fixed->bytes > 0 && !transfers.empty() ? std::optional(fixed->bytes)
                                                                      : std::nullopt;
}

} // namespace OndelCore::benchmark
