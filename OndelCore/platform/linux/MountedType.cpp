#include "OndelCore/platform/linux/MountedType.h"

#include "OndelCore/platform/BlockDevices.h"

namespace OndelCore::platform {

DeviceProperties volumeProperties(dev_t device, const SystemSources& sources) {
    DeviceProperties properties = sources.database(device);
    // An entry for the type means that the first sectors have been looked at: no label is no label then.
    if (!properties.contains("ID_FS_TYPE"))
        properties.merge(sources.superblock(device));
    return properties;
}

std::string mountedType(const Mount& mount, const SystemSources& sources) {
    if (!mount.type.starts_with("fuseblk"))
        return fileSystemTypeName(mount.type, mount.source);
    const auto device = deviceOfMount(mount);
    const DeviceProperties properties = device ? volumeProperties(*device, sources) : DeviceProperties();
    const auto type = properties.find("ID_FS_TYPE");
    return fileSystemTypeName(mount.type, mount.source,
                              type == properties.end() ? std::nullopt : std::optional(type->second));
}

} // namespace OndelCore::platform
