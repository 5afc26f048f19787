#include "OndelCore/platform/linux/MountedType.h"

#include "OndelCore/platform/BlockDevices.h"

namespace OndelCore::platform {

namespace {

std::optional<std::string> typeOnDevice(dev_t device, const SystemSources& sources) {
    if (auto type = propertyIn(sources.database(device), "ID_FS_TYPE"))
        return type;
    return propertyIn(sources.superblock(device), "ID_FS_TYPE");
}

} // namespace

std::string mountedType(const Mount& mount, const SystemSources& sources) {
    if (!mount.type.starts_with("fuseblk"))
        return fileSystemTypeName(mount.type, mount.source);
    const auto device = deviceOfMount(mount);
    return fileSystemTypeName(mount.type, mount.source,
                              device ? typeOnDevice(*device, sources) : std::nullopt);
}

} // namespace OndelCore::platform
