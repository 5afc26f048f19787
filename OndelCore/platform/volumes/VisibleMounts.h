#pragma once

#include "OndelCore/platform/volumes/Mounts.h"

#include <filesystem>
#include <functional>
#include <vector>

namespace OndelCore::platform {

/// The mounts that people regard as volumes: file systems on drives and network shares, without internal
/// mounts of the system, its packages and its containers. Each file system appears once, at its shortest
/// mount point; in a Flatpak's sandbox, which has no root folder of the host, preferably where the home
/// folders are. Covered mounts are omitted. Keeps the order. `isFolder` is called only for mounts of a part
/// of a local file system, since containers mount single files. Threads: any.
std::vector<Mount> visibleMounts(std::vector<Mount> mounts,
                                 const std::function<bool(const std::filesystem::path&)>& isFolder);
std::vector<Mount> visibleMounts(std::vector<Mount> mounts);

} // namespace OndelCore::platform
