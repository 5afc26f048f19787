#pragma once

#include "OndelCore/platform/drives/SystemSources.h"
#include "OndelCore/platform/volumes/FileSystemFacts.h"
#include "OndelCore/platform/volumes/Mounts.h"

#include <filesystem>
#include <optional>
#include <string>

namespace OndelCore::platform {

/// The mount's type in the fixed vocabulary; of a FUSE mount on a device or an image, what that says.
/// Threads: any.
std::string mountedType(const Mount& mount, const SystemSources& sources);

/// The row of a mounted type, that of its FUSE program where one serves it. Fails: null.
const FileSystemFacts* factsOfMounted(const Mount& mount, const std::string& type);

/// The image file that a FUSE program has mounted without a loop device. Fails: absent, also where looking at
/// the file may hang.
std::optional<std::filesystem::path> imageOfMount(const Mount& mount, const SystemSources& sources);

} // namespace OndelCore::platform
