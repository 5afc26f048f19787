#include "OndelCore/logging/Utf8.h"

#include <QString>

#include <unicode/ubrk.h>
#include <unicode/utext.h>

#include <algorithm>
#include <cstdint>
#include <memory>

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

std::size_t codePoints(std::string_view text) {
    const auto begins = [](char c) { return (c & 0xC0) != 0x80; };
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), begins));
}

} // namespace

void mendUtf8(std::string& text) {
    if (!isAscii(text))
        text = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())).toStdString();
}

// ICU, because the boundary finder of Qt 6.4 counts a flag after an emoji as two characters.
std::size_t characterCount(std::string_view utf8) {
    if (isAscii(utf8)) // one character each, except CR LF
        return utf8.size() - pairsOfReturnAndLinefeed(utf8);
    UErrorCode failed = U_ZERO_ERROR;
    // Made once per thread: it costs far more than a count.
    thread_local const std::unique_ptr<UBreakIterator, void (*)(UBreakIterator*)> characters(
        ubrk_open(UBRK_CHARACTER, "", nullptr, 0, &failed), ubrk_close);
    const std::unique_ptr<UText, UText* (*)(UText*)> text(
        utext_openUTF8(nullptr, utf8.data(), static_cast<std::int64_t>(utf8.size()), &failed), utext_close);
    if (!characters || !text)
        return codePoints(utf8); // ICU without its data
    ubrk_setUText(characters.get(), text.get(), &failed);
    std::size_t count = 0;
    while (ubrk_next(characters.get()) != UBRK_DONE)
        ++count;
    return count;
}

} // namespace OndelCore::logging
