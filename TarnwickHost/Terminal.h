#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace TarnwickHost {

/// How a terminal draws: what fits on one line, and whether it knows more than ASCII.
struct LineStyle {
    int columns = 80;
    bool unicode = true;
};

/// That of the terminal behind `descriptor`, or of one with 80 columns where none is. Counts one column less
/// than it has: a character in the last one would wrap the line in some. Needs LC_CTYPE to be the user's.
LineStyle lineStyle(int descriptor);

/// `parts` behind a label, on as many lines of at most `columns` as they need. Parts that are too long for a
/// line are cut. Empty without parts.
QString labelled(const QString& label, const QStringList& parts, const QString& between, int columns);

using TextRow = std::vector<QString>;

/// Where the cells behind the first one stand in their columns: texts left, figures right.
enum class CellsStand { left, right };

/// Rows in columns shared by all of them, two blanks apart, each row on one line: control characters inside a
/// cell become marks.
QString textColumns(const std::vector<TextRow>& rows, CellsStand stand = CellsStand::left);

} // namespace TarnwickHost
