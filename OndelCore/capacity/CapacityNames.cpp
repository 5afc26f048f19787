#include "OndelCore/capacity/CapacityResult.h"

#include <algorithm>
#include <cstddef>

namespace OndelCore::capacity {

namespace {

template <class Enum, std::size_t count>
std::string_view nameOf(const std::array<std::string_view, count>& names, Enum value) {
    return names.at(static_cast<std::size_t>(value));
}

constexpr std::array<std::string_view, 6> phases{"preparing", "sampling", "writing",
                                                 "reading",   "waiting",  "readingAgain"};
constexpr std::array<std::string_view, 6> states{"untouched", "written",    "verified",
                                                 "wrong",     "unreadable", "writeFailed"};
constexpr std::array<std::string_view, allDefectKinds.size()> kinds{
    "zeros", "otherBlock", "foreign", "bitFlips", "unreadable", "writeFailed", "recovered"};
constexpr std::array<std::string_view, 2> reasons{"wrapsAround", "dropsBeyond"};
constexpr std::array<std::string_view, 3> ends{"full", "quota", "writeErrors"};

} // namespace

std::string_view rawValue(CapacityPhase phase) { return nameOf(phases, phase); }
std::string_view rawValue(BlockState state) { return nameOf(states, state); }
std::string_view rawValue(DefectKind kind) { return nameOf(kinds, kind); }
std::string_view rawValue(CapacityRealSize::Reason reason) { return nameOf(reasons, reason); }
std::string_view rawValue(EarlyEnd end) { return nameOf(ends, end); }

std::optional<DefectKind> defectKind(std::string_view rawValue) {
    const auto found = std::ranges::find(kinds, rawValue);
    return found == kinds.end()
               ? std::nullopt
               : std::optional(allDefectKinds.at(static_cast<std::size_t>(found - kinds.begin())));
}

bool CapacityResult::isProof() const {
    constexpr double mostOfIt = 0.9; // the rest may have been read ahead, or be counted late
    return !quick && !hasDefects() && written == planned && verified == planned &&
           read.shareAtDisk.value_or(1) >= mostOfIt;
}

} // namespace OndelCore::capacity
