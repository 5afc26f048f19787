#pragma once

#include "OndelCore/Export.h"
#include "OndelCore/platform/drives/SystemSources.h"

#include <filesystem>
#include <optional>
#include <string>

namespace OndelCore::platform {

/// The description that a drive gives of itself. Surrounding blanks are not removed.
struct DriveDescription {
    std::optional<std::string> deviceVendor;
    std::optional<std::string> deviceModel;
    std::optional<std::string> busName;        ///< the bus: "USB", "SATA", "NVMe"
    std::optional<std::string> deviceProtocol; ///< the protocol on the bus, if known separately

    bool operator==(const DriveDescription&) const = default;
};

/// Describes the disk under the volume at `volumeRoot`. Of several disks only what they have in common is
/// set. Threads: any. Fails: absent if there is no disk under the volume.
ONDEL_KIT std::optional<DriveDescription> describeDrive(const std::filesystem::path& volumeRoot,
                                                        const SystemSources& sources = {});

} // namespace OndelCore::platform
