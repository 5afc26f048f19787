#include "TarnwickKit/views/style/LegibleText.h"

#include <algorithm>

namespace TarnwickKit::views {

bool disturbsLine(QChar character) {
    const char16_t code = character.unicode();
    const bool turnsDirection = (code >= 0x202A && code <= 0x202E) || (code >= 0x2066 && code <= 0x2069);
    const auto category = character.category();
    return turnsDirection || category == QChar::Other_Control || category == QChar::Separator_Line ||
           category == QChar::Separator_Paragraph;
}

namespace {

QString legibleStart(const QString& text, qsizetype most) {
    QString result = text.left(most);
    std::ranges::replace_if(result, [](QChar one) { return disturbsLine(one) && one.isSpace(); }, u' ');
    result.removeIf(disturbsLine);
    // The variation selector for coloured emoji. Qt takes it from another font than the emoji, which splits a
    // flag into its two parts; emoji are coloured without it.
    result.remove(QChar(0xFE0F));
    return result;
}

} // namespace

QString legible(const QString& text) { return legibleStart(text, 300); }

QString legiblePath(const QString& path) {
    constexpr qsizetype longestPath = 4096;
    return legibleStart(path, longestPath);
}

QString keptApart(const QString& text) {
    constexpr QChar firstStrongIsolate(0x2068);
    constexpr QChar popDirectionalIsolate(0x2069);
    const bool isLeftToRight = std::ranges::none_of(text, [](QChar one) {
        const auto direction = one.direction();
        return direction == QChar::DirR || direction == QChar::DirAL || one.isSurrogate();
    });
    return isLeftToRight ? text : firstStrongIsolate + text + popDirectionalIsolate;
}

} // namespace TarnwickKit::views
