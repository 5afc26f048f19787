#pragma once

#include <QString>

#include <vector>

namespace TarnwickHost {

using TextRow = std::vector<QString>;

/// Where the cells behind the first one stand in their columns: texts left, figures right.
enum class CellsStand { left, right };

/// Rows in columns shared by all of them, two blanks apart, each row on one line: control characters inside a
/// cell become marks.
QString textColumns(const std::vector<TextRow>& rows, CellsStand stand = CellsStand::left);

} // namespace TarnwickHost
