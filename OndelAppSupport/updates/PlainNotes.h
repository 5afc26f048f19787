#pragma once

#include <QString>

namespace OndelAppSupport::updates {

/// The text of a piece of HTML, with its paragraphs and lists as lines. Nothing is downloaded or executed:
/// scripts, styles and images are dropped. In text without tags only white space changes. (QTextDocument
/// loses list marks and text between "<" and ">", shows the content of SVG and frames, asks for style sheets,
/// and takes minutes for deep nesting.)
QString plainNotes(const QString& html);

/// The text without control characters, and truncated if it is very long.
QString showableNotes(const QString& text);

} // namespace OndelAppSupport::updates
