#pragma once

#include "OndelCore/Export.h"

#include <filesystem>
#include <optional>

namespace OndelCore::platform {

/// The user's home folder: that of the environment, else that of the user database. Threads: any. Fails:
/// absent if neither names an absolute path.
ONDEL_KIT std::optional<std::filesystem::path> homeFolder();

/// The folder for data that survives a restart but is no document, such as logs (XDG Base Directory,
/// "state"). It may not exist yet. Threads: any. Fails: absent without a home folder.
std::optional<std::filesystem::path> stateHome();

/// The folder for the user's data (XDG Base Directory, "data"). It may not exist yet. Threads: any. Fails:
/// absent without a home folder.
ONDEL_KIT std::optional<std::filesystem::path> dataHome();

} // namespace OndelCore::platform
