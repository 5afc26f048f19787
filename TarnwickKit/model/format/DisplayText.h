#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace TarnwickKit::model {

/// `text` without anything that a terminal would obey instead of showing: control characters and escapes,
/// line breaks, invisible ones that turn the direction of writing, and halves of characters become marks.
QString harmless(const QString& text);

/// How many columns a terminal needs for `text` at most: wide characters take two, combining ones none (UAX
/// #11). Some terminals draw joined emoji narrower.
int columnsOf(const QString& text);

/// The harmless form of `text`, cut with an ellipsis between two characters as people see them (UAX #29) to
/// take at most `columns`, which is 1 or more. A heap of accents on one letter becomes one mark.
QString fitted(const QString& text, int columns);

/// What a person typed, in quotes and on one line: its harmless form, bytes that are no UTF-8 as marks, and
/// cut where it is very long.
std::string quoted(std::string_view typed);

} // namespace TarnwickKit::model
