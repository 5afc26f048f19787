#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace OndelCore::logging {

/// For ASCII, independent of the locale.
constexpr bool isDigit(char c) { return c >= '0' && c <= '9'; }

/// Replaces invalid UTF-8 by U+FFFD.
void mendUtf8(std::string& text);

/// The number of user-perceived characters (Unicode's extended grapheme clusters).
std::size_t characterCount(std::string_view utf8);

} // namespace OndelCore::logging
