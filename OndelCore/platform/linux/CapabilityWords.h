#pragma once

#include "OndelCore/platform/FileSystemFacts.h"
#include "OndelCore/platform/Mounts.h"
#include "OndelCore/platform/SystemSources.h"

#include <filesystem>

namespace OndelCore::platform {

/// What a type's row claims, made precise by what the mounted file system answers at `path`.
/// Threads: any. Fails: what cannot be asked stays as the row has it.
CapabilityWords capabilityWords(const FileSystemFacts& facts, const Mount& mount,
                                const std::filesystem::path& path, const SystemSources& sources);

} // namespace OndelCore::platform
