#include "OndelCore/platform/drives/SmartBlocks.h"

#include "OndelCore/platform/drives/linux/DriveReaders.h"
#include "OndelCore/platform/process/DetachedThread.h"

#include <algorithm>
#include <cerrno>
#include <future>

namespace OndelCore::platform {

namespace {

/// The kernel subsystem of the disk: "nvme", "scsi", "virtio", "mmc", …; empty: none.
std::string subsystemOf(const BlockDevice& disk) {
    std::error_code ignored;
    return std::filesystem::read_symlink(disk.folder / "device/subsystem", ignored).filename().string();
}

DriveReply askItself(const BlockDevice& disk, DriveCalls& calls, const SmartSources& sources) {
    const std::string subsystem = subsystemOf(disk);
    if (subsystem == "nvme" || subsystem == "nvme-subsystem")
        return readNvmeDrive(disk, calls);
    if (subsystem == "scsi")
        return readAtaDrive(disk, calls, sources.system.database);
    return {.answer = {.blocks = {}, .source = disk.name + " has no S.M.A.R.T. interface"}};
}

SmartAnswer askDisk(const BlockDevice& disk, DriveCalls& calls, const SmartSources& sources) {
    DriveReply own = askItself(disk, calls, sources);
    if (!own.isRefused)
        return std::move(own.answer);
    SmartAnswer service = readFromUDisks(disk, sources);
    if (service.isEmpty())
        service.source = own.answer.source + ", and " + service.source;
    return service;
}

/// Device names may contain control characters; a source is one line.
std::string oneLine(std::string text) {
    std::replace_if(
        text.begin(), text.end(), [](unsigned char byte) { return byte < 0x20 || byte == 0x7f; }, '?');
    return text;
}

/// The paths to one drive.
using Paths = std::vector<BlockDevice>;

std::vector<Paths> drivesOf(const BlockStack& stack) {
    std::vector<Paths> drives;
    for (const BlockDevice& disk : stack.wholeDisks) {
        const auto known = std::ranges::find_if(drives, [&](const Paths& paths) {
            return disk.pathOf != 0 && paths.front().pathOf == disk.pathOf;
        });
        if (known == drives.end())
            drives.push_back({disk});
        else
            known->push_back(disk);
    }
    return drives;
}

SmartAnswer askDrive(const Paths& paths, const SmartSources& sources) {
    DriveCalls kernel;
    DriveCalls& calls = sources.calls ? *sources.calls : kernel;
    std::string reasons;
    for (const BlockDevice& disk : paths) {
        SmartAnswer answer = askDisk(disk, calls, sources);
        answer.source = oneLine(answer.source);
        if (!answer.isEmpty())
            return answer;
        reasons += (reasons.empty() ? "" : "; ") + answer.source;
    }
    return {.blocks = {}, .source = reasons};
}

/// One thread for each drive, because a command to a drive that hangs cannot be cancelled.
std::vector<DiskAnswer> askAtOnce(const std::vector<Paths>& drives, const SmartSources& sources) {
    const auto deadline = std::chrono::steady_clock::now() + sources.patience;
    std::vector<std::future<SmartAnswer>> pending;
    for (const Paths& paths : drives) {
        std::packaged_task<SmartAnswer()> task([paths, sources] { return askDrive(paths, sources); });
        std::future<SmartAnswer> answer = task.get_future();
        pending.push_back(runDetached(std::move(task)) ? std::move(answer) : std::future<SmartAnswer>());
    }
    std::vector<DiskAnswer> answers;
    for (std::size_t index = 0; index < drives.size(); ++index) {
        const std::string name = oneLine(drives[index].front().name);
        const bool isThere =
            pending[index].valid() && pending[index].wait_until(deadline) == std::future_status::ready;
        answers.push_back({.disk = name,
                           .answer = isThere
                                         ? pending[index].get()
                                         : SmartAnswer{.blocks = {}, .source = name + " does not answer"}});
    }
    return answers;
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

std::vector<DiskAnswer> smartOfDisks(const BlockStack& stack, const SmartSources& sources) {
    return askAtOnce(drivesOf(stack), sources);
}

DiskAnswers smartOfMount(const Mount& mount, const SmartSources& sources) {
    const BlockStack stack = blockStack(mount, sources.system);
    if (!stack.wholeDisks.empty())
        return {.disks = smartOfDisks(stack, sources), .obstacle = {}};
    std::string device = sourceOfMount(mount, sources.system.sysfs);
    if (constexpr std::string_view nodes = "/dev/"; device.starts_with(nodes))
        device.erase(0, nodes.size());
    return {.disks = {},
            .obstacle = oneLine(deviceOfMount(mount) ? "no disk is behind " + device
                                                     : device + " is no block device")};
}

} // namespace OndelCore::platform
