#include "OndelCore/logging/Utf8.h"

#include <QString>
#include <QTextBoundaryFinder>

#include <algorithm>

namespace OndelCore::logging {

namespace {

bool isAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<signed char>(c) >= 0; });
}

std::size_t pairsOfReturnAndLinefeed(std::string_view text) {
    std::size_t pairs = 0;
    for (auto at = text.find("\r\n"); at != std::string_view::npos; at = text.find("\r\n", at + 2))
        ++pairs;
    return pairs;
}

} // namespace

void mendUtf8(std::string& text) {
    if (!isAscii(text))
        text = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())).toStdString();
}

std::size_t characterCount(std::string_view utf8) {
    if (isAscii(utf8)) // each a character of its own, but for the one pair that belongs together
        return utf8.size() - pairsOfReturnAndLinefeed(utf8);
    const QString text = QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    std::size_t count = 0;
    while (finder.toNextBoundary() != -1)
        ++count;
    return count;
}

} // namespace OndelCore::logging
