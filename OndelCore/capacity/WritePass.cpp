#include "OndelCore/benchmark/IoError.h"
#include "OndelCore/capacity/ChunkRing.h"
#include "OndelCore/capacity/PassMeter.h"
#include "OndelCore/capacity/Passes.h"
#include "OndelCore/platform/process/Signals.h"

#include <fcntl.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <iterator>
#include <span>
#include <system_error>
#include <thread>

namespace OndelCore::capacity {

namespace {

/// Makes the content of the stretches ahead of the writer, on a thread of its own.
class ContentMaker {
public:
    ContentMaker(const CheckRun& run, const std::vector<Stretch>& stretches)
        : m_onStop(run.stop, CloseRing{m_ring})
        , m_thread([this, &run, &stretches] { make(run.pattern, stretches); }) {}
    ~ContentMaker() {
        m_ring.close();
        m_thread.join();
    }
    ContentMaker(const ContentMaker&) = delete;
    ContentMaker& operator=(const ContentMaker&) = delete;

    ChunkRing& ring() { return m_ring; }

private:
    struct CloseRing {
        ChunkRing& ring;
        void operator()() const { ring.close(); }
    };

    void make(const BlockPattern& pattern, const std::vector<Stretch>& stretches) {
        platform::keepSignalsOffThisThread();
        for (const Stretch& stretch : stretches)
            for (std::int64_t offset = stretch.offset; offset < stretch.end(); offset += chunkBytes) {
                Chunk* chunk = m_ring.toFill();
                if (chunk == nullptr)
                    return;
                chunk->offset = offset;
                chunk->length = std::min(chunkBytes, stretch.end() - offset);
                pattern.fill(chunk->content(), offset / blockBytes);
                m_ring.filled();
            }
        m_ring.finish();
    }

    ChunkRing m_ring;
    std::stop_callback<CloseRing> m_onStop;
    std::thread m_thread;
};

/// Watches the reserve on the volume. Asking costs as much as a small write, so it does at every eighth
/// chunk.
class ReserveLimit {
public:
    explicit ReserveLimit(const CheckRun& run)
        : m_run(run) {}

    bool isReached() {
        m_turn = (m_turn + 1) % 8;
        return m_turn == 1 && m_run.system.freeBytes(m_run.volume).value_or(0) <= m_run.plan.leaveFree;
    }

private:
    const CheckRun& m_run;
    int m_turn = 0;
};

class RangeWriter {
public:
    RangeWriter(const CheckRun& run, PassMeter& meter)
        : m_run(run)
        , m_meter(meter) {}

    /// False: nothing more can be written; `end` says why.
    bool write(const Chunk& chunk);
    /// Flushes what is open. Call after the last chunk.
    void close();

    void endAs(EarlyEnd end, int error = 0) {
        m_end = end;
        m_error = error;
    }
    void tell(WriteOutcome& outcome) const;
    /// Whether the last of what was to be written failed, over more than a few blocks.
    bool endsInFailure() const { return m_failedInRow >= chunkBytes; }

private:
    bool open(std::int64_t offset);
    bool goesOnAfter(int error, const Chunk& chunk);
    std::int64_t writeBlocks(std::span<const std::byte> bytes, std::int64_t offset);
    void enterDefect(DefectKind kind, Stretch stretch, int error);
    bool skip(std::int64_t length, int error, const Chunk& chunk);
    void dropLastPiece(EarlyEnd end, int error);

    /// Beyond so many failed runs, or so many bytes in a row, the rest is given up.
    static constexpr std::size_t mostFailedRuns = 4096;
    static constexpr std::int64_t mostFailedInRow = 64 * chunkBytes;

