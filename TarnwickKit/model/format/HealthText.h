#pragma once

#include "OndelCore/Export.h"
#include "OndelCore/health/DiskSMART.h"

#include <QString>

#include <string>

namespace TarnwickKit::model {

/// A row of a drive's health in the user's language. The engine's texts are English; what is not known among
/// them stays.
ONDEL_KIT QString healthLabel(const OndelCore::health::DiskSMART::Attribute& row);
ONDEL_KIT QString healthValue(const OndelCore::health::DiskSMART::Attribute& row);

/// The drive's own verdict in a word.
ONDEL_KIT QString healthVerdict(OndelCore::health::DiskSMART::Status status);

/// In the user's language: where health figures come from, or why there are none. `english`: the engine's
/// line, of one source or of several.
ONDEL_KIT QString healthSource(const std::string& english);

} // namespace TarnwickKit::model
