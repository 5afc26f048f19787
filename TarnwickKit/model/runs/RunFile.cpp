#include "TarnwickKit/model/runs/RunFile.h"

#include "OndelCore/platform/volumes/PathFacts.h"
#include "TarnwickKit/model/runs/HistoryStore.h"
#include "TarnwickKit/model/runs/RunCodec.h"

#include <algorithm>
#include <chrono>

namespace TarnwickKit::model {

namespace platform = OndelCore::platform;

namespace {

using Milliseconds = std::chrono::milliseconds;
using Clock = std::chrono::steady_clock;

/// The time for all files that do not answer together, and for each one after that.
constexpr Milliseconds patienceWithAll = std::chrono::seconds(10);
constexpr Milliseconds leastPatience(100);

std::optional<RunRecord> decodedFile(const std::filesystem::path& file) {
    const auto content = readRunFile(file);
    return content ? decodeRun(*content) : std::nullopt;
}

} // namespace

ImportedRuns ImportedRuns::from(const std::vector<std::filesystem::path>& files) {
    ImportedRuns imported;
    Milliseconds patience = patienceWithAll;
    for (const std::filesystem::path& file : files) {
        const auto begin = Clock::now();
        const bool answers = platform::pathFacts(file, platform::PathQuestion::place,
                                                 {.patience = std::max(patience, leastPatience)})
                                 .has_value();
        if (!answers)
            patience -= std::chrono::duration_cast<Milliseconds>(Clock::now() - begin);
        const auto run = answers ? decodedFile(file) : std::nullopt;
        if (!run) {
            imported.unreadable.push_back(file);
            continue;
        }
        imported.append({.runs = {*run}, .last = run, .readable = 1});
    }
    return imported;
}

void ImportedRuns::append(ImportedRuns later) {
    for (RunRecord& run : later.runs)
        if (std::ranges::find(runs, run.id, &RunRecord::id) == runs.end())
            runs.push_back(std::move(run));
    if (runs.size() > HistoryStore::limit)
        runs.erase(runs.begin(), runs.end() - HistoryStore::limit);
    if (later.last)
        last = std::move(later.last);
    readable += later.readable;
    unreadable.insert(unreadable.end(), later.unreadable.begin(), later.unreadable.end());
}

} // namespace TarnwickKit::model
