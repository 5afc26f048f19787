#include "OndelCore/platform/volumes/linux/MountedType.h"

#include "OndelCore/platform/drives/BlockDevices.h"
#include "OndelCore/platform/volumes/PathFacts.h"

namespace OndelCore::platform {

namespace {

std::optional<std::string> typeOnDevice(dev_t device, const SystemSources& sources) {
    if (auto type = propertyIn(sources.database(device), "ID_FS_TYPE"))
        return type;
    return propertyIn(superblockUnlessAsleep(device, sources), "ID_FS_TYPE");
}

} // namespace

std::optional<std::filesystem::path> imageOfMount(const Mount& mount, const SystemSources& sources) {
    if (mount.type != "fuse" || !mount.source.starts_with('/') ||
        mayHang(mount.source, sources.mountTable.mounts()))
        return std::nullopt;
    std::error_code failed;
    return std::filesystem::is_regular_file(mount.source, failed)
               ? std::optional<std::filesystem::path>(mount.source)
               : std::nullopt;
}

std::string mountedType(const Mount& mount, const SystemSources& sources) {
    if (const auto image = imageOfMount(mount, sources))
        if (const auto type = propertyIn(sources.image(*image), "ID_FS_TYPE"))
            return fileSystemTypeName("fuseblk", mount.source, type);
    if (!mount.type.starts_with("fuseblk"))
        return fileSystemTypeName(mount.type, mount.source);
    const auto device = deviceOfMount(mount);
    return fileSystemTypeName(mount.type, mount.source,
                              device ? typeOnDevice(*device, sources) : std::nullopt);
}

const FileSystemFacts* factsOfMounted(const Mount& mount, const std::string& type) {
    return fileSystemFacts(type, mount.type.starts_with("fuse") ? FileSystemDriver::program
                                                                : FileSystemDriver::kernel);
}

} // namespace OndelCore::platform
