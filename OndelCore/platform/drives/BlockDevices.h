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

/// A block device of the kernel's device tree (sysfs).
struct BlockDevice {
    dev_t number = 0;
    std::string name;             ///< below "/dev": "sda1", "nvme0n1", "dm-0", "cciss/c0d0"
    std::filesystem::path folder; ///< its folder in the device tree, without symbolic links
    bool isPartition = false;
    /// The dm-multipath device for which this disk is one of several paths to a drive; 0: none.
    dev_t pathOf = 0;

    std::filesystem::path node() const { return std::filesystem::path("/dev") / name; }
};

/// The devices under a block device, through partitions, device mapper (LUKS, LVM), MD, bcache and the like.
/// A loop device leads to the devices under its backing file.
struct BlockStack {
    /// Each once, in the order in which the layers name them. A loop device with its backing file on a memory
    /// or network file system counts as a disk.
    std::vector<BlockDevice> wholeDisks;
    /// The partitions, mappings and loop devices that lie on them, each before what lies below it.
    std::vector<BlockDevice> layers;
    bool isEncrypted = false; ///< there is a dm-crypt layer
    bool isSealed = false;    ///< there is a dm-verity layer, which checks each block against a hash tree
    bool isPartial = false;   ///< there may be more disks: a sandbox hides the kernel's list of a Btrfs
};

/// Threads: any. Fails: absent if the device tree has no block device of this number.
std::optional<BlockDevice> blockDevice(dev_t number, const std::filesystem::path& sysfs = "/sys");

/// The same by its name below "/dev". Links such as "mapper/vault" are not known.
std::optional<BlockDevice> blockDeviceNamed(std::string name, const std::filesystem::path& sysfs = "/sys");

/// The disk of a partition; any other device is returned unchanged.
BlockDevice wholeDevice(const BlockDevice& device);

/// Whether the kernel has suspended the disk. Opening it would wake it. Threads: any.
bool isSuspended(const BlockDevice& wholeDisk);

/// Threads: any; the file of a loop device is not touched. Fails: no whole disks for an unknown number, and
/// for a device that disappears meanwhile.
BlockStack blockStack(dev_t number, const SystemSources& sources = {});

/// The devices under a mounted file system, which may have several (Btrfs, a ZFS pool). Threads: any. Fails:
/// no whole disks for network and memory file systems.
BlockStack blockStack(const Mount& mount, const SystemSources& sources = {});

/// The devices under the file system of an open file or folder. Each whole disk has its number and its folder
/// in the device tree, where the attribute `stat` counts the disk's transfers. Threads: any; does not ask the
/// file system. Fails: as above.
BlockStack blockStackOfDescriptor(int descriptor, const SystemSources& sources = {});

/// The devices under the device at a path below "/dev", and under the other devices of its Btrfs. Several
/// devices of one file system are joined by ':' ("/dev/sda1:/dev/sdb1"). Threads: any. Fails: no whole disks.
BlockStack blockStackNamed(std::string_view path, const SystemSources& sources = {});

/// The entries of `sources.superblock` for a device. Fails: none if a disk under it is suspended, since
/// reading would wake it.
DeviceProperties superblockUnlessAsleep(dev_t number, const SystemSources& sources);

/// The number of the block device that a file system is mounted from, also if the file system has an
/// anonymous number (Btrfs). Threads: any. Fails: absent for network, memory and pool file systems.
std::optional<dev_t> deviceOfMount(const Mount& mount);

/// A device's path in the mount table. Placeholders of the kernel ("/dev/root") are replaced by the device's
/// name. Threads: any.
std::string sourceOfMount(const Mount& mount, const std::filesystem::path& sysfs = "/sys");

/// The first line of an attribute in the device tree. Fails: absent if unreadable, or longer than the kernel
/// makes an attribute.
std::optional<std::string> readAttribute(const std::filesystem::path& file);

/// The value of "KEY=value" in a device's `uevent` attribute. Fails: absent.
std::optional<std::string> readUeventValue(const std::filesystem::path& folder, std::string_view key);

/// The value of a decimal attribute. Fails: absent if unreadable or no number.
std::optional<std::int64_t> readNumber(const std::filesystem::path& file);

} // namespace OndelCore::platform
