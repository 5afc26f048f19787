#include "OndelCore/platform/drives/BlockDevices.h"

#include "OndelCore/platform/drives/DriveDescription.h"
#include "OndelCore/platform/drives/SystemSources.h"
#include "OndelCore/platform/storage/FileDescriptor.h"
#include "support/FakeMachine.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>

using namespace OndelCore::platform;
namespace fs = std::filesystem;

namespace {

const std::string ata1 = "pci0000:00/0000:00:17.0/ata1/host0/target0:0:0/0:0:0:0/block/sda";
const std::string ata2 = "pci0000:00/0000:00:17.0/ata2/host1/target1:0:0/1:0:0:0/block/sdb";

class BlockStackTest : public testing::Test {
protected:
    BlockStackTest() {
        machine.addBlockDevice(ata1, makedev(8, 0));
        machine.addBlockDevice(ata1 + "/sda1", makedev(8, 1), {{"partition", "1"}});
        machine.addBlockDevice(ata2, makedev(8, 16));
        machine.addBlockDevice(ata2 + "/sdb1", makedev(8, 17), {{"partition", "1"}});
    }
    void addMapping(unsigned minorNumber, const std::string& uuid) {
        machine.addBlockDevice("virtual/block/dm-" + std::to_string(minorNumber), makedev(253, minorNumber),
                               {{"dm/uuid", uuid}});
    }
    static std::string namesOf(const BlockStack& stack) {
        std::string names;
        for (const BlockDevice& disk : stack.wholeDisks)
            names += disk.name + ' ';
        return names;
    }
    std::string disksUnder(dev_t number) const { return namesOf(stackOf(number)); }
    BlockStack stackOf(dev_t number) const { return blockStack(number, machine.sources()); }

