#include "TarnwickHost/HostText.h"

#include "TarnwickKit/model/format/DisplayText.h"

#include <system_error>

namespace TarnwickHost {

QString isolated(std::string_view name) { return TarnwickKit::model::isolated(QString::fromUtf8(name)); }

QString inQuotes(std::string_view typed) { return isolated(TarnwickKit::model::quoted(typed)); }

QString because(const QString& name, int error) {
    //: %1: a file or a folder, %2: what the system says about it.
    return HostFiles::tr("%1: %2").arg(name, QString::fromStdString(std::generic_category().message(error)));
}

} // namespace TarnwickHost
