#pragma once

#include <string_view>

namespace OndelCore::logging {

/// A text that was fixed when the program was built: a line's message or a field's key. Only a constant
/// converts to it; a text made at run time does not compile. So nothing private enters a line by this road.
class LogText {
public:
    // NOLINTNEXTLINE(google-explicit-constructor): a literal should be all a caller has to write.
    consteval LogText(const char* literal)
        : m_text(literal) {}

    constexpr std::string_view view() const { return m_text; }

private:
    std::string_view m_text;
};

} // namespace OndelCore::logging
