#include "OndelCore/platform/drives/linux/DriveReaders.h"

#include <linux/nvme_ioctl.h>
#include <sys/ioctl.h>

#include <cerrno>

namespace OndelCore::platform {

namespace {

/// Get Log Page for the SMART / Health Information log (02h) of the whole controller (NVM Express, Admin
/// Command Set).
nvme_passthru_cmd getHealthLog(SmartPage& page) {
    constexpr std::uint8_t getLogPage = 0x02;
    constexpr std::uint32_t healthLog = 0x02;
    constexpr std::uint32_t dwordsMinusOne = sizeof page / 4 - 1;
    nvme_passthru_cmd command{};
    command.opcode = getLogPage;
    command.nsid = 0xffffffff;
    command.addr = reinterpret_cast<std::uintptr_t>(page.data());
    command.data_len = sizeof page;
    command.cdw10 = dwordsMinusOne << 16U | healthLog;
    command.timeout_ms = static_cast<std::uint32_t>(driveCommandLimit.count());
    return command;
}

} // namespace

DriveReply readNvmeDrive(const BlockDevice& disk, DriveCalls& calls) {
    const FileDescriptor drive = calls.open(disk);
    if (!drive)
        return unreachable(disk, errno);
    NvmeSmart smart;
    nvme_passthru_cmd command = getHealthLog(smart.page);
    const int result = calls.control(drive, NVME_IOCTL_ADMIN_CMD, &command);
    if (result < 0)
        return unreachable(disk, -result);
    if (result > 0)
        return {.answer = {.blocks = {}, .source = disk.name + " does not give its NVMe health log"}};
    return {.answer = {.blocks = smart, .source = "NVMe health log of " + disk.name}};
}

} // namespace OndelCore::platform
