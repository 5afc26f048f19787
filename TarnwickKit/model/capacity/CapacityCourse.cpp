#include "TarnwickKit/model/capacity/CapacityCourse.h"

#include <algorithm>

namespace TarnwickKit::model {

using OndelCore::capacity::CapacityPhase;
using OndelCore::capacity::CapacityPlan;
using OndelCore::capacity::CapacityProgress;

namespace {

constexpr double rateSpan = 8; ///< seconds

bool isMovingData(CapacityPhase phase) {
    return phase != CapacityPhase::preparing && phase != CapacityPhase::waiting;
}

bool isReading(CapacityPhase phase) {
    return phase == CapacityPhase::reading || phase == CapacityPhase::readingAgain;
}

} // namespace

void CapacityCourse::begin(const CapacityPlan& plan) {
    *this = {};
    m_again = plan.again;
}

void CapacityCourse::take(const CapacityProgress& progress) {
    if (!m_last || m_last->phase != progress.phase) {
        m_marks.clear();
        if (isReading(progress.phase))
            m_reading.clear();
    }
    m_last = progress;
    m_marks.push_back({progress.elapsed, progress.done});
    while (m_marks.size() > 2 && m_marks[1].elapsed <= progress.elapsed - rateSpan)
        m_marks.pop_front();
    if (isMovingData(progress.phase))
        addRate(progress);
    if (progress.total <= 0)
        return;
    const double share =
        std::clamp(static_cast<double>(progress.done) / static_cast<double>(progress.total), 0.0, 1.0);
    const double done = passesBefore(progress.phase) + (isMovingData(progress.phase) ? share : 0);
    m_fraction = std::max(m_fraction.value_or(0), done / passes());
}

void CapacityCourse::addRate(const CapacityProgress& progress) {
    if (!progress.cells || !(progress.bytesPerSecond > 0))
        return;
    const auto range =
        static_cast<double>(progress.cells->cellBytes) * static_cast<double>(progress.cells->states.size());
    auto& means = isReading(progress.phase) ? m_reading : m_writing;
    means.resize(places);
    const double place = range > 0 ? std::clamp(static_cast<double>(progress.offset) / range, 0.0, 1.0) : 0;
    Mean& mean = means[std::min(places - 1, static_cast<std::size_t>(place * places))];
    mean.sum += progress.bytesPerSecond;
    mean.count += 1;
}

std::vector<CapacityCourse::Point> CapacityCourse::pointsOf(const std::vector<Mean>& means) {
    std::vector<Point> points;
    for (std::size_t index = 0; index < means.size(); ++index)
        if (means[index].count > 0)
            points.push_back({(static_cast<double>(index) + 0.5) / static_cast<double>(places),
                              means[index].sum / means[index].count});
    return points;
}

std::optional<double> CapacityCourse::rate() const {
    if (!m_last || !isMovingData(m_last->phase) || m_marks.size() < 2)
        return std::nullopt;
    const double seconds = m_marks.back().elapsed - m_marks.front().elapsed;
    if (!(seconds > 0))
        return std::nullopt;
    return static_cast<double>(m_marks.back().done - m_marks.front().done) / seconds;
}

double CapacityCourse::passesBefore(Phase phase) {
    switch (phase) {
    case Phase::preparing:
    case Phase::sampling:
    case Phase::writing:
        return 0;
    case Phase::reading:
        return 1;
    case Phase::waiting:
    case Phase::readingAgain:
        break;
    }
    return 2;
}

std::optional<double> CapacityCourse::timeLeft() const {
    const auto now = rate();
    if (!m_last || m_last->total <= 0 || !now || !(*now > 0))
        return std::nullopt;
    const auto total = static_cast<double>(m_last->total);
    const double left = std::max(0.0, total - static_cast<double>(m_last->done));
    const bool pauses = m_again && m_last->phase != Phase::readingAgain;
    return (left + total * (passes() - 1 - passesBefore(m_last->phase))) / *now +
           (pauses ? static_cast<double>(m_again->count()) : 0);
}

} // namespace TarnwickKit::model
