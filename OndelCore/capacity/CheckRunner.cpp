#include "OndelCore/capacity/CheckRunner.h"

#include "OndelCore/SaturatingMath.h"
#include "OndelCore/benchmark/IoError.h"
#include "OndelCore/benchmark/RunPlace.h"
#include "OndelCore/benchmark/evidence/RunWitness.h"
#include "OndelCore/capacity/CheckRun.h"
#include "OndelCore/capacity/Passes.h"
#include "OndelCore/capacity/RealSize.h"
#include "OndelCore/capacity/Sampling.h"
#include "OndelCore/platform/process/Signals.h"
#include "OndelCore/platform/storage/Storage.h"

#include <fcntl.h>

#include <algorithm>
#include <cerrno>
#include <condition_variable>
#include <mutex>
#include <new>
#include <utility>

namespace OndelCore::capacity {

namespace {

using benchmark::BenchmarkError;

/// What stays free. Once all space is reserved, Btrfs searches for more before each write into it.
std::int64_t reserveOf(const CapacityPlan& plan, std::int64_t free) {
    constexpr std::int64_t ample = 67108864;
    const std::int64_t least = plan.isQuick && !plan.size ? std::min(ample, free / 64) : 0;
    return std::max(least, plan.leaveFree);
}

/// How long the range becomes. Fails: throws BenchmarkError::InsufficientSpace.
std::int64_t plannedBytes(const CapacityPlan& plan, std::int64_t free) {
    const std::int64_t reserve = reserveOf(plan, free);
    const std::int64_t available = std::max<std::int64_t>(0, free - reserve) / blockBytes * blockBytes;
    const std::int64_t wanted =
        plan.size
            ? saturatingAdd(std::max<std::int64_t>(1, *plan.size), blockBytes - 1) / blockBytes * blockBytes
            : std::max(available, blockBytes);
    if (wanted > available)
        throw BenchmarkError(BenchmarkError::InsufficientSpace{saturatingAdd(wanted, reserve), free});
    return wanted;
}

std::optional<double> shareAtDisk(std::int64_t bytes, const std::optional<benchmark::Traffic>& volume,
                                  const std::optional<benchmark::Traffic>& disks) {
    const auto& seen = volume ? volume : disks;
    if (!seen || bytes == 0)
        return std::nullopt;
    return std::min(1.0, static_cast<double>(seen->bytes) / static_cast<double>(bytes));
}

/// Where the files lie on the volume. The number of stretches is bounded; what is beyond has no place.
std::vector<PlacedStretch> placesOf(const CheckRun& run) {
    constexpr std::size_t most = 100000;
    std::vector<PlacedStretch> places;
    for (const Piece& piece : run.files.pieces()) {
        const auto file = run.files.open(piece, O_RDONLY);
        if (!file || places.size() >= most)
            break;
        for (const auto& extent : run.system.fileExtents(file->descriptor(), most - places.size()))
            if (extent.offset < piece.length)
                places.push_back({piece.offset + extent.offset, extent.place,
                                  std::min(extent.length, piece.length - extent.offset)});
    }
    return places;
}

/// Fails: throws Cancelled.
void wait(const CheckRun& run, std::chrono::seconds pause) {
    std::mutex lock;
    std::condition_variable_any never;
    std::unique_lock guard(lock);
    for (std::chrono::seconds waited{0}; waited < pause; ++waited) {
        run.progress({.phase = CapacityPhase::waiting,
                      .done = waited.count(),
                      .total = pause.count(),
                      .offset = run.bytes,
                      .elapsed = static_cast<double>(waited.count()),
                      .cells = run.findings.map.snapshot()});
        never.wait_for(guard, run.stop, std::chrono::seconds(1), [] { return false; });
        run.throwIfStopped();
    }
}

class Check {
public:
    Check(const CheckRun& run, benchmark::RunWitness& witness)
        : m_run(run)
        , m_witness(witness) {}

    CapacityResult result();

private:
    void writeAll();
    CapacityPass readOnce(CapacityPhase phase, DefectList& defects, const DefectList* known = nullptr);
    void acceptWhatTheFileSystemNeeds();

