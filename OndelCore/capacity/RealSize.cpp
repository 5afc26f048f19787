#include "OndelCore/capacity/RealSize.h"

#include "OndelCore/capacity/BlockPattern.h"

#include <algorithm>
#include <iterator>
#include <map>

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

/// How far from its place each content was found, with the bytes for each distance; positive: what was
/// written further on lies here.
Distances distancesOf(const RealSizeClues& clues, const PlaceMap& places) {
    Distances bytes;
    for (const CapacityDefect& run : clues.findings.reading.runs()) {
        if (!run.holds)
            continue;
        for (std::int64_t done = 0; done < run.length;) {
            const auto here = places.at(run.offset + done, run.length - done);
            const auto there = here ? places.at(*run.holds + done, here->length) : std::nullopt;
            if (there && (bytes.size() < mostDistances || bytes.contains(there->offset - here->offset)))
                bytes[there->offset - here->offset] += there->length;
            done += there ? there->length : blockBytes;
        }
    }
    return bytes;
}

std::optional<CapacityRealSize> wrapSize(const RealSizeClues& clues, const PlaceMap& places) {
    const Distances distances = distancesOf(clues, places);
    std::int64_t forward = 0;
    std::int64_t backward = 0;
    for (const auto& [distance, bytes] : distances)
        (distance > 0 ? forward : backward) += bytes;
    const std::int64_t least = clues.isQuick ? blockBytes : 64 * blockBytes;
    if (forward < least || backward * 20 > forward)
        return std::nullopt;
    // The shortest distance that is no accident; where a device wraps several times, longer ones are its
    // multiples.
    const auto isUsual = [forward](const auto& entry) {
        return entry.first > 0 && entry.second * 20 >= forward;
    };
    const auto shortest = std::ranges::find_if(distances, isUsual);
    if (shortest == distances.end())
        return std::nullopt;
    std::int64_t fitting = 0;
    for (const auto& [distance, bytes] : distances)
        if (distance > 0 && distance % shortest->first == 0)
            fitting += bytes;
    return CapacityRealSize{.reason = CapacityRealSize::Reason::wrapsAround,
                            .bytes = shortest->first,
                            .isExact = places.isTold() && fitting * 20 >= forward * 19};
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
            addPlaced(stretches, places, {from, run->offset - from}, true);
            addPlaced(stretches, places, {run->offset, run->length}, run->kind == DefectKind::bitFlips);
            from = run->offset + run->length;
        }
        addPlaced(stretches, places, {from, written.end() - from}, true);
    }
    for (const CapacityDefect& failed : clues.findings.writing.runs())
        addPlaced(stretches, places, {failed.offset, failed.length}, false);
    std::ranges::sort(stretches, {}, &JudgedStretch::place);
    return stretches;
}

/// The place before which (nearly) all is good and from which on (nearly) all is bad.
std::optional<CapacityRealSize> dropSize(const RealSizeClues& clues, const PlaceMap& places) {
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

} // namespace

std::optional<CapacityRealSize> concludedRealSize(const RealSizeClues& clues) {
    const PlaceMap places(clues);
    if (const auto size = wrapSize(clues, places))
        return size;
    return dropSize(clues, places);
}

} // namespace OndelCore::capacity
