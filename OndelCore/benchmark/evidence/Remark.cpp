#include "OndelCore/benchmark/evidence/Remark.h"

#include <algorithm>
#include <array>
#include <utility>

namespace OndelCore::benchmark {

namespace {

struct CodeFacts {
    RemarkCode code;
    std::string_view name;
    std::size_t numbers;
};

constexpr std::array codes{
    CodeFacts{RemarkCode::fromMemory, "fromMemory", 1},
    CodeFacts{RemarkCode::flushFailed, "flushFailed", 1},
    CodeFacts{RemarkCode::cachedBelow, "cachedBelow", 0},
    CodeFacts{RemarkCode::speedFell, "speedFell", 3},
    CodeFacts{RemarkCode::gotHot, "gotHot", 4},
    CodeFacts{RemarkCode::stalls, "stalls", 2},
    CodeFacts{RemarkCode::otherTraffic, "otherTraffic", 1},
    CodeFacts{RemarkCode::slowLink, "slowLink", 3},
    CodeFacts{RemarkCode::misaligned, "misaligned", 2},
    CodeFacts{RemarkCode::nearlyFull, "nearlyFull", 1},
    CodeFacts{RemarkCode::smallTest, "smallTest", 2},
    CodeFacts{RemarkCode::powerSaving, "powerSaving", 1},
    CodeFacts{RemarkCode::notObservable, "notObservable", 0},
    CodeFacts{RemarkCode::inMemory, "inMemory", 0},
    CodeFacts{RemarkCode::fileOnDisk, "fileOnDisk", 0},
    CodeFacts{RemarkCode::virtualDisk, "virtualDisk", 0},
    CodeFacts{RemarkCode::compresses, "compresses", 0},
    CodeFacts{RemarkCode::copiesOnWrite, "copiesOnWrite", 1},
    CodeFacts{RemarkCode::journalsData, "journalsData", 0},
    CodeFacts{RemarkCode::throughPortal, "throughPortal", 0},
};

constexpr std::array<std::pair<RemarkWeight, std::string_view>, 3> weights{
    {{RemarkWeight::note, "note"}, {RemarkWeight::caution, "caution"}, {RemarkWeight::invalid, "invalid"}}};

} // namespace

std::string_view rawValue(RemarkCode code) { return std::ranges::find(codes, code, &CodeFacts::code)->name; }

std::string_view rawValue(RemarkWeight weight) {
    return std::ranges::find(weights, weight, [](const auto& pair) { return pair.first; })->second;
}

std::optional<RemarkCode> remarkCode(std::string_view rawValue) {
    const auto* found = std::ranges::find(codes, rawValue, &CodeFacts::name);
    return found == codes.end() ? std::nullopt : std::optional(found->code);
}

std::optional<RemarkWeight> remarkWeight(std::string_view rawValue) {
    const auto* found = std::ranges::find(weights, rawValue, [](const auto& pair) { return pair.second; });
    return found == weights.end() ? std::nullopt : std::optional(found->first);
}

std::size_t numbersOf(RemarkCode code) { return std::ranges::find(codes, code, &CodeFacts::code)->numbers; }

} // namespace OndelCore::benchmark
