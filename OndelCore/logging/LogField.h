#pragma once

#include "OndelCore/Export.h"
#include "OndelCore/logging/LogText.h"

#include <concepts>
#include <cstdint>
#include <exception>
#include <filesystem>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

class QString;

namespace OndelCore::logging {

/// A run-time text for a field. Invalid UTF-8 is accepted and repaired when the line is rendered.
class ONDEL_PUBLIC LogValue {
public:
    // NOLINTBEGIN(google-explicit-constructor): every kind of text converts.
    LogValue(const char* text)
        : m_text(text ? text : "") {}
    LogValue(std::string_view text)
        : m_text(text) {}
    LogValue(std::string text)
        : m_text(std::move(text)) {}
    LogValue(const std::filesystem::path& path)
        : m_text(path.native()) {}
    LogValue(const QString& text);
    // NOLINTEND(google-explicit-constructor)

    std::string take() && { return std::move(m_text); }

private:
    std::string m_text;
};

/// A closed vocabulary has a function `logToken` (found by argument-dependent lookup) with the text of each
/// value. A type with a textual `rawValue` is logged as that.
template <typename T>
concept HasLogToken = requires(const T& value) {
    { logToken(value) } -> std::convertible_to<std::string_view>;
};
template <typename T>
concept HasTextRawValue = requires(const T& value) {
    { rawValue(value) } -> std::convertible_to<std::string_view>;
};
template <typename T>
concept LogToken = HasLogToken<T> || HasTextRawValue<T>;

/// A variable part of a log line. The factory function determines how it is shown. (`int` and `bool` are
/// keywords, hence the underscores.)
class ONDEL_PUBLIC LogField {
public:
    /// A plain count: key=123
    static LogField int_(LogText key, std::int64_t value) { return {Kind::integer, key, value}; }
    /// A size. Units: bytes. key=123
    static LogField bytes(LogText key, std::int64_t value) { return {Kind::integer, key, value}; }
    /// A duration: key=12.3ms. Units: milliseconds.
    static LogField ms(LogText key, double value) { return {Kind::milliseconds, key, value}; }
    /// key=true or key=false
    static LogField bool_(LogText key, std::same_as<bool> auto value) { return {Kind::boolean, key, value}; }
    /// A value of a closed vocabulary, shown unchanged: key=value
    static LogField token(LogText key, LogValue value) { return {Kind::token, key, std::move(value).take()}; }
    static LogField token(LogText key, const LogToken auto& value) {
        if constexpr (HasLogToken<std::remove_cvref_t<decltype(value)>>)
            return token(key, LogValue(std::string_view(logToken(value))));
        else
            return token(key, LogValue(std::string_view(rawValue(value))));
    }
    /// A path or file name, always redacted: key=, then Redact::path of the value
    static LogField name(LogText key, LogValue value) { return {Kind::name, key, std::move(value).take()}; }
    /// An identifier, shown as a token for comparison: key=, then Redact::opaque of the value
    static LogField opaque(LogText key, LogValue value) {
        return {Kind::opaque, key, std::move(value).take()};
    }
    /// A text that the caller knows to be safe: key="value", without escaping
    static LogField classified(LogText key, LogValue value) {
        return {Kind::classified, key, std::move(value).take()};
    }
    /// error="...", Redact::failure of the error inside the quotes
    static LogField failure(const std::exception& error);
    static LogField failure(const std::exception_ptr& error);

    /// Appends the rendered field to a line.
    void appendTo(std::string& line) const;

private:
    enum class Kind { integer, milliseconds, boolean, token, name, opaque, classified };
    using Value = std::variant<std::int64_t, double, bool, std::string>;

    LogField(Kind kind, LogText key, Value value)
        : m_kind(kind)
        , m_key(key)
        , m_value(std::move(value)) {}

    Kind m_kind;
    LogText m_key;
    Value m_value;
};

} // namespace OndelCore::logging
