#pragma once

#include "OndelCore/platform/drives/SystemSources.h"
#include "OndelCore/platform/volumes/Mounts.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

namespace OndelCore::platform {

/// The facts of a mounted volume. Absent: unknown. Units: bytes. Texts are decoded bytes, not necessarily
/// UTF-8.
struct VolumeResources {
    std::optional<std::string> name;
    std::optional<std::string> format; ///< for people: "Ext4"
    std::optional<std::string> type;   ///< in the fixed vocabulary: "ext4"
    std::optional<std::int64_t> total;
    std::optional<std::int64_t> available;
    std::optional<std::int64_t> availableForImportantUsage; ///< includes what the system could free
    std::optional<bool> isInternal;
    std::optional<bool> isRemovable;
    std::optional<bool> isReadOnly;
    std::optional<bool> isEncrypted;
    std::optional<std::filesystem::path> volumeRoot; ///< the mount point
    std::optional<std::string> mountedFrom;          ///< the device's path, a server's address or a word

    bool operator==(const VolumeResources&) const = default;
};

/// The facts of the volume that holds `path`. Threads: any; blocks until the file system answers, for
/// `sources.patience` at most. Fails: absent if the path cannot be asked at all.
std::optional<VolumeResources> volumeResources(const std::filesystem::path& path,
                                               const SystemSources& sources = {});

/// The same from the mount table entry, without sizes. The volume is not asked.
VolumeResources resourcesOfMount(const Mount& mount, const SystemSources& sources = {});

} // namespace OndelCore::platform
