#pragma once

#include "OndelCore/health/DiskSMART.h"
#include "OndelCore/health/OndelSMART.h"

#include <filesystem>
#include <optional>
#include <string>

namespace OndelCore::health {

/// What a user sees of a drive's health: which figures, in which order and units, and what is a concern.
/// Threads: any; the functions keep no state.
class DiskHealth {
public:
    DiskHealth() = delete;

    /// The health of the drive that holds `mountPath`, any path on a mounted volume.
    ///
    /// Absent: no device is behind the path (a network share, a memory file system, no such path).
    /// `notSupported`: a device is, and it says nothing. Blocks on the drive for as long as
    /// `ondel_read_smart` does, so never on the thread of the interface. Fails: never; see above.
    static std::optional<DiskSMART> read(const std::filesystem::path& mountPath);

    /// `read` with what lies behind its answer.
    struct Reading {
        std::optional<DiskSMART> smart;
        OndelSMART record;
        /// One line in plain words: who answered ("NVMe health log of nvme0n1"), or why nobody did.
        std::string source;
    };
    static Reading readInDetail(const std::filesystem::path& mountPath);

    /// The rows and the verdict for a record whose `available` is 1. Grouped numbers follow the user's
    /// locale.
    static DiskSMART smart(const OndelSMART& record);
};

} // namespace OndelCore::health
