#pragma once

#include "OndelCore/platform/volumes/Mounts.h"
#include "OndelCore/platform/volumes/PathFacts.h"

#include <sys/types.h>

#include <chrono>
#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace OndelCore::platform {

/// Facts of one block device under the names that the device database uses ("ID_FS_LABEL", "ID_MODEL", …),
/// as decoded bytes. What is not known has no entry.
using DeviceProperties = std::map<std::string, std::string, std::less<>>;
using DevicePropertySource = std::function<DeviceProperties(dev_t)>;

/// Fails: absent if there is no entry of this name.
std::optional<std::string> propertyIn(const DeviceProperties& properties, std::string_view name);

/// What the device database (udev) says of a block device. Threads: any. Fails: no entries.
DeviceProperties databaseProperties(dev_t device);

/// What the device's own first sectors say: ID_FS_LABEL, ID_FS_TYPE. Reads the device, hence only where this
/// process may. Threads: any. Fails: no entries.
DeviceProperties superblockProperties(dev_t device);

/// The same of a file that holds a file system. Threads: any. Fails: no entries, for anything but a regular
/// file too.
DeviceProperties imageProperties(const std::filesystem::path& image);

/// Where the answers about volumes and drives come from: the real system, unless a caller hands in something
/// else. Questions that are given the same sources read the mount table once, so make new ones for each
/// reading of a volume's facts.
struct SystemSources {
    MountTable mountTable;
    std::filesystem::path sysfs = "/sys";
    DevicePropertySource database = databaseProperties;
    DevicePropertySource superblock = superblockProperties;
    std::function<DeviceProperties(const std::filesystem::path&)> image = imageProperties;
    /// How long a volume that may never answer is waited for.
    std::chrono::milliseconds patience = defaultPatience;
};

} // namespace OndelCore::platform
