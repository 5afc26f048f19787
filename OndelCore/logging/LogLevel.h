#pragma once

#include <string_view>

namespace OndelCore::logging {

/// How much a line matters, in rising order.
enum class LogLevel { debug = 0, notice = 1, error = 2, fault = 3 };

/// The level's name in a stored line.
constexpr std::string_view textOf(LogLevel level) {
    switch (level) {
    case LogLevel::debug:
        return "debug";
    case LogLevel::notice:
        return "notice";
    case LogLevel::error:
        return "error";
    case LogLevel::fault:
        return "fault";
    }
    return "";
}

} // namespace OndelCore::logging
