#pragma once

#include <QString>

namespace TarnwickKit::views {

/// What breaks a line, or turns the reading direction so that a text reads as another or turns what follows
/// it.
bool disturbsLine(QChar character);

/// A text from outside, fit to stand in a line: its beginning, since a run file can hold megabytes of a title
/// over which the toolkit would think for seconds, without what disturbs the line.
QString legible(const QString& text);

/// `text` for a line in which others follow: one that runs from right to left does not take their figures
/// along.
QString keptApart(const QString& text);

} // namespace TarnwickKit::views
