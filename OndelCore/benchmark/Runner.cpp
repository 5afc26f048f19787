#include "OndelCore/benchmark/Runner.h"

#include "OndelCore/SaturatingMath.h"
#include "OndelCore/benchmark/FileOpsTest.h"
#include "OndelCore/benchmark/RandomTests.h"
#include "OndelCore/benchmark/SequentialTests.h"
#include "OndelCore/benchmark/TestRun.h"
#include "OndelCore/benchmark/WorkingFolder.h"
#include "OndelCore/platform/storage/FileDescriptor.h"
#include "OndelCore/platform/volumes/PathFacts.h"
#include "OndelCore/volumes/VolumeAccess.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdint>
#include <future>
#include <memory>
#include <new>
#include <optional>
#include <stdexcept>
#include <system_error>
#include <thread>

namespace OndelCore::benchmark {

namespace {

bool needsDataFile(const std::set<BenchmarkTest>& tests) {
    return std::ranges::any_of(tests, [](BenchmarkTest test) { return test != BenchmarkTest::fileOps; });
}

/// How long the data file is to become. Fails: throws BenchmarkError::InsufficientSpace.
std::int64_t checkedTarget(const BenchmarkSize& size, std::int64_t free) {
    constexpr std::int64_t margin = 1073741824; // kept free beside a file of fixed size, whatever the plan
    if (const auto* fixed = size.asFixed()) {
        const std::int64_t needed = saturatingAdd(fixed->bytes, margin);
        if (free < needed)
            throw BenchmarkError(BenchmarkError::InsufficientSpace{needed, free});
        return fixed->bytes;
    }
    const std::int64_t leaveFree = size.asFillDisk()->leaveFree;
    const std::int64_t target = saturatingSubtract(free, leaveFree);
    if (target <= 0) // here `needed` is the reserve alone: what the test would write is not known in advance
        throw BenchmarkError(BenchmarkError::InsufficientSpace{leaveFree, free});
    return target;
}

/// Runs `work` on a thread of its own, which can confine itself for good, and waits for it. `work` hears
/// whether it got one: a machine without another thread measures all the same.
template <class Work>
BenchmarkResult onThreadOfItsOwn(const Work& work) {
    std::packaged_task<BenchmarkResult(bool)> task(work);
    auto result = task.get_future();
    std::thread thread;
    try {
        thread = std::thread([&task] { task(true); });
    } catch (const std::system_error&) {
        task(false);
    }
    if (thread.joinable())
        thread.join();
    return result.get();
}

/// Returns as soon as the volume of `folder` answers: this thread could not be ended inside of a request that
/// nobody answers. Fails: throws Cancelled.
void awaitAnswer(const std::filesystem::path& folder, const CancelFlag& flag) {
    constexpr std::chrono::hours untilCancelled(24);
    const platform::Waiting waiting{.patience = untilCancelled,
                                    .isCancelled = [&flag] { return flag.isCancelled(); }};
    if (!platform::pathFacts(folder, platform::PathQuestion::place, waiting))
        throw Cancelled();
}

double secondsBetween(std::int64_t from, std::int64_t to) { return static_cast<double>(to - from) * 1e-9; }

std::optional<std::int64_t> difference(const std::optional<std::int64_t>& before,
                                       const std::optional<std::int64_t>& after) {
    return before && after && *after >= *before ? std::optional(*after - *before) : std::nullopt;
}

using Counters = std::optional<platform::DiskCounters>;

std::optional<Traffic> readBetween(const Counters& before, const Counters& after) {
    return before && after
               ? std::optional(Traffic{after->readBytes - before->readBytes, after->reads - before->reads})
               : std::nullopt;
}

std::optional<Traffic> writtenBetween(const Counters& before, const Counters& after) {
    return before && after ? std::optional(Traffic{after->writtenBytes - before->writtenBytes,
                                                   after->writes - before->writes})
                           : std::nullopt;
}

/// Looks from outside at what the tests of one run do.
class RunWitness {
public:
    RunWitness(const EngineEnvironment& system, int volume)
        : m_system(system)
        , m_disks(system.diskWitness(volume))
        , m_volume(system.volumeWitness(volume))
        , m_start(system.evidenceClock()) {}

