#pragma once

#include "OndelCore/Export.h"

#include <QString>

namespace TarnwickKit::model {

/// How a volume is attached, in the user's language. `recorded`: "Internal", "External", "Removable" or
/// "Network", as records have it; other texts stay.
ONDEL_KIT QString connectionText(const QString& recorded);

/// A volume's name as people read it: the words that stand for a missing name are in the user's language.
ONDEL_KIT QString volumeNameText(const QString& name);

/// What kind of file system a volume has: names stay, words are in the user's language.
ONDEL_KIT QString volumeFormatText(const QString& format);

/// The size of a test, in the user's language. `recorded`: "5 GiB", or "Fill disk".
ONDEL_KIT QString testSizeText(const QString& recorded);

} // namespace TarnwickKit::model
