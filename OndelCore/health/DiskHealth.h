#pragma once

#include "OndelCore/Export.h"
#include "OndelCore/health/DiskSMART.h"
#include "OndelCore/health/OndelSMART.h"

#include <filesystem>
#include <optional>

namespace OndelCore::health {

/// The presentation of a drive's health: which figures are shown, their order and units, and which are a
/// concern. Threads: any; the functions keep no state.
class ONDEL_PUBLIC DiskHealth {
public:
    DiskHealth() = delete;

    /// The health of the drives that hold `mountPath`, any path on a mounted volume.
    ///
    /// Absent: there is no device under the path (a network share, a memory file system, no such path).
    /// `notSupported`: there is a device, and no disk under it gave health data. Threads: not the one of the
    /// interface: it blocks on the drives as `ondel_read_smart` does. Fails: never; see above.
    static std::optional<DiskSMART> read(const std::filesystem::path& mountPath);

    /// The rows and the verdict for a record whose `available` is 1. Grouped numbers follow the user's
    /// locale.
    static DiskSMART smart(const OndelSMART& record);
};

} // namespace OndelCore::health
