#include "OndelCore/benchmark/RandomTests.h"

#include "OndelCore/SaturatingMath.h"
#include "OndelCore/benchmark/DataFile.h"
#include "OndelCore/benchmark/UniformIndexGenerator.h"
#include "OndelCore/benchmark/evidence/OperationTimer.h"
#include "OndelCore/platform/process/SystemCalls.h"

#include <fcntl.h>

namespace OndelCore::benchmark {

namespace {

/// What the two tests differ in.
struct RandomTest {
    BenchmarkTest test;
    int openFlags;
    std::string_view failurePrefix;
    bool writes;
};

IOPSResult measure(const TestRun& run, const RandomTest& kind) {
    const std::int64_t block = BenchmarkPlan::alignedBlock(run.plan.randomBlockSize);
    const std::int64_t count = run.plan.randomOpCount;
    DataFile file(run, kind.openFlags, "open(random): ");
    const std::int64_t blocks = file.length() / block;
    if (blocks <= 0)
        throw BenchmarkError(BenchmarkError::FileTooSmallForRandom{});
    BlockBuffer buffer(block);
    if (kind.writes)
        buffer.fillWithRandomBytes();
    const auto bytes = buffer.first(block);
    UniformIndexGenerator draw(platform::fillRandom);
    const auto report = [&](std::int64_t operations, double elapsed) {
        run.progress(
            {kind.test, saturatingMultiply(operations, block), saturatingMultiply(count, block), 0, elapsed});
    };

    OperationTimer timer(run.system.operationClock);
    const double start = run.now();
    timer.begin();
    for (std::int64_t i = 0; i < count; ++i) {
        run.throwIfCancelled();
        const auto index = static_cast<std::int64_t>(draw.below(static_cast<std::uint64_t>(blocks)));
        const std::int64_t offset = index * block;
        const ssize_t moved = kind.writes ? file.writeAt(offset, bytes) : file.readAt(offset, bytes);
        if (moved < 0)
            throw ioError(kind.failurePrefix, errno);
        timer.endedOne();
        if (i % 512 == 0) {
            report(i + 1, run.now() - start);
            timer.begin();
        }
    }
    const auto flushError = kind.writes ? file.flush() : std::nullopt;
    const double duration = run.now() - start;
    report(count, duration);
    IOPSResult result{count, duration, block, flushError, timer.latency()};
    timer.tell(result.evidence);
    file.tell(result.evidence);
    return result;
}

} // namespace

IOPSResult randomRead(const TestRun& run) {
    return measure(run, {BenchmarkTest::randomRead, O_RDONLY, "pread: ", false});
}

IOPSResult randomWrite(const TestRun& run) {
    return measure(run, {BenchmarkTest::randomWrite, O_RDWR, "pwrite: ", true});
}

} // namespace OndelCore::benchmark
