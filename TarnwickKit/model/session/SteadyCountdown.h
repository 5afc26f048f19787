#pragma once

#include "OndelCore/Export.h"

#include <deque>
#include <optional>

namespace TarnwickKit::model {

/// Makes of changing estimates a figure that is steady enough to read: none until they agree for some
/// seconds, then a countdown. Only estimates that agree on something clearly else correct it.
///
/// Units: seconds; `now` on one clock that never goes back.
class ONDEL_KIT SteadyCountdown {
public:
    void reset() { *this = {}; }
    /// An estimate of the time left.
    void note(double now, double left);
    std::optional<double> left(double now) const;

private:
    struct Note {
        double time = 0;
        double end = 0;
    };

    std::deque<Note> m_notes;
    std::optional<double> m_end;
};

} // namespace TarnwickKit::model
