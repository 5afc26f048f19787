#pragma once

#include "OndelCore/health/DiskSMART.h"
#include "OndelCore/health/OndelSMART.h"
#include "OndelCore/health/SmartReader.h"

#include <filesystem>
#include <optional>
#include <string>

namespace OndelCore::health {

/// What a user sees of a drive's health: which figures, in which order and units, and what is a concern.
/// Threads: any; the functions keep no state.
class DiskHealth {
public:
    DiskHealth() = delete;

    /// The health of the drives that hold `mountPath`, any path on a mounted volume.
    ///
    /// Absent: no device is behind the path (a network share, a memory file system, no such path).
    /// `notSupported`: a device is, and no disk under it says anything. Blocks on the drives for as long as
    /// `ondel_read_smart` does, so never on the thread of the interface. Fails: never; see above.
    static std::optional<DiskSMART> read(const std::filesystem::path& mountPath);

    /// `read` with what lies behind its answer.
    struct Reading {
        std::optional<DiskSMART> smart;
        std::vector<SmartReading> disks;
        /// One line in plain words: who answered ("NVMe health log of nvme0n1"), or why nobody did.
        std::string source;
    };
    static Reading readInDetail(const std::filesystem::path& mountPath,
                                const platform::SystemSources& sources = {});

    /// The worst verdict of all disks, and the rows of all. A single disk's rows are those of its record; of
    /// several each row names its disk. Disks that gave no answer are counted in a row and in `note`.
    static DiskSMART smart(const SmartReadings& readings);

    /// The rows and the verdict for a record whose `available` is 1. Grouped numbers follow the user's
    /// locale.
    static DiskSMART smart(const OndelSMART& record);
};

} // namespace OndelCore::health
