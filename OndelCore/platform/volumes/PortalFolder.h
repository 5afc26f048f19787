#pragma once

#include "OndelCore/Export.h"
#include "OndelCore/platform/volumes/PathFacts.h"

#include <filesystem>
#include <string_view>
#include <vector>

namespace OndelCore::platform {

/// The type of the file system in which a desktop's document portal hands folders to programs in a sandbox.
/// A program of the desktop serves it, between the sandbox and the folder itself.
inline constexpr std::string_view portalFileSystem = "fuse.portal";

/// The folder itself behind one that the document portal handed over, where the portal tells its path
/// (xdg-desktop-portal 1.18 and later), and this process may write there and sees the same folder. In any
/// other case, and for any other folder, `folder`. Nothing is written. Threads: any. Fails: `folder`, also
/// without an answer in time.
ONDEL_KIT std::filesystem::path folderBehindPortal(const std::filesystem::path& folder,
                                                   const std::vector<Mount>& mounts, const Waiting& waiting);
/// The same with the mounts of this process.
ONDEL_KIT std::filesystem::path folderBehindPortal(const std::filesystem::path& folder,
                                                   const Waiting& waiting = {.patience = defaultPatience});

} // namespace OndelCore::platform
