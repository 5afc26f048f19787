#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace TarnwickKit::model {

/// How lines are drawn in characters of equal width: what fits on one, and whether there is more than ASCII.
struct LineStyle {
    int columns = 79;
    bool unicode = true;
};

/// `parts` behind a label, on as many lines of at most `columns` as they need. Parts that are too long for a
/// line are cut. Empty without parts.
QString labelled(const QString& label, const QStringList& parts, const QString& between, int columns);

/// A sentence behind a label, on as many lines of at most `columns` as it needs: it goes on below at blanks,
/// and in scripts without blanks between characters. Empty without a word.
QString wrapped(const QString& label, const QString& sentence, int columns);

/// `text` with blanks behind it, in at least `columns` columns.
QString padded(const QString& text, int columns);

using TextRow = std::vector<QString>;

/// Where the cells behind the first one stand in their columns: texts left, figures right.
enum class CellsStand { left, right };

/// Rows in columns shared by all of them, two blanks apart, each row on one line: control characters inside a
/// cell become marks.
QString textColumns(const std::vector<TextRow>& rows, CellsStand stand = CellsStand::left);

} // namespace TarnwickKit::model
