#pragma once

#include "OndelCore/platform/drives/SystemSources.h"
#include "OndelCore/platform/volumes/VolumeResources.h"
#include "OndelCore/volumes/Location.h"

#include <QString>

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

namespace OndelCore::volumes {

/// Facts of the mounted volume that holds a path, as they were when loaded. Units: bytes. Threads: any.
struct VolumeInfo {
    QString name;
    QString format; ///< for people: "Ext4", "exFAT"
    std::int64_t total = 0;
    std::int64_t available = 0;    ///< what can be claimed, purgeable space included
    std::int64_t rawAvailable = 0; ///< free at this moment, purgeable space not included
    bool isInternal = false;
    bool isRemovable = false;
    bool isReadOnly = false;
    bool isEncrypted = false;
    std::optional<std::filesystem::path> volumeURL; ///< the volume's root
    std::optional<std::string> device; ///< "/dev/sda1"; a server's address or a word where no device is

    std::int64_t used() const;
    std::int64_t purgeable() const;
    double usedFraction() const; ///< 0.0 to 1.0; 0.0 for a volume without a size
    /// "Removable", "Internal" or "External". Removable wins; a network volume counts as "External".
    QString connection() const;

    /// Fails: absent for a provider other than the local one, and when the volume cannot be asked at all;
    /// single facts that are missing get their defaults.
    static std::optional<VolumeInfo> load(const Location& location,
                                          const platform::SystemSources& sources = {});
    /// The record out of the system's answers, each missing one replaced by its default.
    static VolumeInfo from(const platform::VolumeResources& resources, std::optional<std::string> device);

    bool operator==(const VolumeInfo&) const = default;
};

} // namespace OndelCore::volumes
