#include "OndelCore/capacity/RealSize.h"

#include "OndelCore/capacity/BlockPattern.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <map>
#include <set>

namespace OndelCore::capacity {

namespace {

constexpr std::size_t mostDistances = 10000;

/// Translates offsets in the range to places on the volume.
class PlaceMap {
public:
    explicit PlaceMap(const RealSizeClues& clues)
        : m_places(clues.places)
        , m_usedBefore(clues.usedBefore) {}

    bool isTold() const { return !m_places.empty(); }

    /// The place of `offset`, and how much follows it there, up to `length`. Absent in gaps of the map.
    std::optional<Stretch> at(std::int64_t offset, std::int64_t length) const {
        if (!isTold())
            return Stretch{m_usedBefore + offset, length};
        const auto after = std::ranges::upper_bound(m_places, offset, {}, &PlacedStretch::offset);
        if (after == m_places.begin())
            return std::nullopt;
        const PlacedStretch& found = *std::prev(after);
        const std::int64_t within = offset - found.offset;
        if (within >= found.length)
            return std::nullopt;
        return Stretch{found.place + within, std::min(length, found.length - within)};
    }

private:
    const std::vector<PlacedStretch>& m_places;
    std::int64_t m_usedBefore;
};

using Distances = std::map<std::int64_t, std::int64_t>;

/// How far from its place each content was found, with the bytes for each distance. In which direction
/// depends on the order of writing alone, and file systems do not write from the front to the back.
Distances distancesOf(const RealSizeClues& clues, const PlaceMap& places) {
    Distances bytes;
    for (const CapacityDefect& run : clues.findings.reading.runs()) {
        if (!run.holds || run.repeats)
            continue;
        for (std::int64_t done = 0; done < run.length;) {
            const auto here = places.at(run.offset + done, run.length - done);
            const auto there = here ? places.at(*run.holds + done, here->length) : std::nullopt;
            const std::int64_t distance = there ? std::abs(there->offset - here->offset) : 0;
            if (distance > 0 && (bytes.size() < mostDistances || bytes.contains(distance)))
                bytes[distance] += there->length;
            done += there ? there->length : blockBytes;
        }
    }
    return bytes;
}

/// Whether a quick check found the same block at each wrong place: a device gives that for what it has lost.
bool isOneBlockEverywhere(const RealSizeClues& clues) {
    std::int64_t blocks = 0;
    std::set<std::int64_t> held;
    for (const CapacityDefect& run : clues.findings.reading.runs())
        if (run.holds) {
            blocks += run.length / blockBytes;
            held.insert(*run.holds);
        }
    return blocks > 1 && held.size() == 1 && clues.isQuick;
}

std::optional<CapacityRealSize> wrapSize(const RealSizeClues& clues, const PlaceMap& places) {
    const Distances distances = distancesOf(clues, places);
    std::int64_t sum = 0;
    for (const auto& [distance, bytes] : distances)
        sum += bytes;
    if (sum < (clues.isQuick ? blockBytes : 64 * blockBytes) || isOneBlockEverywhere(clues))
        return std::nullopt;
    // The shortest distance that is no accident; where a device wraps several times, others are its
    // multiples.
    const auto shortest =
        std::ranges::find_if(distances, [sum](const auto& entry) { return entry.second * 20 >= sum; });
    if (shortest == distances.end())
        return std::nullopt;
    std::int64_t fitting = 0;
    for (const auto& [distance, bytes] : distances)
        if (distance % shortest->first == 0)
            fitting += bytes;
    return CapacityRealSize{.reason = CapacityRealSize::Reason::wrapsAround,
                            .bytes = shortest->first,
                            .isExact = places.isTold() && fitting * 20 >= sum * 19};
}

/// Whether nothing of what was written is left.
bool isLost(const CapacityDefect& run) {
    return run.kind != DefectKind::bitFlips && run.kind != DefectKind::recovered;
}

struct JudgedStretch {
    std::int64_t place;
    std::int64_t length;
    bool isGood;
};

void addPlaced(std::vector<JudgedStretch>& stretches, const PlaceMap& places, Stretch stretch, bool isGood) {
    while (stretch.length > 0) {
        const auto here = places.at(stretch.offset, stretch.length);
        if (here)
            stretches.push_back({here->offset, here->length, isGood});
        const std::int64_t done = here ? here->length : blockBytes;
        stretch = {stretch.offset + done, stretch.length - done};
    }
}

/// Everything that was to be written, by rising place.
std::vector<JudgedStretch> judgedByPlace(const RealSizeClues& clues, const PlaceMap& places) {
    std::vector<JudgedStretch> stretches;
    const auto& runs = clues.findings.reading.runs();
    auto run = runs.begin();
    for (const Stretch& written : clues.findings.written) {
        std::int64_t from = written.offset;
        for (; run != runs.end() && run->offset < written.end(); ++run) {
            if (!isLost(*run))
                continue;
            addPlaced(stretches, places, {from, run->offset - from}, true);
            addPlaced(stretches, places, {run->offset, run->length}, false);
            from = run->offset + run->length;
        }
        addPlaced(stretches, places, {from, written.end() - from}, true);
    }
    for (const CapacityDefect& failed : clues.findings.writing.runs())
        if (isLost(failed))
            addPlaced(stretches, places, {failed.offset, failed.length}, false);
    std::ranges::sort(stretches, {}, &JudgedStretch::place);
    return stretches;
}

/// The place before which (nearly) all is good and from which on (nearly) all is lost.
std::optional<CapacityRealSize> sizeByPlace(const RealSizeClues& clues, const PlaceMap& places) {
    // A device that loses data takes it first. One that refuses to take it says so itself.
    if (std::ranges::none_of(clues.findings.reading.runs(), isLost))
        return std::nullopt;
    const std::vector<JudgedStretch> stretches = judgedByPlace(clues, places);
    std::int64_t goodBeyond = 0;
    std::int64_t badBeyond = 0;
    for (const JudgedStretch& stretch : stretches)
        (stretch.isGood ? goodBeyond : badBeyond) += stretch.length;
    const std::int64_t least = clues.isQuick ? 2 * blockBytes : 64 * blockBytes;
    std::int64_t goodBefore = 0;
    std::int64_t badBefore = 0;
    std::optional<std::int64_t> lastGood;
    for (const JudgedStretch& stretch : stretches) {
        const bool isLimit = !stretch.isGood && lastGood && badBeyond >= least &&
                             goodBeyond * 99 <= badBeyond && badBefore * 99 <= goodBefore;
        if (isLimit)
            return CapacityRealSize{.reason = CapacityRealSize::Reason::dropsBeyond,
                                    .bytes = clues.isQuick ? *lastGood : stretch.place,
                                    .isExact = places.isTold() && stretch.place == *lastGood};
        (stretch.isGood ? goodBefore : badBefore) += stretch.length;
        (stretch.isGood ? goodBeyond : badBeyond) -= stretch.length;
        if (stretch.isGood)
            lastGood = stretch.place + stretch.length;
    }
    return std::nullopt;
}

/// Where places are not told and the file system began somewhere in the middle: a large part is lost in few
/// pieces, and so much is kept. Where a file system with checksums cannot read what was written first, and
/// can what was written last, that lies in the place of the other.
std::optional<CapacityRealSize> sizeByAmount(const RealSizeClues& clues) {
    using Reason = CapacityRealSize::Reason;
    constexpr std::size_t fewRuns = 32;
    const auto& runs = clues.findings.reading.runs();
    std::int64_t lost = 0;
    CapacityDefect longest;
    for (const CapacityDefect& run : runs) {
        if (!isLost(run))
            continue;
        lost += run.length;
        longest = run.length > longest.length ? run : longest;
    }
    const std::int64_t written = clues.findings.bytesWritten();
    if (clues.isQuick || runs.size() > fewRuns || lost * 3 < written || longest.length * 2 < lost ||
        lost == written)
        return std::nullopt;
    const std::int64_t kept = written - lost;
    const std::int64_t end = clues.findings.written.back().end();
    if (longest.kind == DefectKind::unreadable && longest.offset == 0 &&
        runs.back().offset + runs.back().length < end)
        return CapacityRealSize{.reason = Reason::wrapsAround, .bytes = kept};
    return CapacityRealSize{.reason = Reason::dropsBeyond, .bytes = clues.usedBefore + kept};
}

} // namespace

std::optional<CapacityRealSize> concludedRealSize(const RealSizeClues& clues) {
    const PlaceMap places(clues);
    if (const auto size = wrapSize(clues, places))
        return size;
    const auto size = sizeByPlace(clues, places);
    return size || places.isTold() ? size : sizeByAmount(clues);
}

} // namespace OndelCore::capacity
