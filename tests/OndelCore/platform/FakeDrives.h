#pragma once

#include "OndelCore/platform/drives/SmartBlocks.h"
#include "OndelCore/platform/drives/linux/DriveCalls.h"
#include "support/FakeMachine.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <linux/nvme_ioctl.h>
#include <scsi/sg.h>
#include <sys/ioctl.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <latch>
#include <mutex>

namespace test {

using namespace OndelCore::platform;
using Bytes = std::vector<std::uint8_t>;

/// A translator's sense data for CK_COND, with these registers.
inline Bytes descriptorSense(std::uint8_t status, std::uint8_t count, std::uint8_t lbaMid = 0,
                             std::uint8_t lbaHigh = 0) {
    // A vendor-specific descriptor of 4 bytes comes first: the order is free.
    return {0x72, 0x01, 0x00, 0x1d, 0,     0, 0, 18, 0x80,   0x02, 0,       0, 0x09,
            0x0c, 0,    0,    0,    count, 0, 0, 0,  lbaMid, 0,    lbaHigh, 0, status};
}

inline Bytes fixedSense(std::uint8_t status, std::uint8_t count, std::uint8_t lbaMid = 0,
                        std::uint8_t lbaHigh = 0) {
    return {0xf0, 0, 0x01, 0, status, 0, count, 10, 0, 0, lbaMid, lbaHigh, 0x00, 0x1d, 0, 0, 0, 0};
}

/// The answers of a drive. By default it is awake and healthy.
struct FakeDrive {
    int openError = 0;
    int commandError = 0; ///< errno of each command after the first `commandsBeforeError`
    std::size_t commandsBeforeError = 0;

    int nvmeStatus = 0;
    Bytes power = descriptorSense(0x50, 0xff, 0, 0);
    Bytes verdict = descriptorSense(0x50, 0, 0x4f, 0xc2);
    int hostStatus = 0; ///< of reading the page
    int missing = 0;    ///< bytes missing at the end of the page
    SmartPage page{};
    Bytes supportedPages{}; ///< answer to the inquiry for product data pages

    std::vector<Bytes> commands{};            ///< commands received
    std::shared_ptr<std::latch> hangsUntil{}; ///< commands block until it is released
};

/// Replaces the kernel: answers NVMe and SCSI commands for its drives. Threads: one for each drive.
class FakeDrives : public DriveCalls {
public:
    std::map<std::string, FakeDrive> drives;
    std::vector<std::string> opened;

    FileDescriptor open(const BlockDevice& disk) override {
        const std::scoped_lock lock(m_lock);
        opened.push_back(disk.name);
        const auto found = drives.find(disk.name);
        errno = found == drives.end() ? ENOENT : found->second.openError;
        if (errno)
            return FileDescriptor();
        FileDescriptor drive(::open("/dev/null", O_RDONLY | O_CLOEXEC));
        m_names[drive.get()] = disk.name;
        return drive;
    }
    int control(const FileDescriptor& descriptor, unsigned long request, void* argument) override {
        FakeDrive& drive = driveAt(descriptor);
        if (drive.hangsUntil)
            drive.hangsUntil->wait();
        if (drive.commandError && drive.commands.size() >= drive.commandsBeforeError)
            return -drive.commandError;
        if (request == NVME_IOCTL_ADMIN_CMD)
            return answerNvme(drive, *static_cast<nvme_passthru_cmd*>(argument));
        answerScsi(drive, *static_cast<sg_io_hdr_t*>(argument));
        return 0;
    }

private:
    FakeDrive& driveAt(const FileDescriptor& descriptor) {
        const std::scoped_lock lock(m_lock);
        return drives.at(m_names.at(descriptor.get()));
    }

    static int answerNvme(FakeDrive& drive, const nvme_passthru_cmd& command) {
        const auto* const bytes = reinterpret_cast<const std::uint8_t*>(&command);
        drive.commands.emplace_back(bytes, bytes + sizeof command);
        std::memcpy(reinterpret_cast<void*>(command.addr), drive.page.data(), command.data_len);
        return drive.nvmeStatus;
    }

    static void answerScsi(FakeDrive& drive, sg_io_hdr_t& io) {
        const Bytes& command = drive.commands.emplace_back(io.cmdp, io.cmdp + io.cmd_len);
        const auto give = [&](const std::uint8_t* data, std::size_t size) {
            const std::size_t given = std::min<std::size_t>(size, io.dxfer_len);
            std::copy_n(data, given, static_cast<std::uint8_t*>(io.dxferp));
            io.resid = static_cast<int>(io.dxfer_len - given);
        };
        const auto complain = [&](const Bytes& sense) {
            io.status = 0x02;
            io.driver_status = 0x08;
            io.info = SG_INFO_CHECK;
            io.sb_len_wr = static_cast<unsigned char>(std::min<std::size_t>(sense.size(), io.mx_sb_len));
            std::copy_n(sense.begin(), io.sb_len_wr, io.sbp);
        };
        if (command[0] == 0x12)
            return give(drive.supportedPages.data(), drive.supportedPages.size());
        if (command[14] == 0xe5)
            return complain(drive.power);
        if (command[4] == 0xda)
            return complain(drive.verdict);
        give(drive.page.data(), drive.page.size() - static_cast<std::size_t>(drive.missing));
        io.host_status = static_cast<unsigned short>(drive.hostStatus);
        io.info = drive.hostStatus ? SG_INFO_CHECK : SG_INFO_OK;
    }

    std::mutex m_lock;
    std::map<int, std::string> m_names; ///< of the disks that are open, by descriptor
};

/// Adds a disk to `machine`, with the kernel subsystem of its driver.
inline void addDisk(FakeMachine& machine, const std::string& name, dev_t number, const std::string& subsystem,
                    const FakeMachine::Attributes& attributes = {}) {
    const auto device = machine.addBlockDevice(name, number, attributes) / "device";
    std::filesystem::create_directories(device);
    std::filesystem::create_symlink("/sys/class/" + subsystem, device / "subsystem");
}

/// Sources of this machine and these drives only, without a service.
inline SmartSources sourcesOf(const FakeMachine& machine, FakeDrives& drives) {
    return {.system = machine.sources(),
            .calls = {std::shared_ptr<void>(), &drives},
            .serviceBus = "unix:path=" + (machine.folder() / "no-bus").string()};
}

/// A mount of a device below "/dev" whose file system has an anonymous number.
inline Mount mountFrom(const std::string& deviceName, const char* type = "ext4") {
    return {.type = type, .source = "/dev/" + deviceName};
}

/// The answer of the only disk under a device, or why there is none.
inline SmartAnswer answerOf(const std::string& deviceName, const SmartSources& sources) {
    DiskAnswers answers = smartOfMount(mountFrom(deviceName), sources);
    EXPECT_LE(answers.disks.size(), 1U);
    return answers.disks.empty() ? SmartAnswer{.blocks = {}, .source = answers.obstacle}
                                 : std::move(answers.disks.front().answer);
}

} // namespace test
