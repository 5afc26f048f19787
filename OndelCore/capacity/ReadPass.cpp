#include "OndelCore/benchmark/IoError.h"
#include "OndelCore/capacity/ChunkRing.h"
#include "OndelCore/capacity/PassMeter.h"
#include "OndelCore/capacity/Passes.h"
#include "OndelCore/platform/process/Signals.h"

#include <fcntl.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <system_error>
#include <thread>

namespace OndelCore::capacity {

namespace {

/// Compares what was read, behind the reader, on a thread of its own.
class Comparer {
public:
    Comparer(const CheckRun& run, DefectList& defects, const DefectList* known)
        : m_run(run)
        , m_defects(defects)
        , m_known(known)
        , m_onStop(run.stop, CloseRing{m_ring})
        , m_thread([this] { compareAll(); }) {}
    ~Comparer() {
        m_ring.close();
        m_thread.join();
    }
    Comparer(const Comparer&) = delete;
    Comparer& operator=(const Comparer&) = delete;

    ChunkRing& ring() { return m_ring; }

private:
    struct CloseRing {
        ChunkRing& ring;
        void operator()() const { ring.close(); }
    };

    void compareAll() {
        platform::keepSignalsOffThisThread();
        while (const Chunk* chunk = m_ring.toEmpty()) {
            if (chunk->unreadable.empty() && chunk->error)
                enter({.kind = DefectKind::recovered,
                       .offset = chunk->offset,
                       .length = chunk->length,
                       .error = chunk->error});
            if (chunk->unreadable.empty())
                compare(chunk->content(), chunk->offset);
            else
                compareBlocks(*chunk);
            m_ring.emptied();
        }
    }

    void compareBlocks(const Chunk& chunk) {
        const auto bytes = static_cast<std::size_t>(blockBytes);
        for (std::size_t block = 0; block < chunk.unreadable.size(); ++block) {
            const std::int64_t offset = chunk.offset + static_cast<std::int64_t>(block) * blockBytes;
            if (chunk.unreadable[block])
                enter({.kind = DefectKind::unreadable,
                       .offset = offset,
                       .length = blockBytes,
                       .error = chunk.error});
            else
                compare(chunk.content().subspan(block * bytes, bytes), offset);
        }
    }

    void compare(std::span<const std::byte> bytes, std::int64_t offset) {
        while (!bytes.empty()) {
            const std::int64_t right = m_run.pattern.countRight(bytes, offset / blockBytes) * blockBytes;
            if (right > 0)
                m_run.findings.map.mark(offset, right, BlockState::verified);
            offset += right;
            bytes = bytes.subspan(static_cast<std::size_t>(right));
            if (bytes.empty())
                return;
            enter(judged(bytes.first(static_cast<std::size_t>(blockBytes)), offset));
            offset += blockBytes;
            bytes = bytes.subspan(static_cast<std::size_t>(blockBytes));
        }
    }

    CapacityDefect judged(std::span<const std::byte> block, std::int64_t offset) const {
        const BlockVerdict verdict =
            m_run.pattern.judge(block, offset / blockBytes, m_run.bytes / blockBytes);
        CapacityDefect defect{
            .kind = verdict.kind, .offset = offset, .length = blockBytes, .flippedBits = verdict.flippedBits};
        if (verdict.holds)
            defect.holds = *verdict.holds * blockBytes;
        return defect;
    }

    void enter(CapacityDefect defect) {
        m_run.findings.map.mark(defect.offset, defect.length,
                                defect.error ? BlockState::unreadable : BlockState::wrong);
        if (m_known != nullptr && m_known->covers(defect.offset))
            return;
        defect.isOnlyLater = m_known != nullptr;
        m_defects.add(defect);
    }

    const CheckRun& m_run;
    DefectList& m_defects;
    const DefectList* m_known;
    ChunkRing m_ring;
    std::stop_callback<CloseRing> m_onStop;
    std::thread m_thread;
};

class RangeReader {
public:
    explicit RangeReader(const CheckRun& run)
        : m_run(run) {}

    /// Reads the chunk's stretch, which lies in one piece, and marks what could not be read.
    void read(Chunk& chunk);
    void close();
    void tell(CapacityPass& pass) const;
    /// The error with which the last of it failed, over more than a few blocks; else 0.
    int finalFailure() const { return m_failedInRow >= chunkBytes ? m_lastError : 0; }

private:
    ssize_t transfer(Chunk& chunk, std::int64_t from, std::int64_t length);
    void readBlocks(Chunk& chunk, std::int64_t from);
    void fail(Chunk& chunk, std::int64_t from, std::int64_t length, int error);

    static constexpr std::int64_t mostFailedInRow = 64 * chunkBytes;

