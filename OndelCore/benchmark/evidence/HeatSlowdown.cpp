#include "OndelCore/benchmark/evidence/HeatSlowdown.h"

#include <algorithm>
#include <vector>

namespace OndelCore::benchmark {

namespace {

constexpr double coolest = 40;           // degrees Celsius; a lower limit is a sensor's nonsense
constexpr double hottest = 125;          // of a reading
constexpr double margin = 5;             // below the limit, where drives begin to slow down
constexpr double leastSecondsBeside = 3; // before and after that moment
constexpr double recentSeconds = 10;
constexpr double leastFall = 0.2;

struct Reading {
    double elapsed; ///< seconds from the test's start
    double celsius;
};

std::vector<Reading> readingsDuring(const platform::Circumstances& circumstances,
                                    const TestEvidence& evidence) {
    std::vector<Reading> readings;
    for (const platform::CircumstanceSample& sample : circumstances.samples)
        if (sample.celsius && *sample.celsius > 0 && *sample.celsius < hottest &&
            sample.elapsed >= evidence.began && sample.elapsed <= evidence.ended)
            readings.push_back({sample.elapsed - evidence.began, *sample.celsius});
    return readings;
}

/// Also against the time right before: what was slow for another reason by then did not become so by heat.
std::optional<double> fallAfter(double moment, const RateCurve& curve) {
    const std::size_t all = curve.size();
    const std::size_t cut = curve.firstFrom(moment);
    const std::size_t recent = curve.firstFrom(moment - recentSeconds);
    if (recent >= cut || cut >= all || curve.duration(0, cut) < leastSecondsBeside ||
        curve.duration(cut, all) < leastSecondsBeside)
        return std::nullopt;
    const double before = std::min(curve.rate(0, cut), curve.rate(recent, cut));
    const double after = curve.rate(cut, all);
    return before > 0 && after <= (1 - leastFall) * before ? std::optional(1 - after / before) : std::nullopt;
}

} // namespace

std::optional<HeatSlowdown> heatSlowdown(const platform::Circumstances& circumstances,
                                         const TestEvidence& evidence, const RateCurve& curve) {
    const auto limit = circumstances.maxCelsius ? circumstances.maxCelsius : circumstances.criticalCelsius;
    if (!limit || !(*limit >= coolest))
        return std::nullopt;
    const std::vector<Reading> readings = readingsDuring(circumstances, evidence);
    const auto isHot = [&](const Reading& reading) { return reading.celsius >= *limit - margin; };
    const auto first = std::ranges::find_if(readings, isHot);
    if (first == readings.begin() || first == readings.end())
        return std::nullopt;
    // A drive that rests for another reason cools down.
    const bool staysHot = 2 * std::count_if(first, readings.end(), isHot) >= readings.end() - first;
    const auto fall = staysHot ? fallAfter(first->elapsed, curve) : std::nullopt;
    if (!fall)
        return std::nullopt;
    return HeatSlowdown{first->celsius, first->elapsed, *limit, *fall};
}

} // namespace OndelCore::benchmark
