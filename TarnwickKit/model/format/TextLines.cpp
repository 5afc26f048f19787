#include "TarnwickKit/model/format/TextLines.h"

#include "TarnwickKit/model/format/DisplayText.h"

#include <QTextBoundaryFinder>

#include <algorithm>
#include <cstddef>

namespace TarnwickKit::model {

namespace {

/// Of Chinese or Japanese, which have no blanks between words.
bool isIdeographic(QChar character) {
    return columnsOf(QString(character)) > 1 && character.script() != QChar::Script_Hangul;
}

QString withoutEnd(QString line) {
    while (line.endsWith(QLatin1Char(' ')))
        line.chop(1);
    return line;
}

/// Lines behind a label, which stands on the first.
QString behind(const QString& label, const QStringList& lines) {
    const QString indentation(columnsOf(label), ' ');
    return lines.isEmpty() ? QString() : label + lines.join('\n' + indentation) + '\n';
}

} // namespace

QStringList wrapped(const QString& text, int columns) {
    QTextBoundaryFinder boundaries(QTextBoundaryFinder::Line, text);
    const auto mayEnd = [&](qsizetype end) {
        if (end == text.size() || text[end - 1] == QLatin1Char(' '))
            return true;
        boundaries.setPosition(end);
        return (isIdeographic(text[end - 1]) || isIdeographic(text[end])) && boundaries.isAtBoundary();
    };
    QStringList lines;
    QString line;
    qsizetype begin = 0;
    for (qsizetype end = 1; end <= text.size(); ++end) {
        if (!mayEnd(end))
            continue;
        const QString piece = text.mid(begin, end - begin);
        if (!line.isEmpty() && columnsOf(withoutEnd(line + piece)) > columns) {
            lines << withoutEnd(line);
            line.clear();
        }
        line += piece;
        begin = end;
    }
    return lines << withoutEnd(line);
}

QString wrapped(const QString& label, const QString& sentence, int columns) {
    const int room = std::max(1, columns - columnsOf(label));
    QStringList lines = wrapped(sentence.simplified(), room);
    for (QString& line : lines)
        line = fitted(line, room);
    return behind(label, lines);
}

QString labelled(const QString& label, const QStringList& parts, const QString& between, int columns) {
    const int room = columns - columnsOf(label);
    QStringList lines;
    for (const QString& part : parts) {
        const QString piece = fitted(part, room);
        if (!lines.isEmpty() && columnsOf(lines.last()) + between.size() + columnsOf(piece) <= room)
            lines.last() += between + piece;
        else
            lines << piece;
    }
    return behind(label, lines);
}

QString padded(const QString& text, int columns) {
    return text + QString(std::max(0, columns - columnsOf(text)), ' ');
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
            const QString cell = isolated(harmless(row[column]));
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
