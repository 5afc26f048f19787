// The table that turns evidence into remarks. A row needs proof: what is not known gives no remark.

#include "OndelCore/SaturatingMath.h"
#include "OndelCore/benchmark/evidence/HeatSlowdown.h"
#include "OndelCore/benchmark/evidence/ObservedRun.h"
#include "OndelCore/benchmark/evidence/RateCurve.h"
#include "OndelCore/benchmark/evidence/Remark.h"
#include "OndelCore/platform/volumes/PortalFolder.h"

#include <algorithm>
#include <cmath>
#include <tuple>

namespace OndelCore::benchmark {

namespace {

using platform::FileSystemReach;
/// A remark's numbers; absent: no remark.
using Numbers = std::optional<std::vector<double>>;

constexpr std::int64_t mebibyte = 1048576;
constexpr std::int64_t usualCache = 256 * mebibyte; // that of hard disks

Numbers when(bool condition) { return condition ? Numbers(std::in_place) : std::nullopt; }

Numbers when(bool condition, std::vector<double> numbers) {
    return condition ? Numbers(std::move(numbers)) : std::nullopt;
}

double number(std::int64_t count) { return static_cast<double>(count); }

Numbers errorNumber(const std::optional<std::error_code>& error) {
    return error ? when(error->value() > 0, {number(error->value())}) : std::nullopt;
}

// Of a test.

Numbers fromMemory(const ObservedRun& run, const ObservedTransfer& test) {
    const auto share = run.shareAtDisk(test);
    return share ? when(run.isFromMemory(test), {*share}) : std::nullopt;
}

Numbers flushFailed(const ObservedRun&, const ObservedTransfer& test) { return errorNumber(test.flushError); }

Numbers speedFell(const ObservedRun&, const ObservedTransfer& test) {
    const auto fall = speedFall(RateCurve(test.samples));
    return fall ? when(true, {fall->before, fall->after, fall->bytesBefore}) : std::nullopt;
}

Numbers gotHot(const ObservedRun& run, const ObservedTransfer& test) {
    const auto heat = heatSlowdown(run.circumstances, test.evidence, RateCurve(test.samples));
    return heat ? when(true, {heat->celsius, heat->elapsed, heat->limit, heat->fall}) : std::nullopt;
}

/// Where a single transfer takes long, a second is no pause: large blocks on slow media.
Numbers stalls(const ObservedRun&, const ObservedTransfer& test) {
    constexpr double longestUsual = 0.25; // seconds for one transfer
    const TestEvidence& evidence = test.evidence;
    const std::int64_t others = test.transfers() - 1;
    const double usual =
        (test.loopSeconds - evidence.longestPause) / number(std::max<std::int64_t>(others, 1));
    return when(evidence.longPauses > 0 && evidence.longestPause > 1 && others > 0 && usual <= longestUsual,
                {number(evidence.longPauses), evidence.longestPause});
}

/// Only where all that a test causes is accounted to it: one disk, a file system that writes data once and
/// where it was, no cache above and no program between.
bool accountsForAll(const ObservedRun& run, const ObservedTransfer& test) {
    const platform::Circumstances& volume = run.circumstances;
    return volume.disks == 1 && run.reaches(FileSystemReach::device) && !volume.isServedByProgram &&
           !volume.isFileOnDisk && !volume.copiesOnWrite && !volume.compresses && !volume.journalsData &&
           volume.allowsDirectIo.value_or(true) && run.plan.bypassCache && !test.evidence.isBypassRefused &&
           !run.isWitnessBlind;
}

Numbers otherTraffic(const ObservedRun& run, const ObservedTransfer& test) {
    const auto disk = test.diskBytes(true);
    const auto diskBack = test.diskBytes(false);
    const auto thread = test.threadBytes(true);
    const auto threadBack = test.threadBytes(false);
    if (!accountsForAll(run, test) || !disk || !diskBack || !thread || !threadBack)
        return std::nullopt;
    const std::int64_t others =
        saturatingAdd(std::max<std::int64_t>(*disk - std::max(*thread, test.moved), 0),
                      std::max<std::int64_t>(*diskBack - *threadBack, 0));
    return when(others >= 64 * mebibyte && others >= test.moved / 10, {number(others)});
}

// Of the run.

Numbers preparationFlushFailed(const ObservedRun& run) {
    return errorNumber(run.result.preparationFlushError);
}

bool refusesTransfers(const ObservedTransfer& test) {
    const std::int64_t transfers = test.transfers();
    return transfers >= 10 && test.evidence.refusedTransfers >= transfers - transfers / 10;
}

/// What was read did not come from the disk although the cache was to be bypassed. A file system that
/// compresses reads less than it delivers.
bool readsFromMemory(const ObservedRun& run, const ObservedTransfer& test) {
    return !test.writes && run.isFromMemory(test) && !run.circumstances.compresses;
}

Numbers cachedBelow(const ObservedRun& run) {
    const auto anyTest = [&](auto condition) { return std::ranges::any_of(run.transfers, condition); };
    return when(run.plan.bypassCache && !run.transfers.empty() && !run.reaches(FileSystemReach::memory) &&
                (!run.circumstances.allowsDirectIo.value_or(true) || run.circumstances.isCachedFileOnDisk ||
                 anyTest([](const auto& test) { return test.evidence.isBypassRefused; }) ||
                 anyTest(refusesTransfers) ||
                 anyTest([&](const auto& test) { return readsFromMemory(run, test); })));
}

/// Whether a sequential test came near to what the link carries: a byte needs 8 to 10 bits.
bool isNearLimit(const ObservedRun& run, const platform::DriveLink& link) {
    return std::ranges::any_of(run.transfers, [&](const ObservedTransfer& test) {
        const RateCurve curve(test.samples);
        return curve.size() > 0 && !run.isFromMemory(test) &&
               curve.rate(0, curve.size()) * 10 >= 0.6 * link.now;
    });
}

Numbers slowLink(const ObservedRun& run, bool limits) {
    const auto& link = run.circumstances.link;
    return link ? when(link->now > 0 && link->now < 0.9 * link->best && isNearLimit(run, *link) == limits,
                       {link->now, link->best, number(static_cast<std::int64_t>(link->kind))})
                : std::nullopt;
}
Numbers limitingLink(const ObservedRun& run) { return slowLink(run, true); }
Numbers otherSlowLink(const ObservedRun& run) { return slowLink(run, false); }

Numbers misaligned(const ObservedRun& run) {
    const auto& found = run.circumstances.misalignment;
    return found ? when(found->offset > 0 && found->offset < found->physicalBlock,
                        {number(found->offset), number(found->physicalBlock)})
                 : std::nullopt;
}

Numbers freeWithin(const ObservedRun& run, double from, double to) {
    const auto& capacity = run.circumstances.capacityBytes;
    const auto& free = run.circumstances.freeBytes;
    if (!capacity || !free || !run.reaches(FileSystemReach::device) || *free >= *capacity)
        return std::nullopt;
    const double share = number(*free) / number(*capacity);
    return when(share >= from && share < to, {share});
}
Numbers nearlyFull(const ObservedRun& run) { return freeWithin(run, 0.05, 0.1); }
Numbers almostFull(const ObservedRun& run) { return freeWithin(run, 0, 0.05); }

/// Through the cache, which holds all of the file. Where the disk was seen to deliver all the same it does
/// not matter.
Numbers fitsMemory(const ObservedRun& run) {
    const auto size = run.fileSize();
    const auto& memory = run.circumstances.memoryBytes;
    const auto cameFromDisk = [&](const ObservedTransfer& test) {
        return run.shareAtDisk(test) && !run.isFromMemory(test);
    };
    return size && memory
               ? when(!run.plan.bypassCache && *size < *memory && !run.reaches(FileSystemReach::memory) &&
                          !std::ranges::all_of(run.transfers, cameFromDisk),
                      {number(*size), number(*memory)})
               : std::nullopt;
}

Numbers fitsDriveCache(const ObservedRun& run) {
    const auto size = run.fileSize();
    return size ? when(run.plan.bypassCache && *size < usualCache && run.seesDisks(),
                       {number(*size), number(usualCache)})
                : std::nullopt;
}

Numbers powerSaving(const ObservedRun& run) {
    const int kind =
        (run.circumstances.isOnBattery ? 1 : 0) + (run.circumstances.hasPowerSaveGovernor ? 2 : 0);
    return when(kind > 0, {number(kind)});
}

Numbers throughPortal(const ObservedRun& run) {
    return when(run.circumstances.fileSystemType == platform::portalFileSystem);
}

/// Through a portal it goes without saying.
Numbers notObservable(const ObservedRun& run) {
    const bool hasNoDisk = run.hasCircumstances() && run.circumstances.disks == 0 && !run.seesDisks();
    return when(!run.transfers.empty() && !run.reaches(FileSystemReach::memory) && !throughPortal(run) &&
                (hasNoDisk || run.isWitnessBlind));
}

Numbers inMemory(const ObservedRun& run) { return when(run.reaches(FileSystemReach::memory)); }
Numbers fileOnDisk(const ObservedRun& run) { return when(run.circumstances.isFileOnDisk); }
Numbers virtualDisk(const ObservedRun& run) { return when(run.circumstances.isVirtualDisk); }
Numbers compresses(const ObservedRun& run) { return when(run.circumstances.compresses); }
Numbers copiesOnWrite(const ObservedRun& run) {
    return when(run.circumstances.copiesOnWrite, {run.circumstances.checksumsData ? 1.0 : 0.0});
}
Numbers journalsData(const ObservedRun& run) { return when(run.circumstances.journalsData); }

struct TestRule {
    RemarkCode code;
    RemarkWeight weight;
    Numbers (*numbers)(const ObservedRun&, const ObservedTransfer&);
};

constexpr std::array testRules{
    TestRule{RemarkCode::fromMemory, RemarkWeight::invalid, fromMemory},
    TestRule{RemarkCode::flushFailed, RemarkWeight::invalid, flushFailed},
    TestRule{RemarkCode::speedFell, RemarkWeight::caution, speedFell},
    TestRule{RemarkCode::gotHot, RemarkWeight::caution, gotHot},
    TestRule{RemarkCode::stalls, RemarkWeight::caution, stalls},
    TestRule{RemarkCode::otherTraffic, RemarkWeight::caution, otherTraffic},
};

struct RunRule {
    RemarkCode code;
    RemarkWeight weight;
    Numbers (*numbers)(const ObservedRun&);
};

constexpr std::array runRules{
    RunRule{RemarkCode::flushFailed, RemarkWeight::invalid, preparationFlushFailed},
    RunRule{RemarkCode::cachedBelow, RemarkWeight::caution, cachedBelow},
    RunRule{RemarkCode::slowLink, RemarkWeight::caution, limitingLink},
    RunRule{RemarkCode::slowLink, RemarkWeight::note, otherSlowLink},
    RunRule{RemarkCode::misaligned, RemarkWeight::caution, misaligned},
    RunRule{RemarkCode::nearlyFull, RemarkWeight::caution, almostFull},
    RunRule{RemarkCode::nearlyFull, RemarkWeight::note, nearlyFull},
    RunRule{RemarkCode::throughPortal, RemarkWeight::caution, throughPortal},
    RunRule{RemarkCode::smallTest, RemarkWeight::caution, fitsMemory},
    RunRule{RemarkCode::smallTest, RemarkWeight::note, fitsDriveCache},
    RunRule{RemarkCode::powerSaving, RemarkWeight::note, powerSaving},
    RunRule{RemarkCode::notObservable, RemarkWeight::note, notObservable},
    RunRule{RemarkCode::inMemory, RemarkWeight::note, inMemory},
    RunRule{RemarkCode::fileOnDisk, RemarkWeight::note, fileOnDisk},
    RunRule{RemarkCode::virtualDisk, RemarkWeight::note, virtualDisk},
    RunRule{RemarkCode::compresses, RemarkWeight::note, compresses},
    RunRule{RemarkCode::copiesOnWrite, RemarkWeight::note, copiesOnWrite},
    RunRule{RemarkCode::journalsData, RemarkWeight::note, journalsData},
};

/// The worst first; about the run before its tests, in their order.
bool stands(const Remark& a, const Remark& b) {
    return std::tuple(b.weight, a.test, a.code) < std::tuple(a.weight, b.test, b.code);
}

} // namespace

std::vector<Remark> remarksOn(const BenchmarkPlan& plan, const BenchmarkResult& result) {
    const ObservedRun run(plan, result);
    std::vector<Remark> remarks;
    const auto add = [&](RemarkCode code, RemarkWeight weight, std::optional<BenchmarkTest> test,
                         Numbers numbers) {
        const auto isSensible = [](double value) { return std::isfinite(value) && value >= 0; };
        if (numbers && std::ranges::all_of(*numbers, isSensible))
            remarks.push_back({code, weight, test, std::move(*numbers)});
    };
    for (const RunRule& rule : runRules)
        add(rule.code, rule.weight, std::nullopt, rule.numbers(run));
    for (const TestRule& rule : testRules)
        for (const ObservedTransfer& test : run.transfers)
            add(rule.code, rule.weight, test.test, rule.numbers(run, test));
    std::ranges::stable_sort(remarks, stands);
    return remarks;
}

} // namespace OndelCore::benchmark
