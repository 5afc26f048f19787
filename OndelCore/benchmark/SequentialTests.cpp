#include "OndelCore/benchmark/SequentialTests.h"

#include "OndelCore/benchmark/DataFile.h"
#include "OndelCore/benchmark/ThroughputRecorder.h"

#include <fcntl.h>

#include <algorithm>

namespace OndelCore::benchmark {

namespace {

/// Watches the reserve that fillDisk leaves on the volume. It looks at every eighth write only: asking costs
/// about as much as a small write.
class ReserveWatch {
public:
    /// `targetBytes`: what could be written when the run began. Btrfs counts new data as used only at its
    /// next commit, up to half a minute later; its live figure alone would let the reserve be written full.
    ReserveWatch(const TestRun& run, int volumePath, std::int64_t targetBytes)
        : m_run(run)
        , m_volumePath(volumePath)
        , m_targetBytes(targetBytes)
        , m_leaveFree(run.plan.size.asFillDisk()->leaveFree) {}

    /// Call before each write. A volume that no longer tells its free space has none.
    bool isReached(std::int64_t moved) {
        if (m_turn == 0 && (m_run.freeBytes(m_volumePath) <= m_leaveFree || moved >= m_targetBytes))
            return true;
        m_turn = (m_turn + 1) % 8;
        return false;
    }

private:
    const TestRun& m_run;
    int m_volumePath;
    std::int64_t m_targetBytes;
    std::int64_t m_leaveFree;
    int m_turn = 0;
};

/// Writes blocks until the target is reached, the last one cut to fit. `transferred` hears the bytes so far.
template <class Listener>
std::int64_t writeToTarget(const TestRun& run, DataFile& file, const BlockBuffer& buffer, std::int64_t block,
                           std::int64_t target, std::string_view failurePrefix, Listener transferred) {
    std::int64_t moved = 0;
    for (;;) {
        run.throwIfCancelled();
        if (moved >= target)
            return moved;
        const ssize_t written = file.write(buffer.first(std::min(block, target - moved)));
        if (written < 0)
            throw ioError(failurePrefix, errno);
        moved += written; // after a short write the next call starts again from the head of the buffer
        transferred(moved);
    }
}

/// Writes whole blocks until the reserve is reached or the disk is full.
template <class Listener>
std::int64_t writeUntilFull(const TestRun& run, DataFile& file, const BlockBuffer& buffer, std::int64_t block,
                            ReserveWatch reserve, Listener transferred) {
    std::int64_t moved = 0;
    for (;;) {
        run.throwIfCancelled();
        if (reserve.isReached(moved))
            return moved;
        const ssize_t written = file.write(buffer.first(block));
        if (written < 0 && errno == ENOSPC)
            return moved;
        if (written < 0)
            throw ioError("write: ", errno);
        moved += written;
        transferred(moved);
    }
}

constexpr int createForWriting = O_WRONLY | O_CREAT | O_TRUNC;

} // namespace

ThroughputResult sequentialWrite(const TestRun& run, std::int64_t targetBytes, int volumePath) {
    const std::int64_t block = BenchmarkPlan::alignedBlock(run.plan.writeBlockSize);
    const bool fillDisk = run.plan.size.asFillDisk() != nullptr;
    DataFile file(run, createForWriting, "open(write): ");
    BlockBuffer buffer(block);
    buffer.fillWithRandomBytes();

    ThroughputRecorder recorder(run, BenchmarkTest::sequentialWrite, fillDisk ? 0 : targetBytes);
    const auto transferred = [&](std::int64_t moved) { recorder.transferred(moved); };
    const std::int64_t moved =
        fillDisk ? writeUntilFull(run, file, buffer, block, {run, volumePath, targetBytes}, transferred)
                 : writeToTarget(run, file, buffer, block, targetBytes, "write: ", transferred);
    recorder.loopEnded(moved);
    const auto flushError = file.flush();
    ThroughputResult result = recorder.result(moved, block);
    result.flushError = flushError;
    file.tell(result.evidence);
    return result;
}

std::optional<std::error_code> prepareDataFile(const TestRun& run, std::int64_t targetBytes) {
    const std::int64_t block = BenchmarkPlan::alignedBlock(run.plan.writeBlockSize);
    DataFile file(run, createForWriting, "open(prepare): ");
    BlockBuffer buffer(block);
    buffer.fillWithRandomBytes();

    writeToTarget(run, file, buffer, block, targetBytes, "write(prepare): ", [](std::int64_t) {});
    return file.flush();
}

ThroughputResult sequentialRead(const TestRun& run) {
    const std::int64_t block = BenchmarkPlan::alignedBlock(run.plan.readBlockSize);
    DataFile file(run, O_RDONLY, "open(read): ");
    const std::int64_t totalBytes = file.length();
    const BlockBuffer buffer(block);

    ThroughputRecorder recorder(run, BenchmarkTest::sequentialRead, totalBytes);
    std::int64_t moved = 0;
    for (;;) {
        run.throwIfCancelled();
        const ssize_t count = file.read(buffer.first(block));
        if (count < 0)
            throw ioError("read: ", errno);
        if (count == 0)
            break;
        moved += count;
        recorder.transferred(moved);
    }
    recorder.loopEnded(moved);
    ThroughputResult result = recorder.result(moved, block);
    file.tell(result.evidence);
    return result;
}

} // namespace OndelCore::benchmark