    const CheckRun& m_run;
    PassMeter& m_meter;
    std::optional<PieceFile> m_file;
    std::int64_t m_pieceBytes = m_run.system.fileBytes;
    std::int64_t m_done = 0; ///< of the chunk
    std::int64_t m_step = chunkBytes;
    int m_repeatedFor = 0; ///< the error for which the chunk is written block by block
    std::int64_t m_failedInRow = 0;
    std::optional<EarlyEnd> m_end;
    int m_error = 0;
    std::optional<std::error_code> m_flushError;
    std::int64_t m_refused = 0;
    bool m_isBypassRefused = false;
};

bool RangeWriter::write(const Chunk& chunk) {
    m_step = chunkBytes;
    m_repeatedFor = 0;
    for (m_done = 0; m_done < chunk.length;) {
        m_run.throwIfStopped();
        const std::int64_t offset = chunk.offset + m_done;
        if (!open(offset)) {
            if (!goesOnAfter(errno, chunk))
                return false;
            continue;
        }
        const std::int64_t wanted = std::min({chunk.length - m_done, m_file->piece().end() - offset, m_step});
        const auto bytes =
            chunk.content().subspan(static_cast<std::size_t>(m_done), static_cast<std::size_t>(wanted));
        const std::int64_t whole = writeBlocks(bytes, offset);
        if (whole > 0) {
            m_run.findings.addWritten(offset, whole);
            m_meter.transferred(offset, whole);
            m_done += whole;
            m_failedInRow = 0;
        } else if (!goesOnAfter(errno, chunk)) {
            return false;
        }
    }
    if (m_repeatedFor != 0)
        enterDefect(DefectKind::recovered, {chunk.offset, chunk.length}, m_repeatedFor);
    return true;
}

/// Answers how much was written, in whole blocks. What a short write left of a block is tried alone, as that
/// tells why it was short. Fails: 0, with errno set.
std::int64_t RangeWriter::writeBlocks(std::span<const std::byte> bytes, std::int64_t offset) {
    std::int64_t moved = 0;
    do {
        const std::int64_t left =
            moved == 0 ? std::ssize(bytes) : (moved / blockBytes + 1) * blockBytes - moved;
        const ssize_t more = m_file->write(
            bytes.subspan(static_cast<std::size_t>(moved), static_cast<std::size_t>(left)), offset + moved);
        if (more == 0)
            errno = ENOSPC;
        if (more <= 0)
            break;
        moved += more;
    } while (moved % blockBytes != 0);
    return moved / blockBytes * blockBytes;
}

void RangeWriter::enterDefect(DefectKind kind, Stretch stretch, int error) {
    m_run.findings.writing.add({.kind = kind,
                                .offset = stretch.offset,
                                .length = stretch.length,
                                .error = std::error_code(error, std::generic_category())});
    m_run.findings.map.mark(stretch.offset, stretch.length, BlockState::writeFailed);
}

/// Opens the piece that holds `offset`, or makes the next one. Fails: false, with errno set.
bool RangeWriter::open(std::int64_t offset) {
    if (m_file && m_file->holds(offset))
        return true;
    close();
    if (m_end) {
        errno = m_error;
        return false;
    }
    const auto& pieces = m_run.files.pieces();
    if (!pieces.empty() && offset < pieces.back().end())
        m_file = m_run.files.open(m_run.files.pieceAt(offset), O_WRONLY);
    else
        m_file = m_run.files.append(m_pieceBytes);
    return m_file.has_value();
}

/// What failed writing means. True: try on, from `m_done` and by `m_step`.
bool RangeWriter::goesOnAfter(int error, const Chunk& chunk) {
    m_error = error;
    if (m_end)
        return false;
    if (meansGone(error))
        throw benchmark::ioError("write: ", error);
    switch (error) {
    case ENOSPC:
        m_end = EarlyEnd::full;
        return false;
    case EDQUOT:
        m_end = EarlyEnd::quota;
        return false;
    case EFBIG:
        if (m_file && chunk.offset + m_done > m_file->piece().offset) { // a limit on the files of this user
            m_pieceBytes = chunk.offset + m_done - m_file->piece().offset;
            m_run.files.endLastAt(chunk.offset + m_done);
            close();
            return true;
        }
        m_end = EarlyEnd::quota;
        return false;
    case EROFS:
        m_end = EarlyEnd::writeErrors;
        return false;
    default:
        break;
    }
    if (!m_file) { // no file can be made
        m_end = EarlyEnd::writeErrors;
        return false;
    }
    if (m_step > blockBytes && m_failedInRow < chunkBytes) {
        m_step = blockBytes;
        m_repeatedFor = error == ENOMEM || error == EAGAIN ? 0 : error; // those are the machine's
        return true;
    }
    m_repeatedFor = 0;
    return skip(std::min(m_step, chunk.length - m_done), error, chunk);
}

bool RangeWriter::skip(std::int64_t length, int error, const Chunk& chunk) {
    const std::int64_t offset = chunk.offset + m_done;
    const std::int64_t within = std::min(length, m_file->piece().end() - offset);
    enterDefect(DefectKind::writeFailed, {offset, within}, error);
    m_done += within;
    m_failedInRow += within;
    if (m_failedInRow >= chunkBytes)
        m_step = chunkBytes; // a whole region: no more block by block
    if (m_failedInRow < mostFailedInRow && m_run.findings.writing.runs().size() < mostFailedRuns)
        return true;
    m_end = EarlyEnd::writeErrors;
    return false;
}

void RangeWriter::close() {
    if (!m_file)
        return;
    const std::int64_t place = m_file->piece().offset;
    const std::error_code error = m_file->flush();
    const bool isCached = !m_file->bypass().isOn() || m_file->bypass().refusedTransfers() > 0;
    if (isCached)
        m_file->dropFromCache(); // early, so that a large range does not push out what others have there
    m_refused += m_file->bypass().refusedTransfers();
    m_isBypassRefused |= !m_file->bypass().isOn();
    m_file.reset();
    m_meter.worked(place);
    if (!error)
        return;
    m_flushError = error;
    if (meansGone(error.value()))
        throw benchmark::ioError("flush: ", error.value());
    if (error.value() == ENOSPC)
        dropLastPiece(EarlyEnd::full, ENOSPC);
    else if (error.value() == EDQUOT)
        dropLastPiece(EarlyEnd::quota, EDQUOT);
}

/// The file system took data into its memory and found no room for them later: what is missing is its own
/// affair, and no defect of the medium.
void RangeWriter::dropLastPiece(EarlyEnd end, int error) {
    endAs(end, error);
    auto& written = m_run.findings.written;
    const std::int64_t place = m_run.files.pieces().back().offset;
    while (!written.empty() && written.back().offset >= place)
        written.pop_back();
    if (!written.empty())
        written.back().length = std::min(written.back().length, place - written.back().offset);
    m_run.files.removeLast();
}

void RangeWriter::tell(WriteOutcome& outcome) const {
    outcome.end = m_end;
    outcome.error = m_error;
    outcome.pass.flushError = m_flushError;
    outcome.pass.wentThroughCache = m_isBypassRefused || m_refused > 0;
    outcome.pass.evidence.isBypassRefused = m_isBypassRefused;
    outcome.pass.evidence.refusedTransfers = m_refused;
}

} // namespace

WriteOutcome writeStretches(const CheckRun& run, CapacityPhase phase, const std::vector<Stretch>& stretches,
                            bool watchesReserve) {
    std::int64_t total = 0;
    for (const Stretch& stretch : stretches)
        total += stretch.length;
    PassMeter meter(run, phase, total);
    RangeWriter writer(run, meter);
    {
        ContentMaker maker(run, stretches);
        ReserveLimit reserve(run);
        while (const Chunk* chunk = maker.ring().toEmpty()) {
            if (watchesReserve && reserve.isReached()) {
                writer.endAs(EarlyEnd::full);
                break;
            }
            if (!writer.write(*chunk))
                break;
            maker.ring().emptied();
        }
    }
    run.throwIfStopped();
    writer.close();
    WriteOutcome outcome{.pass = meter.finish()};
    writer.tell(outcome);
    if ((outcome.end == EarlyEnd::writeErrors || writer.endsInFailure()) && isVolumeGone(run))
        throw benchmark::ioError("write: ", outcome.error);
    return outcome;
}

} // namespace OndelCore::capacity
