#pragma once

#include "OndelCore/Export.h"
#include "OndelCore/Hashing.h"
#include "OndelCore/platform/volumes/FileSystemReach.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace OndelCore::platform {

/// What changes while a run goes on.
struct CircumstanceSample {
    double elapsed = 0;                 ///< seconds since the watch began
    std::optional<double> celsius{};    ///< of the hottest drive; slow sensors are read every 5 or 10 seconds
    std::optional<double> ioPressure{}; ///< share of the time since the last sample in which some task waited
                                        ///< for a disk, 0 to 1 (proc, "pressure/io", "some")

    bool operator==(const CircumstanceSample&) const = default;
    std::size_t hash() const { return hashFields(elapsed, celsius, ioPressure); }
};

/// A drive's link to the machine.
struct DriveLink {
    /// What it is attached by.
    enum class Kind { pcie, sata, usb };

    Kind kind = Kind::pcie;
    double now = 0;  ///< bits per second of the line, all lanes together, as negotiated
    double best = 0; ///< the same as the drive could do it

    bool operator==(const DriveLink&) const = default;
    std::size_t hash() const { return hashFields(kind, now, best); }
};

/// A partition that begins within a physical block of its disk.
struct Misalignment {
    std::int64_t offset = 0;        ///< bytes from the last physical block's start
    std::int64_t physicalBlock = 0; ///< bytes

    bool operator==(const Misalignment&) const = default;
    std::size_t hash() const { return hashFields(offset, physicalBlock); }
};

/// What a figure of a volume depends on besides its disk. A flag is set when it was seen to be so; what the
/// system does not tell is absent or not set. Units: bytes, degrees Celsius.
struct ONDEL_PUBLIC Circumstances {
    std::string kernel{};         ///< its release: "6.1.0-18-amd64"
    std::string fileSystemType{}; ///< "ext4"
    std::optional<FileSystemReach> reach{};
    bool isServedByProgram = false; ///< FUSE
    bool compresses = false;
    bool copiesOnWrite = false;
    bool checksumsData = false;
    bool journalsData = false;
    bool isEncrypted = false;
    /// Whether the file system says that it can move a new file's data past the cache (statx(2),
    /// STATX_DIOALIGN); absent where it does not say.
    std::optional<bool> allowsDirectIo{};

    std::int64_t disks = 0;          ///< whole disks under the volume
    bool isFileOnDisk = false;       ///< a loop device lies below
    bool isCachedFileOnDisk = false; ///< one whose own transfers go through the cache
    bool isVirtualDisk = false;
    std::optional<bool> isRotational{};
    std::optional<bool> hasVolatileWriteCache{};
    std::optional<Misalignment> misalignment{};
    /// The slowest of those that stayed slower than their drive; absent without.
    std::optional<DriveLink> link{};

    bool isOnBattery = false;
    bool hasPowerSaveGovernor = false;
    std::optional<std::int64_t> memoryBytes{}; ///< of the machine
    std::optional<std::int64_t> capacityBytes{};
    std::optional<std::int64_t> freeBytes{}; ///< when the watch began

    std::optional<double> maxCelsius{};      ///< where the drive begins to slow down
    std::optional<double> criticalCelsius{}; ///< where it may stop
    /// One each second. Beyond 4096 every second one is dropped, and from then on twice the time lies
    /// between.
    std::vector<CircumstanceSample> samples{};

    bool operator==(const Circumstances&) const = default;
    std::size_t hash() const;
};

} // namespace OndelCore::platform
