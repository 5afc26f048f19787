#include "OndelCore/logging/LogField.h"

#include "OndelCore/logging/Redact.h"

#include <QString>

#include <array>
#include <charconv>

namespace OndelCore::logging {

namespace {

template <typename... Format>
void appendNumber(std::string& line, auto number, Format... format) {
    std::array<char, 512> digits; // the largest double has 309 digits before the point
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number, format...).ptr;
    line.append(digits.data(), end);
}

} // namespace

LogValue::LogValue(const QString& text)
    : m_text(text.toStdString()) {}

LogField LogField::failure(const std::exception& error) {
    return {Kind::classified, "error", Redact::failure(error)};
}

LogField LogField::failure(const std::exception_ptr& error) {
    return {Kind::classified, "error", Redact::failure(error)};
}

void LogField::appendTo(std::string& line) const {
    line.append(m_key.view()).push_back('=');
    switch (m_kind) {
    case Kind::integer:
        appendNumber(line, std::get<std::int64_t>(m_value));
        break;
    case Kind::milliseconds: // to_chars: the decimal point of printf depends on the locale
        appendNumber(line, std::get<double>(m_value), std::chars_format::fixed, 1);
        line.append("ms");
        break;
    case Kind::boolean:
        line.append(std::get<bool>(m_value) ? "true" : "false");
        break;
    case Kind::token:
        line.append(std::get<std::string>(m_value));
        break;
    case Kind::name:
        line.append(Redact::path(std::get<std::string>(m_value)));
        break;
    case Kind::opaque:
        line.append(Redact::opaque(std::get<std::string>(m_value)));
        break;
    case Kind::classified:
        line.append("\"").append(std::get<std::string>(m_value)).append("\"");
        break;
    }
}

} // namespace OndelCore::logging
