#pragma once

#include <cstdint>
#include <string_view>

namespace TarnwickHost {

/// The limits of a whole number on the command line; both ends are allowed.
struct Range {
    std::int64_t least = 0;
    std::int64_t most = 0;
};

/// `text` as a whole number in plain decimal digits.
/// Fails: throws UsageError naming `option` unless all of `text` is one number within `range`.
std::int64_t wholeNumber(std::string_view option, std::string_view text, Range range);

/// `text` as a number of bytes: plain digits, or with a binary unit behind them (K, M, G, T, KiB, MiB, GiB,
/// TiB; "5G" is 5 x 1024 x 1024 x 1024). Decimal units are refused, since "5 GB" would be guessed wrongly by
/// half of the people. Fails: as wholeNumber.
std::int64_t byteCount(std::string_view option, std::string_view text, Range range);

/// `text` as seconds, not negative. Fails: throws UsageError naming `option`, also for what is not finite.
double seconds(std::string_view option, std::string_view text);

} // namespace TarnwickHost
