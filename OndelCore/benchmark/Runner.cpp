#include "OndelCore/benchmark/Runner.h"

#include "OndelCore/SaturatingMath.h"
#include "OndelCore/benchmark/FileOpsTest.h"
#include "OndelCore/benchmark/RandomTests.h"
#include "OndelCore/benchmark/RunPlace.h"
#include "OndelCore/benchmark/SequentialTests.h"
#include "OndelCore/benchmark/TestRun.h"
#include "OndelCore/benchmark/evidence/RunWitness.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <new>
#include <optional>
#include <stdexcept>

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
    const RunPlace place(folder, [&flag] { return flag.isCancelled(); });
    const int parent = place.target();
    const int working = place.workingFolder();
    try {
        DataFilePlace dataFile(working);
        const auto watch = plan.tests.empty() ? nullptr : system.watchCircumstances(parent);
        const ProgressListener withTemperature = [&](BenchmarkProgress now) {
            now.celsius = watch->celsius();
            progress(now);
        };
        const TestRun run{system, plan, dataFile, flag, watch ? withTemperature : progress};
        BenchmarkResult result = runInWorkingFolder(run, working, parent);
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
