#pragma once

#include "OndelCore/platform/SmartBlocks.h"
#include "OndelCore/platform/linux/DriveCalls.h"
#include "support/TemporaryFolder.h"

#include <map>
#include <string>
#include <vector>

namespace test {

using Bytes = std::vector<std::uint8_t>;

/// Sense data as a translator answers CK_COND with, around the registers that matter here.
Bytes descriptorSense(std::uint8_t status, std::uint8_t count, std::uint8_t lbaMid = 0,
                      std::uint8_t lbaHigh = 0);
Bytes fixedSense(std::uint8_t status, std::uint8_t count, std::uint8_t lbaMid = 0, std::uint8_t lbaHigh = 0);

/// How a drive answers. The defaults are an awake, healthy ATA or NVMe drive.
struct FakeDrive {
    int openError = 0;
    int commandError = 0; ///< errno of every command once `commandsBeforeError` have been answered
    std::size_t commandsBeforeError = 0;

    int nvmeStatus = 0;
    Bytes power = descriptorSense(0x50, 0xff, 0, 0);
    Bytes verdict = descriptorSense(0x50, 0, 0x4f, 0xc2);
    int hostStatus = 0; ///< of reading the page
    int missing = 0;    ///< bytes of the page that do not arrive
    OndelCore::platform::SmartPage page{};
    Bytes supportedPages{}; ///< answer to the inquiry for product data pages

    std::vector<Bytes> commands{}; ///< what it was sent
};

/// Stands where the kernel would: answers the two kinds of commands for the drives it holds.
class FakeDrives : public OndelCore::platform::DriveCalls {
public:
    std::map<std::string, FakeDrive> drives;
    std::vector<std::string> opened;

    OndelCore::platform::FileDescriptor open(const OndelCore::platform::BlockDevice& disk) override;
    int control(const OndelCore::platform::FileDescriptor& drive, unsigned long request,
                void* argument) override;
};

/// A device tree of its own in a temporary folder.
class FakeDeviceTree {
public:
    FakeDeviceTree();

    /// `files`: attributes by their paths below the disk's folder.
    void addDisk(const std::string& name, const std::string& number, const std::string& subsystem,
                 const std::map<std::string, std::string>& files = {});
    void addPartition(const std::string& disk, const std::string& name, const std::string& number);
    void addLayer(const std::string& name, const std::string& number, const std::vector<std::string>& below);

    /// Sources that know nothing but this tree and these drives; no second reader is reachable.
    OndelCore::platform::SmartSources sources(FakeDrives& drives) const;

private:
    void registerDevice(const std::filesystem::path& folder, const std::string& number);

    TemporaryFolder m_root;
};

} // namespace test
