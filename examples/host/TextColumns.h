#pragma once

#include <QString>

#include <vector>

namespace examples::host {

using TextRow = std::vector<QString>;

/// Rows in columns that all begin at the same place, two blanks apart, each row on one line: control
/// characters inside a cell become marks.
QString textColumns(const std::vector<TextRow>& rows);

} // namespace examples::host
