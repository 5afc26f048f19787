#pragma once

#include <QByteArray>
#include <QString>

#include <string>
#include <string_view>
#include <vector>

namespace TarnwickKit::model {

/// `text` without characters that a terminal would interpret: control characters, line breaks, invisible
/// direction marks and lone surrogates become replacement characters.
QString harmless(const QString& text);

/// A name, a path or a cell of a table beside others, which must be harmless. In a language that is written
/// from right to left, invisible marks around it keep its own order.
QString isolated(const QString& text);

/// JSON with the same meaning, in UTF-8, whose texts hold such characters as escapes only.
QByteArray harmlessJson(const QByteArray& json);

/// The number of columns that a terminal needs for `text` at most: wide characters take two, combining ones
/// none (UAX #11). Some terminals draw joined emoji narrower.
int columnsOf(const QString& text);

/// The harmless form of `text` in at most `columns` columns (1 or more). It is cut with an ellipsis between
/// two characters as people see them (UAX #29). A letter with too many accents becomes one mark.
QString fitted(const QString& text, int columns);

/// One sentence about files that could not be opened. `names`: one or more, of any bytes. `isRun`: they are
/// named like runs.
QString refusal(const std::vector<std::string>& names, bool isRun);

/// What a person typed, in quotes and on one line: its harmless form, with marks for invalid UTF-8, and cut
/// if it is very long.
std::string quoted(std::string_view typed);

} // namespace TarnwickKit::model
