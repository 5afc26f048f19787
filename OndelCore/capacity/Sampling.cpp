#include "OndelCore/capacity/Sampling.h"

#include "OndelCore/benchmark/IoError.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <random>
#include <system_error>
#include <utility>

namespace OndelCore::capacity {

namespace {

constexpr std::int64_t mebibyte = 1048576;

std::int64_t roundedUp(std::int64_t bytes, std::int64_t unit) { return (bytes + unit - 1) / unit * unit; }

void tellReserved(const CheckRun& run, std::int64_t done) {
    run.progress({.phase = CapacityPhase::preparing,
                  .done = done,
                  .total = run.bytes,
                  .offset = done,
                  .elapsed = run.clock.seconds(),
                  .cells = run.findings.map.snapshot()});
}

/// Why a reservation at `offset` failed. Absent: the file system cannot reserve at all.
std::optional<EarlyEnd> endOfReservation(const CheckRun& run, std::int64_t offset, int error) {
    constexpr std::array unable{EOPNOTSUPP, ENOSYS, EINVAL, EPERM};
    if (std::ranges::find(unable, error) != unable.end())
        return std::nullopt;
    if (meansGone(error))
        throw benchmark::ioError("fallocate: ", error);
    if (error == ENOSPC)
        return EarlyEnd::full;
    if (error == EDQUOT || error == EFBIG)
        return EarlyEnd::quota;
    run.findings.writing.add({.kind = DefectKind::writeFailed,
                              .offset = offset,
                              .length = blockBytes,
                              .error = std::error_code(error, std::generic_category())});
    run.findings.map.mark(offset, blockBytes, BlockState::writeFailed);
    return EarlyEnd::writeErrors;
}

struct Reservation {
    std::int64_t bytes = 0;
    std::optional<EarlyEnd> end{};
};

/// Makes files with space reserved, one behind the other.
class Reserver {
public:
    explicit Reserver(const CheckRun& run)
        : m_run(run) {}

    /// Appends files for `length` bytes. False: that is the end of the range.
    bool reserve(std::int64_t length) {
        for (const std::int64_t end = m_bytes + length; m_bytes < end;) {
            m_run.throwIfStopped();
            tellReserved(m_run, m_bytes);
            const std::int64_t part = std::min(m_run.system.fileBytes, end - m_bytes);
            auto file = m_run.files.append(part);
            if (!file || !m_run.system.reserveSpace(file->descriptor(), part)) {
                const int error = errno;
                if (file)
                    m_run.files.removeLast();
                m_end = endOfReservation(m_run, m_bytes, error);
                return false;
            }
            m_bytes += part;
            m_held.push_back(std::move(*file));
        }
        return true;
    }

    std::int64_t bytes() const { return m_bytes; }
    void forgetFiles() { m_held.clear(); }

