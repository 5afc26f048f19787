#include "OndelCore/platform/volumes/VolumeResources.h"

#include "OndelCore/platform/drives/BlockDevices.h"
#include "OndelCore/platform/drives/linux/DriveBus.h"
#include "OndelCore/platform/storage/FileDescriptor.h"
#include "OndelCore/platform/volumes/FileSystemFacts.h"
#include "OndelCore/platform/volumes/PathFacts.h"
#include "OndelCore/platform/volumes/linux/MountedType.h"

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>

namespace OndelCore::platform {

namespace {

std::optional<std::string> nonEmpty(std::optional<std::string> text) {
    return text && text->empty() ? std::nullopt : std::move(text);
}

/// The label from the mounted file system, which needs no permission on the device and wakes no disk. Empty:
/// no label. Fails: absent if the file system does not tell it.
std::optional<std::string> labelOfMounted(const Mount& mount) {
    if (mount.type.starts_with("fuse"))
        return std::nullopt;
    const FileDescriptor folder(
        open(mount.mountPoint.c_str(), O_RDONLY | O_DIRECTORY | O_NONBLOCK | O_CLOEXEC));
    struct statx facts{};
    if (!folder || statx(folder.get(), "", AT_EMPTY_PATH, STATX_MNT_ID, &facts) != 0 ||
        facts.stx_mnt_id != mount.id)
        return std::nullopt; // another file system covers this one
    std::array<char, FSLABEL_MAX + 1> label{};
    if (ioctl(folder.get(), FS_IOC_GETFSLABEL, label.data()) != 0)
        return std::nullopt;
    return std::string(label.data());
}

/// The label of the file system, else the name of its partition.
std::optional<std::string> labelOnDevice(const Mount& mount, const BlockDevice& device,
                                         const SystemSources& sources) {
    const DeviceProperties properties = sources.database(device.number);
    auto label = propertyIn(properties, "ID_FS_LABEL");
    // An entry for the type means that udev read the superblock, so the file system has no label.
    if (!label && !properties.contains("ID_FS_TYPE")) {
        label = labelOfMounted(mount);
        if (!label)
            label = propertyIn(superblockUnlessAsleep(device.number, sources), "ID_FS_LABEL");
    }
    if (nonEmpty(label))
        return label;
    if (auto name = nonEmpty(propertyIn(properties, "ID_PART_ENTRY_NAME")))
        return name;
    return readUeventValue(device.folder, "PARTNAME");
}

std::string nameOfVolume(const Mount& mount, const std::optional<BlockDevice>& device,
                         const SystemSources& sources) {
    if (device)
        if (auto label = labelOnDevice(mount, *device, sources))
            return *label;
    if (const auto image = imageOfMount(mount, sources))
        if (auto label = nonEmpty(propertyIn(sources.image(*image), "ID_FS_LABEL")))
            return *label;
    const std::string last = mount.mountPoint.filename().string();
    return last.empty() ? "Root" : last;
}

void addAttachment(VolumeResources& resources, const FileSystemFacts* facts, const Mount& mount,
                   const SystemSources& sources) {
    const auto reach = facts ? facts->reach : FileSystemReach::device;
    if (reach == FileSystemReach::memory || reach == FileSystemReach::layered)
        resources.isInternal = true;
    const auto image = imageOfMount(mount, sources);
    const auto below = image ? mountOfPathIn(sources.mountTable.mounts(), *image) : std::nullopt;
    const BlockStack stack = blockStack(below.value_or(mount), sources);
    if (stack.wholeDisks.empty())
        return;
    resources.isEncrypted = stack.isEncrypted;
    resources.isInternal = std::none_of(stack.wholeDisks.begin(), stack.wholeDisks.end(),
                                        [](const BlockDevice& disk) { return busOfDisk(disk).isExternal; });
    resources.isRemovable =
        std::any_of(stack.wholeDisks.begin(), stack.wholeDisks.end(),
                    [](const BlockDevice& disk) { return readNumber(disk.folder / "removable") == 1; });
}

} // namespace

VolumeResources resourcesOfMount(const Mount& mount, const SystemSources& sources) {
    VolumeResources resources;
    const std::string type = mountedType(mount, sources);
    const FileSystemFacts* const facts = factsOfMounted(mount, type);
    const auto number = deviceOfMount(mount);
    const auto device = number ? blockDevice(*number, sources.sysfs) : std::nullopt;
    resources.name = nameOfVolume(mount, device, sources);
    if (!type.empty()) {
        resources.format = facts ? std::string(facts->displayName) : type;
        resources.type = type;
    }
    resources.isReadOnly = hasMountOption(mount.options, "ro") || hasMountOption(mount.superOptions, "ro");
    resources.volumeRoot = mount.mountPoint;
    resources.mountedFrom = nonEmpty(sourceOfMount(mount, sources.sysfs));
    addAttachment(resources, facts, mount, sources);
    return resources;
}

std::optional<VolumeResources> volumeResources(const std::filesystem::path& path,
                                               const SystemSources& sources) {
    const auto& table = sources.mountTable.mounts();
    const auto facts = pathFacts(path, PathQuestion::sizes, table, {.patience = sources.patience});
    if (!facts || !facts->hasSizes)
        return std::nullopt;
    const auto mount = mountOf(*facts, table);
    VolumeResources resources = mount ? resourcesOfMount(*mount, sources) : VolumeResources();
    resources.total = facts->total;
    resources.available = facts->available;
    return resources;
}

} // namespace OndelCore::platform
