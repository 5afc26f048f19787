#pragma once

#include "OndelCore/Export.h"
#include "OndelCore/volumes/MountedVolumes.h"

#include <QString>

#include <filesystem>

namespace TarnwickKit::model {

/// One entry of the volume menu.
struct ONDEL_PUBLIC VolumeMenuItem {
    std::filesystem::path url; ///< the mount point, which identifies the entry
    QString name;
    QString systemImage; ///< a symbol's name
    QString detail;      ///< "Ext4 · 1.8 TiB", or what of it is known

    static VolumeMenuItem from(const OndelCore::volumes::MountedVolume& volume);

    bool operator==(const VolumeMenuItem&) const = default;
};

} // namespace TarnwickKit::model
