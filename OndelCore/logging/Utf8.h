#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace OndelCore::logging {

/// Of ASCII, whatever the locale.
constexpr bool isDigit(char c) { return c >= '0' && c <= '9'; }

/// Replaces what is no UTF-8 by U+FFFD; valid text stays as it is.
void mendUtf8(std::string& text);

/// User-visible characters (Unicode's extended grapheme clusters): what a person counts when reading the
/// text.
std::size_t characterCount(std::string_view utf8);

} // namespace OndelCore::logging
