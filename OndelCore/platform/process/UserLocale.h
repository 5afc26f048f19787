#pragma once

#include <string>

namespace OndelCore::platform {

/// Which language's marks and order the user wants for numbers and for dates, as ICU names locales ("de_DE").
///
/// The two differ for people who, say, read English but count with a decimal comma.
struct UserLocale {
    std::string numbers = "en_US";
    std::string dates = "en_US";

    /// What the environment asks for: LC_ALL, else LC_NUMERIC or LC_TIME, else LANG (POSIX, "Locale"). The
    /// environment is read rather than the C library's locale, because ICU knows locales that are not
    /// installed on the machine.
    static UserLocale fromEnvironment();

    bool operator==(const UserLocale&) const = default;
};

/// ICU's name for a POSIX locale: "de_DE.UTF-8@euro" is "de_DE". "C", "POSIX", an empty or unreadable name
/// ask for nothing in particular, which is "en_US" like the texts of the interface.
std::string icuLocaleName(const std::string& posixName);

} // namespace OndelCore::platform
