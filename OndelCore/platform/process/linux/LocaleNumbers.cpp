#include "OndelCore/platform/process/LocaleNumbers.h"

#include "OndelCore/platform/process/UserLocale.h"

#include <unicode/numberformatter.h>

namespace OndelCore::platform {

namespace {

/// Replaces the narrow no-break space, ICU's grouping mark in French and others, by the usual one: few fonts
/// have a glyph for it.
void widenNarrowSpaces(icu::UnicodeString& text) { text.findAndReplace(u"\u202f", u"\u00a0"); }

} // namespace

std::string groupedNumber(std::uint64_t number) {
    std::string digits = std::to_string(number);
    const icu::Locale locale(UserLocale::fromEnvironment().numbers.c_str());
    UErrorCode status = U_ZERO_ERROR;
    icu::UnicodeString text = icu::number::NumberFormatter::withLocale(locale)
                                  .formatDecimal({digits.data(), static_cast<int32_t>(digits.size())}, status)
                                  .toString(status);
    if (U_FAILURE(status))
        return digits;
    widenNarrowSpaces(text);
    std::string grouped;
    return text.toUTF8String(grouped);
}

} // namespace OndelCore::platform
