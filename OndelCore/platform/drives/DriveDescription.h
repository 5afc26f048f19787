#pragma once

#include "OndelCore/platform/drives/SystemSources.h"

#include <filesystem>
#include <optional>
#include <string>

namespace OndelCore::platform {

/// What a drive says of itself, as it says it: blanks around a text are not removed.
struct DriveDescription {
    std::optional<std::string> deviceVendor;
    std::optional<std::string> deviceModel;
    std::optional<std::string> busName;        ///< how it is attached: "USB", "SATA", "NVMe"
    std::optional<std::string> deviceProtocol; ///< the protocol it speaks there, if that is known apart

    bool operator==(const DriveDescription&) const = default;
};

/// The whole disk under the volume at `volumeRoot`. Of several disks only what all have in common is told.
/// Threads: any. Fails: absent if there is no disk under the volume.
std::optional<DriveDescription> describeDrive(const std::filesystem::path& volumeRoot,
                                              const SystemSources& sources = {});

} // namespace OndelCore::platform
