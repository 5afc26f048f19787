#pragma once

#include "TarnwickKit/model/format/TextLines.h"

namespace TarnwickHost {

using TarnwickKit::model::LineStyle;
using TarnwickKit::model::TextRow;

/// How the terminal behind `descriptor` draws lines, or one with 80 columns where none is. Counts one column
/// less than it has: a character in the last one would wrap the line in some. Needs LC_CTYPE to be the
/// user's.
LineStyle lineStyle(int descriptor);

} // namespace TarnwickHost
