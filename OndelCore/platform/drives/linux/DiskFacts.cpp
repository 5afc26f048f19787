#include "OndelCore/platform/drives/linux/DiskFacts.h"

#include "OndelCore/platform/drives/linux/DriveBus.h"

#include <algorithm>
#include <bit>
#include <filesystem>

namespace OndelCore::platform {

namespace {

constexpr std::int64_t startUnit = 512; // of a partition's start, whatever the sector of the disk

bool isFile(const BlockDevice& device) {
    std::error_code failed;
    return std::filesystem::exists(device.folder / "loop/backing_file", failed);
}

/// Whether any of the disks says yes. Fails: absent if none does and one does not say.
template <typename Question>
std::optional<bool> anyOf(const std::vector<BlockDevice>& disks, Question question) {
    bool isKnown = !disks.empty();
    for (const BlockDevice& disk : disks) {
        const std::optional<bool> answer = question(disk);
        if (answer == true)
            return true;
        isKnown = isKnown && answer.has_value();
    }
    return isKnown ? std::optional(false) : std::nullopt;
}

std::optional<bool> isRotational(const BlockDevice& disk) {
    const auto value = readNumber(disk.folder / "queue/rotational");
    if (!value || *value < 0 || *value > 1 || isFile(disk) || isOfVirtualMachine(disk))
        return std::nullopt;
    // The kernel takes a disk for a rotating one until the disk denies it, and USB bridges rarely pass that
    // on.
    if (value == 1 && busOfDisk(disk).name == "USB")
        return std::nullopt;
    return value == 1;
}

std::optional<bool> hasVolatileWriteCache(const BlockDevice& disk) {
    const auto value = readAttribute(disk.folder / "queue/write_cache");
    if (isFile(disk) || (value != "write back" && value != "write through"))
        return std::nullopt;
    return value == "write back";
}

std::optional<Misalignment> misalignmentOf(const BlockDevice& partition) {
    const BlockDevice disk = wholeDevice(partition);
    const auto start = readNumber(partition.folder / "start");
    const auto physical = readNumber(disk.folder / "queue/physical_block_size");
    // Where the first whole physical block begins: some disks shift their blocks against the count.
    const auto shift = readNumber(disk.folder / "alignment_offset");
    constexpr std::int64_t largestBlock = 1 << 20;
    if (!start || !physical || !shift || *start < 0 || *start > INT64_MAX / startUnit ||
        *physical < startUnit || *physical > largestBlock ||
        !std::has_single_bit(static_cast<std::uint64_t>(*physical)) || *shift < 0 || *shift >= *physical)
        return std::nullopt;
    const std::int64_t offset = (*start * startUnit % *physical + *physical - *shift) % *physical;
    return offset == 0 ? std::nullopt : std::optional(Misalignment{offset, *physical});
}

} // namespace

void addDiskFacts(Circumstances& circumstances, const BlockStack& stack) {
    circumstances.disks = static_cast<std::int64_t>(stack.wholeDisks.size());
    circumstances.isEncrypted = stack.isEncrypted;
    circumstances.isVirtualDisk = std::ranges::any_of(stack.wholeDisks, isOfVirtualMachine);
    circumstances.isRotational = anyOf(stack.wholeDisks, isRotational);
    circumstances.hasVolatileWriteCache = anyOf(stack.wholeDisks, hasVolatileWriteCache);
    for (const auto* devices : {&stack.layers, &stack.wholeDisks})
        for (const BlockDevice& device : *devices) {
            if (isFile(device)) {
                circumstances.isFileOnDisk = true;
                if (readNumber(device.folder / "loop/dio") == 0)
                    circumstances.isCachedFileOnDisk = true;
            }
            if (device.isPartition && !circumstances.misalignment)
                circumstances.misalignment = misalignmentOf(device);
        }
}

} // namespace OndelCore::platform
