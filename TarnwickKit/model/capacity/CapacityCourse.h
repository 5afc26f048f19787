#pragma once

#include "OndelCore/Export.h"
#include "OndelCore/capacity/CapacityPlan.h"
#include "OndelCore/capacity/CapacityProgress.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <vector>

namespace TarnwickKit::model {

/// What a check's progress events tell of the running phase and of the whole check.
/// Threads: one at a time. Units: bytes, seconds, bytes per second.
class ONDEL_KIT CapacityCourse {
public:
    using Phase = OndelCore::capacity::CapacityPhase;

    /// A rate at a place of the range, told in shares of it: 0 is its beginning and 1 its end.
    struct Point {
        double place = 0;
        double rate = 0;

        bool operator==(const Point&) const = default;
    };
    /// A curve has so many points at most.
    static constexpr std::size_t places = 512;

    void begin(const OndelCore::capacity::CapacityPlan& plan);
    void take(const OndelCore::capacity::CapacityProgress& progress);

    /// The last event; absent before the first.
    const std::optional<OndelCore::capacity::CapacityProgress>& last() const { return m_last; }
    /// Over the last seconds; absent outside of the phases that move data.
    std::optional<double> rate() const;
    /// The share of the whole check that is done, 0 to 1; it never falls. Absent while its size is unknown.
    std::optional<double> fraction() const { return m_fraction; }
    /// Until the end of the check. A pass that is to come is taken to be as fast as the running one.
    std::optional<double> timeLeft() const;
    /// The mean rates along the range, of the pass that writes and of the last one that reads.
    std::vector<Point> writeRates() const { return pointsOf(m_writing); }
    std::vector<Point> readRates() const { return pointsOf(m_reading); }

private:
    struct Mean {
        double sum = 0;
        double count = 0;
    };
    struct Mark {
        double elapsed = 0;
        std::int64_t done = 0;
    };

    static std::vector<Point> pointsOf(const std::vector<Mean>& means);
    double passes() const { return m_again ? 3 : 2; }
    static double passesBefore(Phase phase);
    void addRate(const OndelCore::capacity::CapacityProgress& progress);

    std::optional<std::chrono::seconds> m_again;
    std::optional<OndelCore::capacity::CapacityProgress> m_last;
    std::deque<Mark> m_marks; ///< the running phase's of the last seconds
    std::vector<Mean> m_writing;
    std::vector<Mean> m_reading;
    std::optional<double> m_fraction;
};

} // namespace TarnwickKit::model
