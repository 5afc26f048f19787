#include "OndelCore/capacity/DefectList.h"

#include "OndelCore/capacity/BlockPattern.h"

#include <algorithm>

namespace OndelCore::capacity {

namespace {

/// How a run goes on, if it does: its blocks hold what follows elsewhere, or all the same.
enum class Continuation { none, following, repeating };

Continuation continuationOf(const CapacityDefect& run, const CapacityDefect& next) {
    if (run.offset + run.length != next.offset || run.kind != next.kind ||
        run.isOnlyLater != next.isOnlyLater || run.error != next.error)
        return Continuation::none;
    if (!run.holds || (!run.repeats && *run.holds + run.length == next.holds))
        return Continuation::following;
    return run.holds == next.holds && (run.repeats || run.length == blockBytes) ? Continuation::repeating
                                                                                : Continuation::none;
}

} // namespace

void DefectList::add(const CapacityDefect& defect) {
    m_bytes.at(static_cast<std::size_t>(defect.kind)) += defect.length;
    const bool isKept = m_furtherRuns == 0;
    const Continuation continuation = m_last.length > 0 ? continuationOf(m_last, defect) : Continuation::none;
    if (continuation != Continuation::none) {
        m_last.length += defect.length;
        m_last.flippedBits += defect.flippedBits;
        m_last.repeats = continuation == Continuation::repeating;
        if (isKept)
            m_runs.back() = m_last;
        return;
    }
    m_last = defect;
    if (isKept && m_runs.size() < mostKept)
        m_runs.push_back(defect);
    else
        ++m_furtherRuns;
}

bool DefectList::covers(std::int64_t offset) const {
    const auto after = std::ranges::upper_bound(m_runs, offset, {}, &CapacityDefect::offset);
    if (after == m_runs.begin())
        return false;
    const CapacityDefect& run = *std::prev(after);
    if (offset < run.offset + run.length)
        return run.kind != DefectKind::recovered; // what is in such a run was good
    return m_furtherRuns > 0 && after == m_runs.end();
}

void enterDefects(CapacityResult& result, const DefectList& writing, const DefectList& reading,
                  const DefectList& again) {
    constexpr std::size_t mostShown = 100;
    for (const DefectList* list : {&writing, &reading, &again}) {
        result.defects.insert(result.defects.end(), list->runs().begin(), list->runs().end());
        result.furtherDefects += list->furtherRuns();
        for (const DefectKind kind : allDefectKinds)
            result.bytesByKind.at(static_cast<std::size_t>(kind)) += list->bytesOf(kind);
    }
    std::ranges::stable_sort(result.defects, {}, &CapacityDefect::offset);
    if (result.defects.size() > mostShown) {
        result.furtherDefects += static_cast<std::int64_t>(result.defects.size() - mostShown);
        result.defects.resize(mostShown);
        result.defects.shrink_to_fit();
    }
    result.unreadable = result.bytesOf(DefectKind::unreadable);
    result.writeFailed = result.bytesOf(DefectKind::writeFailed);
    result.recovered = result.bytesOf(DefectKind::recovered);
    result.wrong = result.bytesOf(DefectKind::zeros) + result.bytesOf(DefectKind::otherBlock) +
                   result.bytesOf(DefectKind::foreign) + result.bytesOf(DefectKind::bitFlips);
    result.verified = result.written - result.wrong - result.unreadable;
}

} // namespace OndelCore::capacity
