#include "OndelCore/platform/FakeDrives.h"

#include <fcntl.h>
#include <linux/nvme_ioctl.h>
#include <scsi/sg.h>
#include <sys/ioctl.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fstream>

namespace fs = std::filesystem;
using OndelCore::platform::BlockDevice;
using OndelCore::platform::FileDescriptor;

namespace test {

Bytes descriptorSense(std::uint8_t status, std::uint8_t count, std::uint8_t lbaMid, std::uint8_t lbaHigh) {
    // A vendor's descriptor of 4 bytes stands in front, as the order is free.
    return {0x72, 0x01, 0x00, 0x1d, 0,     0, 0, 18, 0x80,   0x02, 0,       0, 0x09,
            0x0c, 0,    0,    0,    count, 0, 0, 0,  lbaMid, 0,    lbaHigh, 0, status};
}

Bytes fixedSense(std::uint8_t status, std::uint8_t count, std::uint8_t lbaMid, std::uint8_t lbaHigh) {
    return {0xf0, 0, 0x01, 0, status, 0, count, 10, 0, 0, lbaMid, lbaHigh, 0x00, 0x1d, 0, 0, 0, 0};
}

FileDescriptor FakeDrives::open(const BlockDevice& disk) {
    opened.push_back(disk.name);
    const auto found = drives.find(disk.name);
    errno = found == drives.end() ? ENOENT : found->second.openError;
    return errno ? FileDescriptor() : FileDescriptor(::open("/dev/null", O_RDONLY | O_CLOEXEC));
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

int FakeDrives::control(const FileDescriptor&, unsigned long request, void* argument) {
    FakeDrive& drive = drives.at(opened.back());
    if (drive.commandError && drive.commands.size() >= drive.commandsBeforeError)
        return -drive.commandError;
    if (request == NVME_IOCTL_ADMIN_CMD)
        return answerNvme(drive, *static_cast<nvme_passthru_cmd*>(argument));
    answerScsi(drive, *static_cast<sg_io_hdr_t*>(argument));
    return 0;
}

FakeDeviceTree::FakeDeviceTree() {
    for (const char* folder : {"dev/block", "class/block", "bus/scsi", "class/nvme", "bus/virtio", "devices"})
        fs::create_directories(m_root.path() / folder);
}

void FakeDeviceTree::registerDevice(const fs::path& folder, const std::string& number) {
    fs::create_directories(folder);
    std::ofstream(folder / "dev") << number << '\n';
    fs::create_symlink(folder, m_root.path() / "dev/block" / number);
    fs::create_symlink(folder, m_root.path() / "class/block" / folder.filename());
}

void FakeDeviceTree::addDisk(const std::string& name, const std::string& number, const std::string& subsystem,
                             const std::map<std::string, std::string>& files) {
    const fs::path folder = m_root.path() / "devices" / name;
    registerDevice(folder, number);
    fs::create_directories(folder / "device/power");
    fs::create_symlink(m_root.path() / "class" / subsystem, folder / "device/subsystem");
    for (const auto& [file, text] : files)
        std::ofstream(folder / file) << text << '\n';
}

void FakeDeviceTree::addPartition(const std::string& disk, const std::string& name,
                                  const std::string& number) {
    const fs::path folder = m_root.path() / "devices" / disk / name;
    registerDevice(folder, number);
    std::ofstream(folder / "partition") << "1\n";
}

void FakeDeviceTree::addLayer(const std::string& name, const std::string& number,
                              const std::vector<std::string>& below) {
    const fs::path folder = m_root.path() / "devices" / name;
    registerDevice(folder, number);
    fs::create_directories(folder / "slaves");
    for (const std::string& slave : below)
        fs::create_symlink(fs::canonical(m_root.path() / "class/block" / slave), folder / "slaves" / slave);
}

OndelCore::platform::SmartSources FakeDeviceTree::sources(FakeDrives& drives) const {
    OndelCore::platform::SmartSources sources;
    sources.system.sysfs = m_root.path();
    sources.system.database = [](dev_t) { return OndelCore::platform::DeviceProperties(); };
    sources.devices = m_root.path() / "no-nodes";
    sources.calls = &drives;
    sources.serviceBus = "unix:path=" + (m_root.path() / "no-bus").string();
    return sources;
}

} // namespace test
