#include "TarnwickHost/Numbers.h"

#include "TarnwickHost/CommandLine.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>
#include <string>

namespace TarnwickHost {

namespace {

/// Absent unless the whole of `text` is one number that `Number` can hold.
template <typename Number>
std::optional<Number> parsed(std::string_view text) {
    Number number{};
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc{} || stop != end)
        return std::nullopt;
    return number;
}

/// The shift that `unit` stands for. Absent: no unit of ours.
std::optional<int> binaryShift(std::string_view unit) {
    struct Unit {
        std::string_view letter;
        std::string_view name;
        int shift;
    };
    static constexpr std::array units{Unit{"", "B", 0}, Unit{"k", "kib", 10}, Unit{"m", "mib", 20},
                                      Unit{"g", "gib", 30}, Unit{"t", "tib", 40}};
    std::string lower(unit);
    std::transform(lower.begin(), lower.end(), lower.begin(),
                   [](char letter) { return letter >= 'A' && letter <= 'Z' ? char(letter + 32) : letter; });
    for (const Unit& known : units)
        if (lower == known.letter || lower == known.name || unit == known.name)
            return known.shift;
    return std::nullopt;
}

[[noreturn]] void refuse(std::string_view option, std::string_view text, std::string_view wanted,
                         Range range) {
    throw UsageError(std::string(option) + " needs " + std::string(wanted) + " from " +
                     std::to_string(range.least) + " to " + std::to_string(range.most) + ", not " +
                     quoted(text));
}

} // namespace

std::int64_t wholeNumber(std::string_view option, std::string_view text, Range range) {
    const auto number = parsed<std::int64_t>(text);
    if (!number || *number < range.least || *number > range.most)
        refuse(option, text, "a whole number", range);
    return *number;
}

std::int64_t byteCount(std::string_view option, std::string_view text, Range range) {
    static constexpr std::string_view wanted = "a number of bytes, such as 4096, 64K or 5GiB,";
    const std::size_t digitsEnd = std::min(text.find_first_not_of("-0123456789"), text.size());
    std::string_view unit = text.substr(digitsEnd);
    if (unit.starts_with(' '))
        unit.remove_prefix(1);
    const auto number = parsed<std::int64_t>(text.substr(0, digitsEnd));
    const auto shift = binaryShift(unit);
    std::int64_t bytes = 0;
    if (!number || !shift || __builtin_mul_overflow(*number, std::int64_t{1} << *shift, &bytes) ||
        bytes < range.least || bytes > range.most)
        refuse(option, text, wanted, range);
    return bytes;
}

double seconds(std::string_view option, std::string_view text) {
    const auto number = parsed<double>(text);
    if (!number || !std::isfinite(*number) || std::signbit(*number))
        throw UsageError(std::string(option) + " needs a number of seconds, 0 or more, not " + quoted(text));
    return *number;
}

} // namespace TarnwickHost
