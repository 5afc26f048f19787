#pragma once

#include <QString>

namespace OndelAppSupport::updates {

/// The words of a piece of HTML, with its paragraphs and lists as lines. Nothing in it is loaded, run or
/// kept: scripts, styles and pictures are left out. Text without a tag passes as it is but for its white
/// space.
QString plainNotes(const QString& html);

/// The text fit to be shown: no control characters, and of a very long one only the beginning.
QString showableNotes(const QString& text);

} // namespace OndelAppSupport::updates
