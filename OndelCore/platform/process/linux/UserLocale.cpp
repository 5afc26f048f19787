#include "OndelCore/platform/process/UserLocale.h"

#include <QByteArray>

#include <unicode/locid.h>
#include <unicode/ulocdata.h>

namespace OndelCore::platform {

namespace {

constexpr const char* fallbackName = "en_US";

std::string posixLocale(const char* category) {
    for (const char* variable : {"LC_ALL", category, "LANG"}) {
        const QByteArray value = qgetenv(variable);
        if (!value.isEmpty())
            return value.toStdString();
    }
    return {};
}

} // namespace

std::string icuLocaleName(const std::string& posixName) {
    // Number and date formats depend on the modifier for the script only, and not on the codeset.
    const std::string base = posixName.substr(0, posixName.find_first_of(".@"));
    if (base.empty() || base == "C" || base == "POSIX")
        return fallbackName;
    const std::string script = posixName.ends_with("@latin") ? "_Latn" : "";
    const std::size_t country = base.find('_');
    const std::string name = country == std::string::npos
                                 ? base + script
                                 : base.substr(0, country) + script + base.substr(country);
    const icu::Locale locale = icu::Locale::createCanonical(name.c_str());
    // For an unknown language ICU has placeholder formats ("M05 1").
    UErrorCode status = U_ZERO_ERROR;
    const icu::LocalULocaleDataPointer data(ulocdata_open(locale.getName(), &status));
    if (locale.isBogus() || U_FAILURE(status) || status == U_USING_DEFAULT_WARNING)
        return fallbackName;
    return locale.getName();
}

UserLocale UserLocale::fromEnvironment() {
    return {icuLocaleName(posixLocale("LC_NUMERIC")), icuLocaleName(posixLocale("LC_TIME"))};
}

} // namespace OndelCore::platform
