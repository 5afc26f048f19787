#include "OndelCore/platform/LocaleNumbers.h"

#include <QLocale>

namespace OndelCore::platform {

std::string groupedNumber(std::uint64_t number) {
    return QLocale().toString(qulonglong{number}).toStdString();
}

} // namespace OndelCore::platform
