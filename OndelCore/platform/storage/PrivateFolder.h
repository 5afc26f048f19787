#pragma once

#include "OndelCore/Export.h"

#include <filesystem>
#include <optional>

namespace OndelCore::platform {

/// A folder for temporary files that only this user can enter. Its path cannot be guessed by other users. All
/// processes of the user share it. It lasts as long as the session; where the session has no folder, until
/// the system empties its temporary folder. A new one is made then. Threads: any. Fails: absent if none can
/// be made.
ONDEL_KIT std::optional<std::filesystem::path> privateTemporaryFolder();

} // namespace OndelCore::platform