    test::FakeMachine machine;
};

TEST_F(BlockStackTest, ResolvesEachLayerToTheWholeDisks) {
    EXPECT_EQ(disksUnder(makedev(8, 0)), "sda ");
    EXPECT_EQ(disksUnder(makedev(8, 1)), "sda ");
    EXPECT_EQ(disksUnder(makedev(99, 9)), "");

    // A logical volume on an encrypted mirror of two partitions, a layout that installers make.
    machine.addBlockDevice("virtual/block/md0", makedev(9, 0));
    machine.stack("virtual/block/md0", ata2 + "/sdb1");
    machine.stack("virtual/block/md0", ata1 + "/sda1");
    machine.addBlockDevice("virtual/block/md0/md0p1", makedev(259, 0), {{"partition", "1"}});
    addMapping(0, "CRYPT-LUKS2-0123-root");
    machine.stack("virtual/block/dm-0", "virtual/block/md0/md0p1");
    addMapping(1, "LVM-abcdef");
    machine.stack("virtual/block/dm-1", "virtual/block/dm-0");
    EXPECT_EQ(disksUnder(makedev(253, 1)), "sda sdb ");
    EXPECT_TRUE(stackOf(makedev(253, 1)).isEncrypted);
    EXPECT_FALSE(stackOf(makedev(259, 0)).isEncrypted);
}

TEST_F(BlockStackTest, DistinguishesEncryptionFromOtherLayersOfCryptsetup) {
    struct Case {
        const char* uuid;
        bool isEncrypted;
        bool isSealed;
    };
    unsigned minorNumber = 10;
    for (const Case& layer : {Case{"CRYPT-LUKS1-00-home", true, false},
                              {"CRYPT-PLAIN-swap", true, false},
                              {"CRYPT-BITLK-00-win", true, false},
                              {"CRYPT-TCRYPT-00-x", true, false},
                              {"CRYPT-VERITY-00-usr", false, true},
                              {"CRYPT-INTEGRITY-00-x", false, false},
                              {"LVM-CRYPT-", false, false},
                              {"", false, false}}) {
        addMapping(++minorNumber, layer.uuid);
        machine.stack("virtual/block/dm-" + std::to_string(minorNumber), ata1);
        const BlockStack stack = stackOf(makedev(253, minorNumber));
        EXPECT_EQ(stack.isEncrypted, layer.isEncrypted) << layer.uuid;
        EXPECT_EQ(stack.isSealed, layer.isSealed) << layer.uuid;
        EXPECT_EQ(stack.wholeDisks.size(), 1U);
    }
}

TEST_F(BlockStackTest, IncludesAllDevicesOfAFileSystem) {
    const auto disksOf = [&](const char* type, dev_t device, const char* source) {
        return namesOf(blockStack({.device = device, .type = type, .source = source}, machine.sources()));
    };
    machine.joinBtrfs("1-a", {ata1 + "/sda1", ata2 + "/sdb1"});
    machine.joinBtrfs("0-b", {ata2});
    EXPECT_EQ(disksOf("btrfs", makedev(8, 17), "/dev/sdb1"), "sda sdb ");
    EXPECT_EQ(disksOf("btrfs", makedev(8, 16), "/dev/sdb"), "sdb ");
    EXPECT_EQ(disksOf("btrfs", makedev(8, 0), "/dev/sda"), "sda ");
    EXPECT_EQ(namesOf(blockStackNamed("/dev/sda1", machine.sources())), "sda sdb ");
    SystemSources hidden = machine.sources();
    hidden.sysfs /= "no such folder";
    const auto isPartial = [](const char* type, const SystemSources& sources) {
        return blockStack(Mount{.device = makedev(0, 40), .type = type, .source = "/dev/sda1"}, sources)
            .isPartial;
    };
    EXPECT_TRUE(isPartial("btrfs", hidden)) << "there may be other disks";
    EXPECT_FALSE(isPartial("btrfs", machine.sources()));
    EXPECT_FALSE(isPartial("ext4", hidden));
    EXPECT_EQ(namesOf(blockStackNamed("/dev/none", machine.sources())), "");

    const FileDescriptor folder(open(machine.folder().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    const auto disksOfFolder = [&] {
        return namesOf(blockStackOfDescriptor(folder.get(), machine.sources()));
    };
    machine.pretendMounted(machine.folder(),
                           {.type = "btrfs", .device = makedev(0, 40), .source = "/dev/sdb1"});
    EXPECT_EQ(disksOfFolder(), "sda sdb ");
    machine.setMountTable("");
    struct stat facts{};
    fstat(folder.get(), &facts);
    machine.addBlockDevice("virtual/block/real", facts.st_dev);
    EXPECT_EQ(disksOfFolder(), "real ") << "by its device number where its mount is not listed";

    machine.setDatabase(makedev(8, 17), {{"ID_FS_TYPE", "zfs_member"}, {"ID_FS_LABEL", "tank"}});
    machine.setDatabase(makedev(8, 1), {{"ID_FS_TYPE", "zfs_member"}, {"ID_FS_LABEL", "other"}});
    EXPECT_EQ(disksOf("zfs", makedev(0, 50), "tank/home/ada"), "sdb ");
    EXPECT_EQ(disksOf("zfs", makedev(0, 51), "gone"), "");
    EXPECT_EQ(disksOf("tmpfs", makedev(0, 52), "tmpfs"), "");
}

TEST_F(BlockStackTest, DoesNotReadTheSuperblockOfASleepingDisk) {
    SystemSources sources = machine.sources();
    sources.superblock = [](dev_t) { return DeviceProperties{{"ID_FS_TYPE", "ntfs"}}; };
    EXPECT_EQ(superblockUnlessAsleep(makedev(8, 1), sources).size(), 1U);
    machine.setAttributes(ata1, {{"device/power/runtime_status", "suspended"}});
    EXPECT_EQ(superblockUnlessAsleep(makedev(8, 1), sources).size(), 0U);
}

TEST_F(BlockStackTest, TerminatesOnADamagedTree) {
    addMapping(0, "LVM-a");
    addMapping(1, "LVM-b");
    machine.stack("virtual/block/dm-0", "virtual/block/dm-1");
    machine.stack("virtual/block/dm-1", "virtual/block/dm-0");
    EXPECT_EQ(disksUnder(makedev(253, 0)), "");
    addMapping(2, "LVM-c");
    machine.stack("virtual/block/dm-2", "virtual/block/gone");
    EXPECT_EQ(disksUnder(makedev(253, 2)), "");
    machine.addBlockDevice("virtual/block/loop0", makedev(7, 0), {{"loop/backing_file", "/image"}});
    machine.setMountTable("1 0 7:0 / / rw - ext4 /dev/loop0 rw\n");
    EXPECT_EQ(disksUnder(makedev(7, 0)), "") << "a loop device whose file lies on itself";
    std::ofstream(machine.addBlockDevice("virtual/block/odd", makedev(7, 1)) / "dev") << "7;1\n";
    EXPECT_FALSE(blockDevice(makedev(7, 1), machine.sources().sysfs));
}

TEST_F(BlockStackTest, ReplacesPlaceholdersByDeviceNames) {
    machine.addBlockDevice("virtual/block/cciss!c0d0", makedev(104, 0));
    const auto sysfs = machine.sources().sysfs;
    const auto source = [&](const std::string& text, dev_t device) {
        return sourceOfMount({.device = device, .source = text}, sysfs);
    };
    EXPECT_EQ(source("/dev/root", makedev(8, 1)), "/dev/sda1");
    EXPECT_EQ(source("rootfs", makedev(104, 0)), "/dev/cciss/c0d0");
    EXPECT_EQ(source("/dev/mapper/vg-root", makedev(8, 1)), "/dev/mapper/vg-root");
    EXPECT_EQ(source("/dev/root", makedev(99, 1)), "/dev/root");
    EXPECT_EQ(source("server:/export", makedev(0, 40)), "server:/export");
}

enum Verdict : int { asExpected, otherwise, notAllowed };

/// A private mount namespace in which "/run" has a device database with one entry.
int readOwnDatabase(const BlockDevice& device) {
    if (unshare(CLONE_NEWNS) != 0 || mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
        mount("tmpfs", "/run", "tmpfs", 0, nullptr) != 0)
        return notAllowed;
    fs::create_directories("/run/udev/data");
    std::ofstream("/run/udev/data/b" + std::to_string(major(device.number)) + ':' +
                  std::to_string(minor(device.number)))
        << "E:ID_FS_TYPE=ext4\nE:ID_FS_LABEL=My_disk\nE:ID_FS_LABEL_ENC=My\\x20disk\\x5cx\\xC3\\xA9\\x4\n"
           "E:ID_MODEL=Two_words\nE:ID_MODEL_ENC=Two\\x20words\\x20\\x20\nE:ID_VENDOR=Plain_vendor\n"
           "E:ID_PART_ENTRY_NAME=EFI\\x20System\nE:ID_SERIAL=\n";
    DeviceProperties found = databaseProperties(device.number);
    const auto is = [&](const char* name, const char* value) { return found[name] == value; };
    const bool isSound = !found.contains("ID_SERIAL") && is("ID_FS_TYPE", "ext4") &&
                         is("ID_FS_LABEL", "My disk\\x\xC3\xA9\\x4") && is("ID_MODEL", "Two words  ") &&
                         is("ID_VENDOR", "Plain_vendor") && is("ID_PART_ENTRY_NAME", "EFI System");
    return isSound ? asExpected : otherwise;
}

TEST(DeviceDatabase, DecodesItsValues) {
    EXPECT_TRUE(databaseProperties(makedev(4000, 4000)).empty());
    EXPECT_TRUE(superblockProperties(makedev(4000, 4000)).empty());
    std::optional<BlockDevice> device;
    for (const auto& entry : fs::directory_iterator("/sys/class/block"))
        if (!device) {
            unsigned high = 0;
            unsigned low = 0;
            char colon = 0;
            std::ifstream(entry.path() / "dev") >> high >> colon >> low;
            device = blockDevice(makedev(high, low));
        }
    if (!device)
        GTEST_SKIP() << "no block device at all";
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0)
        _exit(readOwnDatabase(*device));
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFEXITED(status));
    if (WEXITSTATUS(status) == notAllowed)
        GTEST_SKIP() << "no mount namespace of one's own";
    EXPECT_EQ(WEXITSTATUS(status), asExpected);
}

/// "NAME=VALUE;NAME=VALUE" as a map.
template <class Map>
Map pairs(const std::string& text) {
    Map all;
    std::istringstream items(text);
    for (std::string item; std::getline(items, item, ';');)
        all[item.substr(0, item.find('='))] = item.substr(item.find('=') + 1);
    return all;
}

TEST(DriveDescription, TellsVendorModelBusAndProtocol) {
    const char* sata = "pci0000:00/0000:00:17.0/ata1/host0/target0:0:0/0:0:0:0/block/sda";
    const char* usb = "pci0000:00/usb2/2-1/2-1:1.0/host6/target6:0:0/6:0:0:0/block/sdc";
    const char* sas = "pci0000:00/host1/port-1:0/end_device-1:0/target1:0:0/1:0:0:0/block/sdd";
    const char* slot = "pci0000:00/0000:00:07.0/0000:04:00.0/nvme/nvme1/nvme1n1";
    const char* card = "pci0000:00/mmc_host/mmc0/mmc0:aaaa/block/mmcblk0";
    const struct {
        const char *place, *attributes, *database, *description;
    } cases[] = {
        {sata, "device/vendor=ATA     ;device/model=Samsung SSD 8 ", "", "none|Samsung SSD 8 |SATA|none"},
        {sata, "device/model=Samsung SSD 8 ", "ID_MODEL=Samsung SSD 860 ;ID_BUS=ata",
         "none|Samsung SSD 860 |SATA|SATA"},
        // Behind a bridge that passes ATA commands the database has the disk as ATA.
        {usb, "device/vendor=WD      ;device/model=25E2", "ID_BUS=ata", "WD      |25E2|USB|SATA"},
        {sas, "device/vendor=SEAGATE ;device/model=ST4000", "", "SEAGATE |ST4000|SAS|none"},
        {sas, "device/vendor=ATA     ;device/model=HGST", "", "none|HGST|SATA|none"},
        {"pci0000:00/other/block/sdf", "", "ID_BUS=ieee1394", "none|none|none|FireWire"},
        {slot, "../transport=pcie;device/model=SN730", "", "none|SN730|NVMe|none"},
        {slot, "../transport=pcie;../../../removable=removable", "", "none|none|Thunderbolt|none"},
        {"virtual/nvme-fabrics/ctl/nvme2/nvme2n1", "../transport=tcp", "",
         "none|none|NVMe over Fabrics|none"},
        {card, "device/type=SD;device/name=SD32G", "", "none|SD32G|SD|none"},
        {card, "device/type=MMC;device/name=DA4064", "", "none|DA4064|eMMC|none"},
        {"pci0000:00/virtio1/block/vda", "device/vendor=0x1af4", "", "none|none|VirtIO|none"},
        {"virtual/block/loop0", "", "", "none|none|none|none"},
    };
    for (const auto& [place, attributes, database, description] : cases) {
        test::FakeMachine machine;
        machine.addBlockDevice(place, makedev(8, 0), pairs<test::FakeMachine::Attributes>(attributes));
        machine.setDatabase(makedev(8, 0), pairs<DeviceProperties>(database));
        machine.pretendMounted(machine.folder(), {.device = makedev(8, 0)});
        const auto told = describeDrive(machine.folder(), machine.sources()).value_or(DriveDescription());
        std::string text;
        for (const auto& part : {told.deviceVendor, told.deviceModel, told.busName, told.deviceProtocol})
            text += (text.empty() ? "" : "|") + part.value_or("none");
        EXPECT_EQ(text, description) << place;
    }
}

TEST(DriveDescription, HasTheCommonPropertiesOfSeveralDisks) {
    test::FakeMachine machine;
    const auto addDisk = [&](const std::string& name, unsigned minorNumber, const char* model) {
        const std::string place = "pci0000:00/ata" + std::to_string(minorNumber) + "/block/" + name;
        machine.addBlockDevice(place, makedev(8, minorNumber), {{"device/model", model}});
        machine.stack("virtual/block/md0", place);
    };
    machine.addBlockDevice("virtual/block/md0", makedev(9, 0));
    addDisk("sda", 1, "Same");
    addDisk("sdb", 2, "Same");
    machine.pretendMounted(machine.folder(), {.device = makedev(9, 0), .source = "/dev/md0"});
    EXPECT_EQ(describeDrive(machine.folder(), machine.sources()), (DriveDescription{{}, "Same", "SATA", {}}));
    addDisk("sdc", 3, "Other");
    EXPECT_EQ(describeDrive(machine.folder(), machine.sources()), (DriveDescription{{}, {}, "SATA", {}}));
    machine.pretendMounted(machine.folder(), {.type = "tmpfs", .device = makedev(0, 40), .source = "tmpfs"});
    EXPECT_EQ(describeDrive(machine.folder(), machine.sources()), std::nullopt);
    EXPECT_EQ(describeDrive(machine.folder() / "none", machine.sources()), std::nullopt);
}

} // namespace
