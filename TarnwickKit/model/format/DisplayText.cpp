#include "TarnwickKit/model/format/DisplayText.h"

#include "TarnwickKit/model/language/Language.h"

#include <QCoreApplication>
#include <QList>
#include <QTextBoundaryFinder>

#include <unicode/uchar.h>

namespace TarnwickKit::model {

using namespace Qt::StringLiterals;

namespace {

struct DisplayText {
    Q_DECLARE_TR_FUNCTIONS(DisplayText)
};

constexpr char32_t mark = QChar::ReplacementCharacter;
constexpr char32_t zeroWidthNonJoiner = 0x200C; // Persian and Indic scripts need it
constexpr char32_t zeroWidthJoiner = 0x200D;    // emoji need it
constexpr char32_t emojiSelector = 0xFE0F;
constexpr qsizetype longestCharacter = 32; // UTF-16 units; the longest emoji has 15

bool isHarmless(char32_t character) {
    switch (QChar::category(character)) {
    case QChar::Other_Format:
        return character == zeroWidthNonJoiner || character == zeroWidthJoiner;
    case QChar::Other_Control:
    case QChar::Other_Surrogate:
    case QChar::Other_NotAssigned:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return false;
    default:
        return true;
    }
}

int columnsOfCharacter(char32_t character) {
    const auto point = static_cast<UChar32>(character);
    switch (u_charType(point)) {
    case U_NON_SPACING_MARK:
    case U_ENCLOSING_MARK:
    case U_FORMAT_CHAR:
        return character == emojiSelector ? 1 : 0; // it may widen the preceding symbol
    default:
        break;
    }
    const int width = u_getIntPropertyValue(point, UCHAR_EAST_ASIAN_WIDTH);
    return width == U_EA_WIDE || width == U_EA_FULLWIDTH ? 2 : 1;
}

} // namespace

QString harmless(const QString& text) {
    QString shown;
    for (const char32_t character : text.toUcs4())
        shown += QChar::fromUcs4(isHarmless(character) ? character : mark);
    return shown;
}

QString isolated(const QString& text) {
    constexpr QChar firstStrongIsolate(0x2068);
    constexpr QChar popDirectionalIsolate(0x2069);
    return Language::isRightToLeft() && !text.isEmpty() ? firstStrongIsolate + text + popDirectionalIsolate
                                                        : text;
}

QByteArray harmlessJson(const QByteArray& json) {
    constexpr char32_t firstBeyondAscii = 0x7F; // below it JSON's own blanks, and escapes already
    QString safe;
    for (const char32_t character : QString::fromUtf8(json).toUcs4()) {
        const auto units = QChar::fromUcs4(character);
        if (character < firstBeyondAscii || isHarmless(character))
            safe += units;
        else
            for (const QChar unit : QStringView(units))
                safe += u"\\u%1"_s.arg(ushort{unit.unicode()}, 4, 16, QChar(u'0'));
    }
    return safe.toUtf8();
}

int columnsOf(const QString& text) {
    int columns = 0;
    for (const char32_t character : text.toUcs4())
        columns += columnsOfCharacter(character);
    return columns;
}

QString fitted(const QString& text, int columns) {
    const qsizetype most = longestCharacter * (columns + 1);
    const QString shown = harmless(text.left(most));
    QTextBoundaryFinder boundaries(QTextBoundaryFinder::Grapheme, shown);
    QString line;
    qsizetype endBeforeMark = 0;
    bool isCut = text.size() > most;
    int used = 0;
    for (qsizetype begin = 0, end = 0; (end = boundaries.toNextBoundary()) != -1; begin = end) {
        const bool isTooLong = end - begin > longestCharacter;
        const QString character =
            isTooLong ? QString(QChar::ReplacementCharacter) : shown.mid(begin, end - begin);
        used += columnsOf(character);
        if (used > columns) {
            isCut = true;
            break;
        }
        line += character;
        if (used < columns)
            endBeforeMark = line.size();
    }
    return isCut ? line.left(endBeforeMark) + QChar(0x2026) : line;
}

QString refusal(const std::vector<std::string>& names, bool isRun) {
    constexpr int nameColumns = 40;
    const QString first = fitted(QString::fromStdString(names.front()), nameColumns);
    if (names.size() == 1)
        return (isRun ? DisplayText::tr("“%1” is damaged or not a Tarnwick run.")
                      : DisplayText::tr("“%1” is not a folder or a run file that can be opened."))
            .arg(first);
    const auto more = static_cast<int>(names.size() - 1);
    return (isRun ? DisplayText::tr("“%1” and %2 more are damaged or not Tarnwick runs.", nullptr, more)
                  : DisplayText::tr("“%1” and %2 more are not folders or run files that can be opened.",
                                    nullptr, more))
        .arg(first, QString::number(more));
}

std::string quoted(std::string_view typed) {
    constexpr qsizetype longest = 200;
    QString text = QString::fromUtf8(typed);
    if (text.size() > longest)
        text = text.first(longest) + QChar(0x2026);
    return "'" + harmless(text).toStdString() + "'";
}

} // namespace TarnwickKit::model
