#pragma once

#include "OndelCore/platform/volumes/Mounts.h"

#include <filesystem>
#include <functional>
#include <vector>

namespace OndelCore::platform {

/// The mounts that a person would call a volume: file systems on drives and network shares, not what the
/// system, its packages and its containers mount for themselves. Each file system once, at its shortest mount
/// point; what another mount covers is left out. Keeps the order. `isFolder` is asked of mounts of a part of
/// a local file system only, since containers mount single files. Threads: any.
std::vector<Mount> visibleMounts(std::vector<Mount> mounts,
                                 const std::function<bool(const std::filesystem::path&)>& isFolder);
std::vector<Mount> visibleMounts(std::vector<Mount> mounts);

} // namespace OndelCore::platform