    void finish(Samples& samples) {
        tellReserved(m_run, m_bytes);
        samples.held = std::move(m_held);
        // Of a little less than the file system announced, its own tables are the reason.
        const bool isNearlyAll = m_bytes >= m_run.bytes - m_run.bytes / 50 - m_run.system.fileBytes;
        samples.end = m_end == EarlyEnd::full && isNearlyAll ? std::nullopt : m_end;
    }

private:
    const CheckRun& m_run;
    std::int64_t m_bytes = 0;
    std::optional<EarlyEnd> m_end;
    std::vector<PieceFile> m_held;
};

/// By rising offset, without overlaps.
std::vector<Stretch> joined(std::vector<Stretch> stretches, std::int64_t bytes) {
    std::ranges::sort(stretches, {}, &Stretch::offset);
    std::vector<Stretch> result;
    for (const Stretch& stretch : stretches) {
        const std::int64_t begin =
            result.empty() ? stretch.offset : std::max(stretch.offset, result.back().end());
        const std::int64_t end = std::min(stretch.end(), bytes);
        if (begin >= end)
            continue;
        if (!result.empty() && result.back().end() == begin)
            result.back().length += end - begin;
        else
            result.push_back({begin, end - begin});
    }
    return result;
}

} // namespace

Samples spreadSamples(std::int64_t bytes, std::int64_t places) {
    constexpr std::int64_t leastSpacing = 4 * mebibyte;
    constexpr std::int64_t mostDense = 512 * mebibyte; // a minute on a slow stick
    Samples samples;
    const std::int64_t spacing = std::max(leastSpacing, roundedUp(bytes / places, mebibyte));
    const std::int64_t dense = std::min(mostDense, spacing + spacing / 4);
    samples.stretches.push_back({0, dense});
    // Beyond what the dense stretch covers, chance has to do: on a grid all might miss it.
    const bool isLeftToChance = spacing > dense;
    std::minstd_rand random(std::random_device{}());
    std::uniform_int_distribution<std::int64_t> within(0, spacing / blockBytes - 1);
    for (std::int64_t at = dense; at < bytes; at += spacing)
        samples.stretches.push_back({isLeftToChance ? at + within(random) * blockBytes : at, blockBytes});
    for (std::int64_t at = mebibyte; at < bytes; at *= 2)
        samples.stretches.push_back({at, blockBytes});
    if (bytes > 0)
        samples.stretches.push_back({bytes - blockBytes, blockBytes});
    samples.stretches = joined(std::move(samples.stretches), bytes);
    samples.sampling = {.isSpread = true,
                        .reserved = bytes,
                        .samples = static_cast<std::int64_t>(samples.stretches.size()),
                        .spacing = spacing};
    return samples;
}

namespace {

/// Samples inside of large files.
Samples samplesInside(const CheckRun& run) {
    Reserver reserver(run);
    while (reserver.bytes() < run.bytes &&
           reserver.reserve(std::min(run.system.fileBytes, run.bytes - reserver.bytes())))
        reserver.forgetFiles();
    reserver.forgetFiles();
    Samples samples = spreadSamples(reserver.bytes());
    reserver.finish(samples);
    return samples;
}

/// Samples between files without content. There are no more than descriptors to hold them by.
Samples samplesBetween(const CheckRun& run) {
    constexpr std::int64_t places = 256;
    Samples samples = spreadSamples(run.bytes, places);
    Reserver reserver(run);
    std::size_t reserved = 0;
    for (const Stretch& stretch : samples.stretches) {
        const bool isReserved =
            reserver.reserve(stretch.offset - reserver.bytes()) && reserver.reserve(stretch.length);
        if (!isReserved)
            break;
        ++reserved;
    }
    samples.stretches.resize(reserved);
    samples.sampling.samples = static_cast<std::int64_t>(reserved);
    samples.sampling.reserved = reserver.bytes();
    reserver.finish(samples);
    return samples;
}

/// Samples in one sparse file, with nothing reserved between them.
Samples samplesAmongHoles(const CheckRun& run) {
    run.files.append(run.bytes); // writing tells why it fails
    Samples samples = spreadSamples(run.bytes);
    samples.sampling.reserved = 0;
    return samples;
}

/// Samples side by side.
Samples samplesInOnePlace(const CheckRun& run) {
    constexpr std::int64_t most = 64 * mebibyte;
    return {.stretches = {{0, std::min(run.bytes, most)}}, .sampling = {.isSpread = false, .samples = 1}};
}

} // namespace

Samples prepareSamples(const CheckRun& run) {
    Samples samples = run.system.lacksSparseFiles(run.folder) ? samplesBetween(run) : samplesInside(run);
    if (samples.sampling.reserved > 0)
        return samples;
    const auto end = samples.end;
    samples =
        !end && run.system.spreadsSparseFiles(run.folder) ? samplesAmongHoles(run) : samplesInOnePlace(run);
    samples.end = end;
    return samples;
}

} // namespace OndelCore::capacity
