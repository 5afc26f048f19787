#pragma once

#include "OndelCore/platform/drives/SystemSources.h"
#include "OndelCore/platform/volumes/FileSystemFacts.h"
#include "OndelCore/platform/volumes/Mounts.h"

#include <filesystem>
#include <optional>
#include <string>

namespace OndelCore::platform {

/// The mount's type in the fixed vocabulary. For a FUSE mount of a device or an image, the type in its
/// superblock. Threads: any.
std::string mountedType(const Mount& mount, const SystemSources& sources);

/// The facts of a mounted type, those of the FUSE program if one implements it. Fails: null.
const FileSystemFacts* factsOfMounted(const Mount& mount, const std::string& type);

/// The image file that a FUSE program mounted without a loop device. Fails: absent, also if accessing the
/// file may hang.
std::optional<std::filesystem::path> imageOfMount(const Mount& mount, const SystemSources& sources);

} // namespace OndelCore::platform