    /// Makes a test's result, with the evidence of what happened meanwhile.
    template <class Test>
    auto observed(Test test) {
        const View before = look();
        auto result = test();
        const View after = look();
        TestEvidence& evidence = result.evidence;
        evidence.began = secondsBetween(m_start, before.time);
        evidence.ended = secondsBetween(m_start, after.time);
        evidence.diskReads = readBetween(before.disks, after.disks);
        evidence.diskWrites = writtenBetween(before.disks, after.disks);
        evidence.volumeReads = readBetween(before.volume, after.volume);
        evidence.volumeWrites = writtenBetween(before.volume, after.volume);
        if (before.thread && after.thread) {
            evidence.threadReads = difference(before.thread->readBytes, after.thread->readBytes);
            evidence.threadWrites = difference(before.thread->writtenBytes, after.thread->writtenBytes);
        }
        return result;
    }

private:
    struct View {
        std::int64_t time;
        std::optional<platform::DiskCounters> disks;
        std::optional<platform::DiskCounters> volume;
        std::optional<platform::ThreadTraffic> thread;
    };
    View look() {
        return {m_system.evidenceClock(), m_disks ? m_disks->counters() : std::nullopt,
                m_volume ? m_volume->counters() : std::nullopt, m_system.trafficOfThisThread()};
    }

    const EngineEnvironment& m_system;
    std::unique_ptr<platform::DiskWitness> m_disks;
    std::unique_ptr<platform::DiskWitness> m_volume;
    std::int64_t m_start;
};

/// The tests of the plan that need the data file, in their order. `volume`: the target folder, open.
BenchmarkResult transferTests(const TestRun& run, RunWitness& witness, int volume) {
    const auto asksFor = [&run](BenchmarkTest test) { return run.plan.tests.contains(test); };
    BenchmarkResult result;
    const std::int64_t target = checkedTarget(run.plan.size, run.freeBytes(volume));
    if (asksFor(BenchmarkTest::sequentialWrite))
        result.sequentialWrite = witness.observed([&] { return sequentialWrite(run, target, volume); });
    else
        result.preparationFlushError = prepareDataFile(run, target);
    if (asksFor(BenchmarkTest::sequentialRead)) {
        run.throwIfCancelled();
        result.sequentialRead = witness.observed([&] { return sequentialRead(run); });
    }
    if (asksFor(BenchmarkTest::randomRead)) {
        run.throwIfCancelled();
        result.randomRead = witness.observed([&] { return randomRead(run); });
    }
    if (asksFor(BenchmarkTest::randomWrite)) {
        run.throwIfCancelled();
        result.randomWrite = witness.observed([&] { return randomWrite(run); });
    }
    return result;
}

/// Only the transfers are confined to the working folder: they open the data file again and again. Whatever
/// the others create is new or refused, and the confinement would cost each of their files a tenth of its
/// time.
BenchmarkResult runInWorkingFolder(const TestRun& run, int working, int volume) {
    BenchmarkResult result;
    RunWitness witness(run.system, volume);
    if (needsDataFile(run.plan.tests))
        result = onThreadOfItsOwn([&](bool isOwnThread) {
            if (isOwnThread)
                run.system.confineWrites(working);
            return transferTests(run, witness, volume);
        });
    if (run.plan.tests.contains(BenchmarkTest::fileOps)) {
        run.throwIfCancelled();
        result.fileOps = witness.observed([&] { return fileOps(run, working, run.plan.fileOpCount); });
    }
    if (!run.plan.tests.empty()) // a plan without any makes no files
        result.tried = run.system.tryAbilities(working);
    return result;
}

} // namespace

BenchmarkResult runInFolder(const EngineEnvironment& system, const BenchmarkPlan& plan,
                            const std::filesystem::path& folder, const CancelFlag& flag,
                            const ProgressListener& progress) {
    awaitAnswer(folder, flag);
    const platform::FileDescriptor parent = platform::openFolder(folder);
    const auto owner = parent ? volumes::VolumeAccess::ownerOfNewFiles(parent.get()) : std::nullopt;
    if (!owner)
        throw BenchmarkError(BenchmarkError::NotWritable{});
    const WorkingFolder working(parent.get(), *owner);
    try {
        DataFilePlace dataFile(working.descriptor());
        const auto watch = plan.tests.empty() ? nullptr : system.watchCircumstances(parent.get());
        const ProgressListener withTemperature = [&](BenchmarkProgress now) {
            now.celsius = watch->celsius();
            progress(now);
        };
        const TestRun run{system, plan, dataFile, flag, watch ? withTemperature : progress};
        BenchmarkResult result = runInWorkingFolder(run, working.descriptor(), parent.get());
        if (watch)
            result.circumstances = watch->finish();
        return result;
    } catch (const std::bad_alloc&) { // a block, or a list of files, larger than the memory
        throw ioError("memory: ", ENOMEM);
    } catch (const std::length_error&) {
        throw ioError("memory: ", ENOMEM);
    }
}

} // namespace OndelCore::benchmark
