#pragma once

#include "OndelCore/Export.h"

#include <QString>

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <vector>

namespace OndelCore::volumes {

/// One entry of the list of mounted volumes.
struct MountedVolume {
    std::filesystem::path url;         ///< the mount point
    QString name;                      ///< never empty
    QString format;                    ///< for people; empty if unknown
    QString filesystemType;            ///< as VolumeCapabilities::filesystemType
    std::optional<std::int64_t> total; ///< bytes; absent without an answer in time
    bool isInternal = false;
    bool isRemovable = false;

    bool operator==(const MountedVolume&) const = default;
};

/// The mounted volumes that people expect to see, in the order of the mount table. Threads: any; blocks for
/// up to `patience` on servers. A volume that does not answer is listed without a size. Fails: an empty list.
ONDEL_PUBLIC std::vector<MountedVolume>
mountedVolumes(std::chrono::milliseconds patience = std::chrono::milliseconds(500));

} // namespace OndelCore::volumes
