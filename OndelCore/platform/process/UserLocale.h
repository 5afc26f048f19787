#pragma once

#include "OndelCore/Export.h"

#include <string>

namespace OndelCore::platform {

/// The user's locales for numbers and for dates, by ICU's names ("de_DE").
///
/// The two may differ, such as English texts with a decimal comma.
struct ONDEL_PUBLIC UserLocale {
    std::string numbers = "en_US";
    std::string dates = "en_US";

    /// From the environment: LC_ALL, else LC_NUMERIC or LC_TIME, else LANG (POSIX, "Locale"). The environment
    /// and not the C library's locale: ICU has locales that are not installed on the machine.
    static UserLocale fromEnvironment();

    bool operator==(const UserLocale&) const = default;
};

/// ICU's name for a POSIX locale: "de_DE.UTF-8@euro" is "de_DE". "C", "POSIX", an empty and an invalid name
/// give "en_US", the language of the interface.
ONDEL_PUBLIC std::string icuLocaleName(const std::string& posixName);

} // namespace OndelCore::platform
