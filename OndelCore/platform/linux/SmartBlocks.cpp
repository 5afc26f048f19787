#include "OndelCore/platform/SmartBlocks.h"

#include "OndelCore/platform/linux/DriveReaders.h"

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>

namespace OndelCore::platform {

namespace {

/// The device's number by its node; where the process sees no nodes (a sandbox), by the device tree. Of a
/// file system's several devices, "sda1:/dev/sdb1", the first counts.
std::optional<dev_t> deviceNumber(const std::string& names, const SmartSources& sources) {
    const std::string name = names.substr(0, names.find(":/"));
    struct stat facts {};
    if (stat((sources.devices / name).c_str(), &facts) == 0)
        return S_ISBLK(facts.st_mode) ? std::optional(facts.st_rdev) : std::nullopt;
    const auto device = blockDeviceNamed(name, sources.system.sysfs);
    return device ? std::optional(device->number) : std::nullopt;
}

/// The name of the layer that drives the disk: "nvme", "scsi", "virtio", "mmc", …; empty: none.
std::string subsystemOf(const BlockDevice& disk) {
    std::error_code ignored;
    return std::filesystem::read_symlink(disk.folder / "device/subsystem", ignored).filename().string();
}

DriveReply askDrive(const BlockDevice& disk, DriveCalls& calls, const SmartSources& sources) {
    const std::string subsystem = subsystemOf(disk);
    if (subsystem == "nvme" || subsystem == "nvme-subsystem")
        return readNvmeDrive(disk, calls);
    if (subsystem == "scsi")
        return readAtaDrive(disk, calls, sources.system.database);
    return {.answer = {.blocks = {}, .source = disk.name + " has no S.M.A.R.T. interface"}};
}

SmartAnswer askDisk(const BlockDevice& disk, DriveCalls& calls, const SmartSources& sources) {
    DriveReply own = askDrive(disk, calls, sources);
    if (!own.isRefused)
        return std::move(own.answer);
    SmartAnswer service = readFromUDisks(disk, sources);
    if (service.isEmpty())
        service.source = own.answer.source + ", and " + service.source;
    return service;
}

/// Device names may hold any byte but '/'; a source is one line.
std::string oneLine(std::string text) {
    std::replace_if(
        text.begin(), text.end(), [](unsigned char byte) { return byte < 0x20 || byte == 0x7f; }, '?');
    return text;
}

} // namespace

DriveReply unreachable(const BlockDevice& disk, int error) {
    switch (error) {
    case EPERM:
    case EACCES:
        return {.answer = {.blocks = {}, .source = disk.name + " may only be asked by an administrator"},
                .isRefused = true};
    case ENOENT:
        return {.answer = {.blocks = {}, .source = disk.name + " is out of this process's reach"},
                .isRefused = true};
    default:
        return {.answer = {.blocks = {}, .source = disk.name + " does not answer"}};
    }
}

SmartAnswer smartOfDevice(const std::string& deviceName, const SmartSources& sources) {
    const std::optional<dev_t> number = deviceNumber(deviceName, sources);
    if (!number)
        return {.blocks = {}, .source = oneLine(deviceName + " is no block device")};
    DriveCalls kernel;
    DriveCalls& calls = sources.calls ? *sources.calls : kernel;
    std::string reasons;
    for (const BlockDevice& disk : blockStack(*number, sources.system.sysfs).wholeDisks) {
        SmartAnswer answer = askDisk(disk, calls, sources);
        if (!answer.isEmpty())
            return answer;
        reasons += (reasons.empty() ? "" : "; ") + answer.source;
    }
    return {.blocks = {}, .source = oneLine(reasons.empty() ? "no disk is behind " + deviceName : reasons)};
}

} // namespace OndelCore::platform
