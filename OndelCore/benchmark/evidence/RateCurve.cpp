#include "OndelCore/benchmark/evidence/RateCurve.h"

#include <algorithm>
#include <cmath>

namespace OndelCore::benchmark {

namespace {

constexpr double step = 0.2 - 1e-6; // seconds; less than the times of its samples may be off by rounding
constexpr std::size_t leastLevelSamples = 5; // of each level
constexpr double leastSecondsBefore = 1;
constexpr double leastSecondsAfter = 3;
constexpr double leastShareAfter = 0.2; // of the time: a shorter end may be a dip that goes by
constexpr double mostOfBefore = 0.7;
constexpr double mostSpread = 0.3; // of the fall; within a level. Wandering rates have more
constexpr double mostTrend = 0.5;  // of the fall; within a level. A ramp's halves have all of it

/// Where two levels fit best: the cut with the least squared deviation from the rates before and after it.
/// Fails: 0 if no cut leaves enough on both sides.
std::size_t bestCut(const RateCurve& curve) {
    const std::size_t all = curve.size();
    const double total = curve.duration(0, all);
    std::size_t best = 0;
    double most = -1;
    for (std::size_t cut = leastLevelSamples; cut + leastLevelSamples <= all; ++cut) {
        const double before = curve.duration(0, cut);
        const double after = curve.duration(cut, all);
        if (before < leastSecondsBefore || after < std::max(leastSecondsAfter, leastShareAfter * total))
            continue;
        // The deviation is least where the levels' own part of it is largest.
        const double distance = curve.rate(0, cut) - curve.rate(cut, all);
        const double explained = before * after * distance * distance;
        if (explained > most) {
            most = explained;
            best = cut;
        }
    }
    return best;
}

} // namespace

RateCurve::RateCurve(const std::vector<ThroughputSample>& samples) {
    double last = 0;
    for (const ThroughputSample& sample : samples) {
        const double bytes = m_bytes.back() + (sample.elapsed - last) * sample.bytesPerSecond;
        if (!(sample.elapsed > last) || !(sample.bytesPerSecond >= 0) || !std::isfinite(bytes)) {
            m_ends.clear();
            m_bytes.assign(1, 0);
            return;
        }
        last = sample.elapsed;
        m_ends.push_back(last);
        m_bytes.push_back(bytes);
    }
}

std::size_t RateCurve::firstFrom(double time) const {
    std::size_t interval = 0;
    while (interval < size() && beginOf(interval) < time)
        ++interval;
    return interval;
}

std::size_t RateCurve::endOfStep(std::size_t begin, std::size_t end) const {
    std::size_t next = begin + 1;
    // What would be left and too short for a step of its own goes with this one.
    while (next < end && (duration(begin, next) < step || duration(next, end) < step))
        ++next;
    return next;
}

double RateCurve::spread(std::size_t first, std::size_t end) const {
    const double middle = rate(first, end);
    double squares = 0;
    for (std::size_t begin = first; begin < end;) {
        const std::size_t next = endOfStep(begin, end);
        const double distance = rate(begin, next) - middle;
        squares += distance * distance * duration(begin, next);
        begin = next;
    }
    return std::sqrt(squares / duration(first, end));
}

double RateCurve::trend(std::size_t first, std::size_t end) const {
    const double whole = duration(first, end);
    const double middle = beginOf(first) + whole / 2;
    double moment = 0;
    for (std::size_t interval = first; interval < end; ++interval)
        moment += bytes(interval, interval + 1) * ((beginOf(interval) + endOf(interval)) / 2 - middle);
    // The slope of the line is the moment over whole^3 / 12.
    return moment * 12 / (whole * whole);
}

std::optional<SpeedFall> speedFall(const RateCurve& curve) {
    const std::size_t all = curve.size();
    const std::size_t cut = all < 2 * leastLevelSamples ? 0 : bestCut(curve);
    if (cut == 0)
        return std::nullopt;
    const SpeedFall fall{curve.rate(0, cut), curve.rate(cut, all), curve.bytes(0, cut)};
    const double depth = fall.before - fall.after;
    const bool isDeep = fall.before > 0 && fall.after <= mostOfBefore * fall.before;
    const bool isCalm =
        curve.spread(0, cut) <= mostSpread * depth && curve.spread(cut, all) <= mostSpread * depth;
    const bool isLevel = std::abs(curve.trend(0, cut)) <= mostTrend * depth &&
                         std::abs(curve.trend(cut, all)) <= mostTrend * depth;
    return isDeep && isCalm && isLevel ? std::optional(fall) : std::nullopt;
}

} // namespace OndelCore::benchmark
