#pragma once

#include "OndelCore/platform/drives/SystemSources.h"
#include "OndelCore/platform/volumes/Mounts.h"

#include <sys/types.h>

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace OndelCore::platform {

/// A block device as the kernel's device tree tells it.
struct BlockDevice {
    dev_t number = 0;
    std::string name;             ///< below "/dev": "sda1", "nvme0n1", "dm-0", "cciss/c0d0"
    std::filesystem::path folder; ///< its folder in the device tree, without symbolic links
    bool isPartition = false;
    /// The dm-multipath layer that reaches one drive through this disk and others; 0: this is the only way.
    dev_t pathOf = 0;

    std::filesystem::path node() const { return std::filesystem::path("/dev") / name; }
};

/// What lies under a block device: through partitions, device mapper (LUKS, LVM), MD, bcache and the like,
/// and through a loop device to what its file lies on.
struct BlockStack {
    /// Each once, in the device tree's order of names. A loop device whose file lies on no disk (a memory or
    /// network file system) is one itself.
    std::vector<BlockDevice> wholeDisks;
    bool isEncrypted = false; ///< a dm-crypt layer is among those in between
    bool isSealed = false;    ///< a dm-verity layer is: every block is checked against a hash tree
};

/// Threads: any. Fails: absent if the device tree has no block device of this number.
std::optional<BlockDevice> blockDevice(dev_t number, const std::filesystem::path& sysfs = "/sys");

/// The same by its name below "/dev". Other names of its node, such as "mapper/vault", are not known here.
std::optional<BlockDevice> blockDeviceNamed(std::string name, const std::filesystem::path& sysfs = "/sys");

/// The disk that a partition lies on; any other device as it is.
BlockDevice wholeDevice(const BlockDevice& device);

/// Whether the kernel itself has put the disk to sleep, so that opening it would wake it. Threads: any.
bool isSuspended(const BlockDevice& wholeDisk);

/// Threads: any; the file of a loop device is not touched. Fails: an unknown number, or one that goes away
/// meanwhile, has no whole disks.
BlockStack blockStack(dev_t number, const SystemSources& sources = {});

/// What lies under a mounted file system, under all the devices of one that has several (Btrfs, a ZFS pool).
/// Threads: any. Fails: no whole disks for network and memory file systems.
BlockStack blockStack(const Mount& mount, const SystemSources& sources = {});

/// What lies under the file system of an open file or folder. Each whole disk has its device number and its
/// folder in the device tree, whose `stat` counts the disk's transfers. Threads: any; does not ask the file
/// system. Fails: as above.
BlockStack blockStackOfDescriptor(int descriptor, const SystemSources& sources = {});

/// What lies under the device at a path below "/dev", and under all devices of a Btrfs that it belongs to.
/// Several devices of one file system are joined by ':' ("/dev/sda1:/dev/sdb1"). Threads: any. Fails: no
/// whole disks.
BlockStack blockStackNamed(std::string_view path, const SystemSources& sources = {});

/// The entries of `sources.superblock` for a device. Fails: none if a disk under it sleeps, which reading
/// would wake.
DeviceProperties superblockUnlessAsleep(dev_t number, const SystemSources& sources);

/// The number of the block device that a file system is mounted from, also where the file system has an
/// anonymous number of its own (Btrfs). Threads: any. Fails: absent for network, memory and pool file
/// systems.
std::optional<dev_t> deviceOfMount(const Mount& mount);

/// A device's path as the mount table names it, with the kernel's place-holders ("/dev/root") replaced by the
/// device's real name. Threads: any.
std::string sourceOfMount(const Mount& mount, const std::filesystem::path& sysfs = "/sys");

/// The text of an attribute in the device tree without the line's end. Fails: absent if unreadable.
std::optional<std::string> readAttribute(const std::filesystem::path& file);

/// The value of "KEY=value" in a device's `uevent` attribute. Fails: absent.
std::optional<std::string> readUeventValue(const std::filesystem::path& folder, std::string_view key);

/// An attribute that holds one decimal number. Fails: absent if unreadable or something else.
std::optional<std::int64_t> readNumber(const std::filesystem::path& file);

} // namespace OndelCore::platform
