#include "TarnwickKit/model/format/TextLines.h"

#include "TarnwickKit/model/format/DisplayText.h"

#include <QTextBoundaryFinder>

#include <algorithm>
#include <cstddef>

namespace TarnwickKit::model {

namespace {

bool isWide(QChar character) { return columnsOf(QString(character)) > 1; }

/// The parts of a word that may stand on lines of their own: scripts without blanks break between characters.
QStringList breakable(const QString& word) {
    if (columnsOf(word) <= word.size())
        return {word};
    QStringList pieces;
    QTextBoundaryFinder boundaries(QTextBoundaryFinder::Line, word);
    qsizetype begin = 0;
    for (qsizetype end = 0; (end = boundaries.toNextBoundary()) != -1;) {
        // Not behind a hyphen, which would tear an option apart.
        if (end < word.size() && !isWide(word[end - 1]) && !isWide(word[end]))
            continue;
        pieces << word.mid(begin, end - begin);
        begin = end;
    }
    return pieces;
}

/// Lines behind a label, which stands on the first.
QString behind(const QString& label, const QStringList& lines) {
    const QString indentation(columnsOf(label), ' ');
    return lines.isEmpty() ? QString() : label + lines.join('\n' + indentation) + '\n';
}

} // namespace

QString wrapped(const QString& label, const QString& sentence, int columns) {
    const int room = std::max(1, columns - columnsOf(label));
    QStringList lines;
    for (const QString& word : sentence.split(' ', Qt::SkipEmptyParts)) {
        QString between = " ";
        for (const QString& piece : breakable(word)) {
            const QString shown = fitted(piece, room);
            if (!lines.isEmpty() && columnsOf(lines.last() + between + shown) <= room)
                lines.last() += between + shown;
            else
                lines << shown;
            between.clear();
        }
    }
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
