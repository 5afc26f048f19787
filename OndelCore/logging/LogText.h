#pragma once

#include <string_view>

namespace OndelCore::logging {

/// A compile-time text: a line's message or a field's key. Only constants convert to it, and run-time texts
/// do not compile. So it cannot contain private text.
class LogText {
public:
    // NOLINTNEXTLINE(google-explicit-constructor): callers pass literals.
    consteval LogText(const char* literal)
        : m_text(literal) {}

    constexpr std::string_view view() const { return m_text; }

private:
    std::string_view m_text;
};

} // namespace OndelCore::logging
