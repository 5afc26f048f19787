#pragma once

#include "OndelCore/Export.h"
#include "OndelCore/volumes/Location.h"

#include <QString>

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

namespace OndelCore::volumes {

/// Facts of the mounted volume that holds a path, at the time of loading. Units: bytes. Threads: any.
struct ONDEL_PUBLIC VolumeInfo {
    QString name;
    QString format; ///< for people: "Ext4", "exFAT"
    std::int64_t total = 0;
    std::int64_t available = 0;    ///< free space including purgeable space
    std::int64_t rawAvailable = 0; ///< free space without purgeable space
    bool isInternal = false;
    bool isRemovable = false;
    bool isReadOnly = false;
    bool isEncrypted = false;
    std::optional<std::filesystem::path> volumeURL; ///< the volume's root
    std::optional<std::string> device; ///< "/dev/sda1"; without a device a server's address or a word

    std::int64_t used() const;
    std::int64_t purgeable() const;
    double usedFraction() const; ///< 0.0 to 1.0; 0.0 for a volume without a size
    /// "Removable", "Internal" or "External". Removable has priority; network volumes are "External".
    QString connection() const;

    /// Asks the system about the volume of a place; blocks on it. Fails: absent for providers other than the
    /// local one and if the volume does not answer. Single missing facts have their defaults.
    static std::optional<VolumeInfo> load(const Location& location);

    bool operator==(const VolumeInfo&) const = default;
};

} // namespace OndelCore::volumes