    const CheckRun& m_run;
    std::optional<PieceFile> m_file;
    std::int64_t m_failedInRow = 0;
    int m_lastError = 0;
    std::int64_t m_refused = 0;
    bool m_isBypassRefused = false;
};

void RangeReader::read(Chunk& chunk) {
    chunk.unreadable.clear();
    chunk.error = {};
    if (!m_file || !m_file->holds(chunk.offset)) {
        close();
        m_file = m_run.files.open(m_run.files.pieceAt(chunk.offset), O_RDONLY);
    }
    if (!m_file)
        return fail(chunk, 0, chunk.length, errno);
    for (std::int64_t done = 0; done < chunk.length;) {
        m_run.throwIfStopped();
        const ssize_t moved = transfer(chunk, done, chunk.length - done);
        if (moved <= 0)
            return readBlocks(chunk, done / blockBytes * blockBytes);
        done += moved;
    }
    m_failedInRow = 0;
}

/// As pread(2); the end of the file counts as an error.
ssize_t RangeReader::transfer(Chunk& chunk, std::int64_t from, std::int64_t length) {
    const auto bytes =
        chunk.content().subspan(static_cast<std::size_t>(from), static_cast<std::size_t>(length));
    const ssize_t moved = m_file->read(bytes, chunk.offset + from);
    if (moved == 0)
        errno = ENODATA;
    return moved;
}

/// Each block alone, after reading them at once failed; where the failures do not end, no longer.
void RangeReader::readBlocks(Chunk& chunk, std::int64_t from) {
    const int error = errno;
    if (m_failedInRow >= chunkBytes)
        return fail(chunk, from, chunk.length - from, error);
    for (std::int64_t at = from; at < chunk.length; at += blockBytes) {
        m_run.throwIfStopped();
        if (transfer(chunk, at, blockBytes) == blockBytes)
            m_failedInRow = 0;
        else
            fail(chunk, at, blockBytes, errno);
    }
    const bool isOfTheMachine = error == ENOMEM || error == EAGAIN;
    if (chunk.unreadable.empty() && !isOfTheMachine)
        chunk.error = std::error_code(error, std::generic_category());
}

void RangeReader::fail(Chunk& chunk, std::int64_t from, std::int64_t length, int error) {
    if (meansGone(error))
        throw benchmark::ioError("read: ", error);
    chunk.unreadable.resize(static_cast<std::size_t>(chunk.length / blockBytes));
    if (!chunk.error)
        chunk.error = std::error_code(error, std::generic_category());
    for (std::int64_t at = from; at < from + length; at += blockBytes)
        chunk.unreadable[static_cast<std::size_t>(at / blockBytes)] = true;
    const std::int64_t before = m_failedInRow;
    m_failedInRow += length;
    m_lastError = error;
    const bool isAnotherStretch = m_failedInRow / mostFailedInRow > before / mostFailedInRow;
    if (isAnotherStretch && isVolumeGone(m_run))
        throw benchmark::ioError("read: ", error);
}

void RangeReader::close() {
    if (!m_file)
        return;
    m_refused += m_file->bypass().refusedTransfers();
    m_isBypassRefused |= !m_file->bypass().isOn();
    m_file.reset();
}

void RangeReader::tell(CapacityPass& pass) const {
    pass.wentThroughCache = m_isBypassRefused || m_refused > 0;
    pass.evidence.isBypassRefused = m_isBypassRefused;
    pass.evidence.refusedTransfers = m_refused;
}

/// What lies in memory would answer for the medium. Not timed: a file of 1 GiB that stays there, as on a
/// tmpfs, takes as long as reading it.
void dropFromCaches(const CheckRun& run) {
    for (const Piece& piece : run.files.pieces()) {
        run.throwIfStopped();
        if (const auto file = run.files.open(piece, O_RDONLY))
            file->dropFromCache();
    }
    run.system.dropDeviceCache(run.volume);
}

} // namespace

CapacityPass readWritten(const CheckRun& run, CapacityPhase phase, DefectList& defects,
                         const DefectList* known) {
    dropFromCaches(run);
    PassMeter meter(run, phase, run.findings.bytesWritten());
    RangeReader reader(run);
    {
        Comparer comparer(run, defects, known);
        for (const Stretch& stretch : run.findings.written)
            for (std::int64_t offset = stretch.offset; offset < stretch.end();) {
                run.throwIfStopped();
                Chunk* chunk = comparer.ring().toFill();
                if (chunk == nullptr)
                    break;
                chunk->offset = offset;
                chunk->length =
                    std::min({chunkBytes, stretch.end() - offset, run.files.pieceAt(offset).end() - offset});
                reader.read(*chunk);
                offset += chunk->length;
                meter.transferred(chunk->offset, chunk->length);
                comparer.ring().filled();
            }
        comparer.ring().awaitEmpty();
    }
    run.throwIfStopped();
    reader.close();
    if (const int error = reader.finalFailure(); error != 0 && isVolumeGone(run))
        throw benchmark::ioError("read: ", error);
    CapacityPass pass = meter.finish();
    reader.tell(pass);
    return pass;
}

} // namespace OndelCore::capacity
