#pragma once

#include "OndelCore/platform/FileSystemFacts.h"
#include "OndelCore/platform/Mounts.h"
#include "OndelCore/platform/SystemSources.h"

#include <string>

namespace OndelCore::platform {

/// The mount's type in the fixed vocabulary; of a FUSE mount on a device, what the device says. Threads: any.
std::string mountedType(const Mount& mount, const SystemSources& sources);

} // namespace OndelCore::platform
