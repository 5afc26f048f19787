#pragma once

#include "OndelCore/platform/drives/SystemSources.h"
#include "OndelCore/platform/volumes/FileSystemFacts.h"
#include "OndelCore/platform/volumes/Mounts.h"
#include "OndelCore/platform/volumes/PathFacts.h"

namespace OndelCore::platform {

/// The capabilities of a type, refined by the answers of the mounted file system at a path. `facts`: null for
/// an unknown type. Threads: any.
CapabilityWords capabilityWords(const FileSystemFacts* facts, const Mount& mount, const PathFacts& answers,
                                const SystemSources& sources);

} // namespace OndelCore::platform
