#pragma once

namespace TarnwickHost {

/// How a terminal draws: what fits on one line, and whether it knows more than ASCII.
struct LineStyle {
    int columns = 80;
    bool unicode = true;
};

/// That of the terminal behind `descriptor`, or of one with 80 columns where none is. Counts one column less
/// than it has: a character in the last one would wrap the line in some. Needs LC_CTYPE to be the user's.
LineStyle lineStyle(int descriptor);

} // namespace TarnwickHost