    const CheckRun& m_run;
    benchmark::RunWitness& m_witness;
    CapacityResult m_result;
};

void Check::writeAll() {
    std::vector<Stretch> stretches{{0, m_run.bytes}};
    Samples samples;
    if (m_run.plan.isQuick) {
        samples = prepareSamples(m_run);
        stretches = std::move(samples.stretches);
        m_result.quick = samples.sampling;
        m_result.earlyEnd = samples.end;
    }
    const auto phase = m_run.plan.isQuick ? CapacityPhase::sampling : CapacityPhase::writing;
    int error = 0;
    m_result.write = m_witness.observed([&] {
        WriteOutcome outcome =
            writeStretches(m_run, phase, stretches, !m_run.plan.isQuick && !m_run.plan.size);
        if (outcome.end)
            m_result.earlyEnd = outcome.end;
        error = outcome.error;
        return std::move(outcome.pass);
    });
    const auto& evidence = m_result.write.evidence;
    m_result.write.shareAtDisk =
        shareAtDisk(m_result.write.bytes, evidence.volumeWrites, evidence.diskWrites);
    m_result.written = m_run.findings.bytesWritten();
    if (m_result.written == 0)
        throw benchmark::ioError("write: ", error != 0 ? error : EIO);
}

/// Files need some room beside their content, which no file system tells in advance.
void Check::acceptWhatTheFileSystemNeeds() {
    constexpr std::int64_t mebibyte = 1048576;
    const bool isFilling = !m_run.plan.size && !m_run.plan.isQuick;
    const std::int64_t missing =
        m_result.planned - m_result.written - m_run.findings.writing.bytesOf(DefectKind::writeFailed);
    if (isFilling && m_result.earlyEnd == EarlyEnd::full && missing <= m_result.planned / 50 + mebibyte) {
        m_result.planned -= missing;
        m_result.earlyEnd.reset();
    }
}

CapacityPass Check::readOnce(CapacityPhase phase, DefectList& defects, const DefectList* known) {
    CapacityPass pass = m_witness.observed([&] { return readWritten(m_run, phase, defects, known); });
    pass.shareAtDisk = shareAtDisk(pass.bytes, pass.evidence.volumeReads, pass.evidence.diskReads);
    return pass;
}

CapacityResult Check::result() {
    Findings& findings = m_run.findings;
    m_result.planned = m_run.bytes;
    writeAll();
    acceptWhatTheFileSystemNeeds();
    m_result.read = readOnce(CapacityPhase::reading, findings.reading);
    if (m_run.plan.again) {
        wait(m_run, *m_run.plan.again);
        m_result.readAgain = readOnce(CapacityPhase::readingAgain, findings.again, &findings.reading);
    }
    enterDefects(m_result, findings.writing, findings.reading, findings.again);
    m_result.cells = *findings.map.snapshot();
    return std::move(m_result);
}

CapacityResult checkInFolder(const CheckEnvironment& system, const CapacityPlan& plan,
                             const std::stop_token& stop, const CapacityListener& progress,
                             const benchmark::RunPlace& place) {
    const auto free = system.freeBytes(place.target());
    const std::int64_t bytes = plannedBytes(plan, free.value_or(0));
    const BlockPattern pattern;
    StandstillClock clock(system.monotonicNanoseconds);
    RangeFiles files(system, place.workingFolder());
    Findings findings(bytes);
    const CheckRun run{system, plan,    stop,  progress, place.target(), place.workingFolder(),
                       bytes,  pattern, clock, files,    findings};
    benchmark::RunWitness witness(system, place.target());
    const double start = clock.seconds();
    CapacityResult result = Check(run, witness).result();
    result.duration = clock.seconds() - start;
    result.volumeFree = free;
    if (result.hasDefects()) {
        const std::int64_t total = platform::totalBytes(place.target()).value_or(0);
        result.realSize =
            concludedRealSize({.findings = findings,
                               .places = placesOf(run),
                               .usedBefore = std::max<std::int64_t>(0, total - free.value_or(total)),
                               .isQuick = plan.isQuick});
    }
    return result;
}

} // namespace

CapacityResult runCheck(const CheckEnvironment& system, const CapacityPlan& plan, const std::stop_token& stop,
                        const CapacityListener& progress) {
    const benchmark::RunPlace place(plan.folder, [&stop] { return stop.stop_requested(); });
    const auto watch = system.watchCircumstances(place.target());
    try {
        CapacityResult result = benchmark::onThreadOfItsOwn([&](bool isOwnThread) {
            if (isOwnThread) {
                platform::keepSignalsOffThisThread();
                system.confineWrites(place.workingFolder());
            }
            return checkInFolder(system, plan, stop, progress, place);
        });
        if (watch)
            result.circumstances = watch->finish();
        result.volumeTotal = platform::totalBytes(place.target());
        return result;
    } catch (const std::bad_alloc&) {
        throw benchmark::ioError("memory: ", ENOMEM);
    }
}

} // namespace OndelCore::capacity
