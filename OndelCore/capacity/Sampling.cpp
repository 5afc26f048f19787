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

/// Makes the files of the range, with space reserved.
Reservation reserveRange(const CheckRun& run) {
    Reservation reserved;
    while (reserved.bytes < run.bytes && !reserved.end) {
        run.throwIfStopped();
        tellReserved(run, reserved.bytes);
        const std::int64_t length = std::min(run.system.fileBytes, run.bytes - reserved.bytes);
        const auto file = run.files.append(length);
        if (file && run.system.reserveSpace(file->descriptor(), length)) {
            reserved.bytes += length;
            continue;
        }
        const int error = errno;
        if (file)
            run.files.removeLast();
        reserved.end = endOfReservation(run, reserved.bytes, error);
        if (!reserved.end)
            break;
    }
    tellReserved(run, reserved.bytes);
    // Of a little less than the file system announced, its own tables are the reason.
    if (reserved.end == EarlyEnd::full && reserved.bytes >= run.bytes - run.bytes / 50 - run.system.fileBytes)
        reserved.end.reset();
    return reserved;
}

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

Samples spreadSamples(std::int64_t bytes) {
    constexpr std::int64_t places = 1024;
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

Samples prepareSamples(const CheckRun& run) {
    constexpr std::int64_t unspread = 64 * mebibyte;
    const Reservation reserved = run.system.lacksSparseFiles(run.folder) ? Reservation() : reserveRange(run);
    Samples samples;
    if (reserved.bytes > 0)
        samples = spreadSamples(reserved.bytes);
    else
        samples = {{{0, std::min(run.bytes, unspread)}}, {.isSpread = false, .samples = 1}};
    samples.end = reserved.end;
    return samples;
}

} // namespace OndelCore::capacity
