#pragma once

#include "OndelCore/Export.h"

#include <QString>

namespace TarnwickKit::model {

/// The language that the user chose in the window. It is in the user's settings, which QSettings finds by the
/// names of the organization and of the application: a program sets both before it asks.
class ONDEL_KIT ChosenLanguage {
public:
    /// For Language::install, empty for the desktop's. A code that somebody else wrote may be none.
    static QString code();
    /// Programs that are started later follow.
    static void setCode(const QString& code);
};

} // namespace TarnwickKit::model
