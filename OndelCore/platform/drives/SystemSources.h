#pragma once

#include "OndelCore/Export.h"
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

/// Properties of a block device by their names in the device database ("ID_FS_LABEL", "ID_MODEL", …). Values
/// are decoded bytes. Unknown properties have no entry.
using DeviceProperties = std::map<std::string, std::string, std::less<>>;
using DevicePropertySource = std::function<DeviceProperties(dev_t)>;

/// Fails: absent if there is no entry of this name.
std::optional<std::string> propertyIn(const DeviceProperties& properties, std::string_view name);

/// The properties of a block device in the device database (udev). Threads: any. Fails: no entries.
ONDEL_KIT DeviceProperties databaseProperties(dev_t device);

/// ID_FS_LABEL and ID_FS_TYPE from the superblock on the device. Requires the permission to read the device.
/// Threads: any. Fails: no entries.
ONDEL_KIT DeviceProperties superblockProperties(dev_t device);

/// The same from an image file. Threads: any. Fails: no entries, also if it is no regular file.
ONDEL_KIT DeviceProperties imageProperties(const std::filesystem::path& image);

/// The sources of facts about volumes and drives: by default the real system; tests replace them. Questions
/// with the same sources share one reading of the mount table, so make new ones for each reading of a
/// volume's facts.
struct SystemSources {
    MountTable mountTable;
    std::filesystem::path sysfs = "/sys";
    DevicePropertySource database = databaseProperties;
    DevicePropertySource superblock = superblockProperties;
    std::function<DeviceProperties(const std::filesystem::path&)> image = imageProperties;
    /// How long to wait for a volume that may never answer.
    std::chrono::milliseconds patience = defaultPatience;
};

} // namespace OndelCore::platform
