#pragma once

#include "OndelCore/Export.h"

#include <chrono>
#include <filesystem>
#include <string_view>

namespace OndelCore::platform {

/// Has an application of the desktop open a file: by its name on the session bus (Desktop Entry
/// standard, "D-Bus Activation"), which starts it if it does not run; where that fails, by the desktop's
/// opener for the file's type.
///
/// `application`: its id ("tools.ondel.tarnwick"). Threads: any; needs no event loop; blocks for `patience`
/// at most. Fails: false if nobody has taken the file by then.
ONDEL_KIT bool openWithApplication(std::string_view application, const std::filesystem::path& file,
                                   std::chrono::milliseconds patience);

} // namespace OndelCore::platform
