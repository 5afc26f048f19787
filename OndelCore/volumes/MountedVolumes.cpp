#include "OndelCore/volumes/MountedVolumes.h"

#include "OndelCore/platform/volumes/Mounts.h"
#include "OndelCore/platform/volumes/PathFacts.h"
#include "OndelCore/platform/volumes/VisibleMounts.h"
#include "OndelCore/platform/volumes/VolumeResources.h"
#include "OndelCore/volumes/VolumeQuestions.h"

namespace OndelCore::volumes {

namespace {

MountedVolume describe(const platform::Mount& mount, const platform::VolumeResources& resources) {
    MountedVolume volume;
    volume.url = mount.mountPoint;
    volume.name = QString::fromStdString(resources.name.value_or(mount.mountPoint.string()));
    volume.format = QString::fromStdString(resources.format.value_or(""));
    volume.filesystemType = QString::fromStdString(resources.type.value_or(""));
    volume.isInternal = resources.isInternal.value_or(false);
    volume.isRemovable = resources.isRemovable.value_or(false);
    return volume;
}

} // namespace

std::vector<MountedVolume> mountedVolumes(std::chrono::milliseconds patience) {
    return mountedVolumesIn({}, patience);
}

std::vector<MountedVolume> mountedVolumesIn(const platform::SystemSources& sources,
                                            std::chrono::milliseconds patience) {
    const auto mounts = platform::visibleMounts(sources.mountTable.mounts());
    std::vector<MountedVolume> volumes;
    volumes.reserve(mounts.size());
    for (const platform::Mount& mount : mounts)
        volumes.push_back(describe(mount, platform::resourcesOfMount(mount, sources)));
    const auto sizes = platform::totalSizes(mounts, {.patience = patience});
    for (std::size_t index = 0; index < volumes.size(); ++index)
        volumes[index].total = sizes[index];
    return volumes;
}

} // namespace OndelCore::volumes
