#include "examples/host/TextColumns.h"

#include <algorithm>

namespace examples::host {

namespace {

QString onOneLine(QString text) {
    for (QChar& character : text)
        if (character.category() == QChar::Other_Control || character.category() == QChar::Separator_Line ||
            character.category() == QChar::Separator_Paragraph)
            character = QChar::ReplacementCharacter;
    return text;
}

} // namespace

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
            line += onOneLine(row[column]).leftJustified(widths[column] + 2);
        while (line.endsWith(QLatin1Char(' ')))
            line.chop(1);
        text += line + QLatin1Char('\n');
    }
    return text;
}

} // namespace examples::host
