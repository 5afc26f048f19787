#include "TarnwickHost/HostText.h"

#include "TarnwickKit/model/format/DisplayText.h"
#include "TarnwickKit/model/language/Language.h"

#include <system_error>

namespace TarnwickHost {

QString isolated(std::string_view name) {
    const QString text = QString::fromUtf8(name);
    constexpr QChar firstStrongIsolate(0x2068);
    constexpr QChar popDirectionalIsolate(0x2069);
    return TarnwickKit::model::Language::isRightToLeft() ? firstStrongIsolate + text + popDirectionalIsolate
                                                         : text;
}

QString inQuotes(std::string_view typed) { return isolated(TarnwickKit::model::quoted(typed)); }

QString because(const QString& name, int error) {
    //: %1: a file or a folder, %2: what the system says about it.
    return HostFiles::tr("%1: %2").arg(name, QString::fromStdString(std::generic_category().message(error)));
}

} // namespace TarnwickHost
