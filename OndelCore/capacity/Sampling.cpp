#include "OndelCore/capacity/Sampling.h"

#include <algorithm>
#include <cerrno>
#include <random>

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

/// Makes the files of the range, with space reserved. Answers for how many bytes that was possible.
std::int64_t reserveRange(const CheckRun& run) {
    std::int64_t reserved = 0;
    while (reserved < run.bytes) {
        run.throwIfStopped();
        tellReserved(run, reserved);
        const std::int64_t length = std::min(run.system.fileBytes, run.bytes - reserved);
        const auto file = run.files.append(length);
        if (!file)
            break;
        if (!run.system.reserveSpace(file->descriptor(), length)) {
            run.files.removeLast();
            break;
        }
        reserved += length;
    }
    tellReserved(run, reserved);
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
    const std::int64_t reserved = run.system.lacksSparseFiles(run.folder) ? 0 : reserveRange(run);
    if (reserved > 0)
        return spreadSamples(reserved);
    return {{{0, std::min(run.bytes, unspread)}}, {.isSpread = false, .samples = 1}};
}

} // namespace OndelCore::capacity
