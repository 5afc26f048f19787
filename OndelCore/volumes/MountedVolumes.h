#pragma once

#include "OndelCore/platform/drives/SystemSources.h"

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
    QString format;                    ///< for people; empty when it cannot be told
    QString filesystemType;            ///< as VolumeCapabilities::filesystemType
    std::optional<std::int64_t> total; ///< bytes; absent when the volume does not tell it in time
    bool isInternal = false;
    bool isRemovable = false;

    bool operator==(const MountedVolume&) const = default;
};

/// The mounted volumes that a person expects to see, in the system's order. Threads: any. A server that does
/// not answer holds the list up for no longer than `patience`, and its volume stays in it without a size.
/// Fails: an empty list.
std::vector<MountedVolume>
mountedVolumes(const platform::SystemSources& sources = {},
               std::chrono::milliseconds patience = std::chrono::milliseconds(500));

} // namespace OndelCore::volumes
