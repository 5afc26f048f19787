#pragma once

#include "OndelCore/platform/drives/DriveDescription.h"
#include "OndelCore/platform/drives/SystemSources.h"
#include "TarnwickKit/model/runs/DriveIdentity.h"

#include <QString>

#include <filesystem>
#include <optional>

namespace TarnwickKit::model {

/// Names for the hardware behind a volume. Threads: any; the functions keep no state.
class ONDEL_KIT DriveInfo {
public:
    DriveInfo() = delete;

    /// The whole disk under the volume whose root is `volumeURL`. Fails: both texts absent.
    static DriveIdentity identity(const std::filesystem::path& volumeURL,
                                  const OndelCore::platform::SystemSources& sources = {});
    /// The names in a drive's description.
    static DriveIdentity identity(const OndelCore::platform::DriveDescription& description);

    /// The network protocol ("SMB", "NFS", …) of a file-system type in any case. Fails: absent for any other
    /// type.
    static std::optional<QString> networkProtocol(const std::optional<QString>& filesystemType);
};

} // namespace TarnwickKit::model
