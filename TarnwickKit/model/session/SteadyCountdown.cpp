#include "TarnwickKit/model/session/SteadyCountdown.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace TarnwickKit::model {

void SteadyCountdown::note(double now, double left) {
    constexpr double span = 4; ///< for which estimates have to agree
    constexpr std::size_t fewest = 3;
    m_notes.push_back({now, now + left});
    while (m_notes.size() > fewest && m_notes[1].time <= now - span)
        m_notes.pop_front();
    if (m_notes.size() < fewest || m_notes.front().time > now - span)
        return;
    const auto [first, last] = std::ranges::minmax(m_notes, {}, &Note::end);
    const double middle = (first.end + last.end) / 2;
    const double remaining = std::max(0.0, middle - now);
    const auto isAbout = [&](double end, double share) {
        return std::abs(end - middle) <= std::max(2.0, share * remaining);
    };
    const bool agree = isAbout(last.end, 0.1);
    if (agree && (!m_end || !isAbout(*m_end, 0.25)))
        m_end = middle;
    else if (!agree && m_end && !isAbout(*m_end, 0.5))
        m_end.reset();
}

std::optional<double> SteadyCountdown::left(double now) const {
    return m_end ? std::optional(std::max(0.0, *m_end - now)) : std::nullopt;
}

} // namespace TarnwickKit::model
