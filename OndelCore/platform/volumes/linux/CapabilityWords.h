#pragma once

#include "OndelCore/platform/drives/SystemSources.h"
#include "OndelCore/platform/volumes/FileSystemFacts.h"
#include "OndelCore/platform/volumes/Mounts.h"
#include "OndelCore/platform/volumes/PathFacts.h"

namespace OndelCore::platform {

/// What a type's row claims, made precise by what the mounted file system answered at a path. `facts`: null
/// for a type without a row. Threads: any.
CapabilityWords capabilityWords(const FileSystemFacts* facts, const Mount& mount, const PathFacts& answers,
                                const SystemSources& sources);

} // namespace OndelCore::platform
