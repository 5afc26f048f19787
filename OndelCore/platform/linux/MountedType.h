#pragma once

#include "OndelCore/platform/FileSystemFacts.h"
#include "OndelCore/platform/Mounts.h"
#include "OndelCore/platform/SystemSources.h"

#include <string>

namespace OndelCore::platform {

/// The mount's type in the fixed vocabulary; of a FUSE mount on a device, what the device says. Threads: any.
std::string mountedType(const Mount& mount, const SystemSources& sources);

/// What is known of the mount's device: the database's entries, and what they leave open out of the first
/// sectors. Threads: any.
DeviceProperties volumeProperties(dev_t device, const SystemSources& sources);

} // namespace OndelCore::platform
