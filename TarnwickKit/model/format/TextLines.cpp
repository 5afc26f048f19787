#include "TarnwickKit/model/format/TextLines.h"

#include "TarnwickKit/model/format/DisplayText.h"

#include <algorithm>
#include <cstddef>

namespace TarnwickKit::model {

QString labelled(const QString& label, const QStringList& parts, const QString& between, int columns) {
    const int room = columns - static_cast<int>(label.size());
    QStringList lines;
    for (const QString& part : parts) {
        const QString piece = fitted(part, room);
        if (!lines.isEmpty() && columnsOf(lines.last()) + between.size() + columnsOf(piece) <= room)
            lines.last() += between + piece;
        else
            lines << piece;
    }
    const QString indentation(label.size(), ' ');
    return lines.isEmpty() ? QString() : label + lines.join('\n' + indentation) + '\n';
}

QString textColumns(const std::vector<TextRow>& rows, CellsStand stand) {
    std::vector<int> widths;
    for (const TextRow& row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t column = 0; column < row.size(); ++column)
            widths[column] = std::max(widths[column], columnsOf(harmless(row[column])));
    }
    QString text;
    for (const TextRow& row : rows) {
        QString line;
        for (std::size_t column = 0; column < row.size(); ++column) {
            const QString cell = harmless(row[column]);
            const QString room(widths[column] - columnsOf(cell), QLatin1Char(' '));
            line += column > 0 && stand == CellsStand::right ? room + cell : cell + room;
            line += QLatin1StringView("  ");
        }
        while (line.endsWith(QLatin1Char(' ')))
            line.chop(1);
        text += line + QLatin1Char('\n');
    }
    return text;
}

} // namespace TarnwickKit::model
