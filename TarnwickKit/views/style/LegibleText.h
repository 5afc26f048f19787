#pragma once

#include <QString>

namespace TarnwickKit::views {

/// Whether a character breaks a line or changes the reading direction of the text around it.
bool disturbsLine(QChar character);

/// A text from outside, made safe to show in a line: the first 300 characters, without those that disturb the
/// line. A run file can hold a title of megabytes, which Qt would take seconds to lay out.
QString legible(const QString& text);
/// The same of a path, which is shown whole.
QString legiblePath(const QString& path);

/// `text` for a line in which other text follows: right-to-left text is isolated, so that it does not reorder
/// the figures behind it.
QString keptApart(const QString& text);

} // namespace TarnwickKit::views
