#include "OndelCore/capacity/DefectList.h"

#include <algorithm>
#include <numeric>

namespace OndelCore::capacity {

namespace {

bool isContinuedBy(const CapacityDefect& run, const CapacityDefect& next) {
    if (run.offset + run.length != next.offset || run.kind != next.kind ||
        run.isOnlyLater != next.isOnlyLater || run.error != next.error)
        return false;
    return !run.holds || *run.holds + run.length == next.holds;
}

void prolong(CapacityDefect& run, const CapacityDefect& by) {
    run.length += by.length;
    run.flippedBits += by.flippedBits;
}

} // namespace

void DefectList::add(const CapacityDefect& defect) {
    m_bytes.at(static_cast<std::size_t>(defect.kind)) += defect.length;
    const bool isKept = m_furtherRuns == 0;
    if (m_last.length > 0 && isContinuedBy(m_last, defect)) {
        prolong(m_last, defect);
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

std::int64_t DefectList::bytes() const {
    return std::accumulate(m_bytes.begin(), m_bytes.end(), std::int64_t{0});
}

bool DefectList::covers(std::int64_t offset) const {
    const auto after = std::ranges::upper_bound(m_runs, offset, {}, &CapacityDefect::offset);
    if (after == m_runs.begin())
        return false;
    const CapacityDefect& run = *std::prev(after);
    if (offset < run.offset + run.length)
        return true;
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
    result.wrong = reading.bytes() + again.bytes() - result.unreadable;
    result.verified = result.written - result.wrong - result.unreadable;
}

} // namespace OndelCore::capacity
