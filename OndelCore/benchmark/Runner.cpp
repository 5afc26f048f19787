#include "OndelCore/benchmark/Runner.h"

#include "OndelCore/benchmark/FileOpsTest.h"
#include "OndelCore/benchmark/RandomTests.h"
#include "OndelCore/benchmark/SaturatingMath.h"
#include "OndelCore/benchmark/SequentialTests.h"
#include "OndelCore/benchmark/TestRun.h"
#include "OndelCore/benchmark/WorkingFolder.h"
#include "OndelCore/volumes/VolumeAccess.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <new>
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

} // namespace

BenchmarkResult execute(const EngineEnvironment& system, const BenchmarkPlan& plan, const RunPaths& paths,
                        const CancelFlag& flag, const ProgressListener& progress) {
    const TestRun run{system, plan, paths.dataFile, flag, progress};
    const auto asksFor = [&plan](BenchmarkTest test) { return plan.tests.contains(test); };
    BenchmarkResult result;

    if (needsDataFile(plan.tests)) {
        const std::int64_t target = checkedTarget(plan.size, run.freeBytes(paths.volumePath));
        if (asksFor(BenchmarkTest::sequentialWrite))
            result.sequentialWrite = sequentialWrite(run, target, paths.volumePath);
        else
            prepareDataFile(run, target);
    }
    if (asksFor(BenchmarkTest::sequentialRead)) {
        run.throwIfCancelled();
        result.sequentialRead = sequentialRead(run);
    }
    if (asksFor(BenchmarkTest::randomRead)) {
        run.throwIfCancelled();
        result.randomRead = randomRead(run);
    }
    if (asksFor(BenchmarkTest::randomWrite)) {
        run.throwIfCancelled();
        result.randomWrite = randomWrite(run);
    }
    if (asksFor(BenchmarkTest::fileOps)) {
        run.throwIfCancelled();
        result.fileOps = fileOps(run, paths.fopsDir, plan.fileOpCount);
    }
    return result;
}

BenchmarkResult runInFolder(const EngineEnvironment& system, const BenchmarkPlan& plan,
                            const std::filesystem::path& folder, const CancelFlag& flag,
                            const ProgressListener& progress) {
    if (!volumes::VolumeAccess::isWritable(folder))
        throw BenchmarkError(BenchmarkError::NotWritable{});
    const WorkingFolder working(folder);
    const RunPaths paths{working.path() / "data.bin", working.path() / "fops", folder};
    try {
        return execute(system, plan, paths, flag, progress);
    } catch (const std::bad_alloc&) { // a block, or a list of files, larger than the memory
        throw ioError("memory: ", ENOMEM);
    } catch (const std::length_error&) {
        throw ioError("memory: ", ENOMEM);
    }
}

} // namespace OndelCore::benchmark
