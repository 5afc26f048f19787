#include "examples/host/TextColumns.h"

#include "examples/host/DisplayText.h"

#include <algorithm>

namespace examples::host {

QString textColumns(const std::vector<TextRow>& rows) {
    std::vector<qsizetype> widths;
    for (const TextRow& row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t column = 0; column < row.size(); ++column)
            widths[column] = std::max(widths[column], row[column].size());
    }
    QString text;
    for (const TextRow& row : rows) {
        QString line;
        for (std::size_t column = 0; column < row.size(); ++column)
            line += harmless(row[column]).leftJustified(widths[column] + 2);
        while (line.endsWith(QLatin1Char(' ')))
            line.chop(1);
        text += line + QLatin1Char('\n');
    }
    return text;
}

} // namespace examples::host
