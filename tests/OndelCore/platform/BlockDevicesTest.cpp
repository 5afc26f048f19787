#include "OndelCore/platform/drives/BlockDevices.h"

#include "OndelCore/platform/storage/FileDescriptor.h"
#include "support/FakeMachine.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

#include <fstream>

using namespace OndelCore::platform;

namespace {

const std::string ata1 = "pci0000:00/0000:00:17.0/ata1/host0/target0:0:0/0:0:0:0/block/sda";
const std::string ata2 = "pci0000:00/0000:00:17.0/ata2/host1/target1:0:0/1:0:0:0/block/sdb";

Mount mountOf(dev_t device, const std::string& source, const char* type = "") {
    Mount mount;
    mount.type = type;
    mount.device = device;
    mount.source = source;
    return mount;
}

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
        return namesOf(blockStack(mountOf(device, source, type), machine.sources()));
    };
    machine.joinBtrfs("1-a", {ata1 + "/sda1", ata2 + "/sdb1"});
    machine.joinBtrfs("0-b", {ata2});
    EXPECT_EQ(disksOf("btrfs", makedev(8, 17), "/dev/sdb1"), "sda sdb ");
    EXPECT_EQ(disksOf("btrfs", makedev(8, 16), "/dev/sdb"), "sdb ");
    EXPECT_EQ(disksOf("btrfs", makedev(8, 0), "/dev/sda"), "sda ");
    EXPECT_EQ(namesOf(blockStackNamed("/dev/sda1", machine.sources())), "sda sdb ");
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
        return sourceOfMount(mountOf(device, text), sysfs);
    };
    EXPECT_EQ(source("/dev/root", makedev(8, 1)), "/dev/sda1");
    EXPECT_EQ(source("rootfs", makedev(104, 0)), "/dev/cciss/c0d0");
    EXPECT_EQ(source("/dev/mapper/vg-root", makedev(8, 1)), "/dev/mapper/vg-root");
    EXPECT_EQ(source("/dev/root", makedev(99, 1)), "/dev/root");
    EXPECT_EQ(source("server:/export", makedev(0, 40)), "server:/export");
}

} // namespace
