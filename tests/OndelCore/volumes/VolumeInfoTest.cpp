#include "OndelCore/volumes/VolumeInfo.h"

#include "OndelCore/volumes/VolumeCapabilities.h"
#include "support/FakeMachine.h"

#include <gtest/gtest.h>
#include <sys/sysmacros.h>

#include <limits>

using namespace OndelCore::volumes;
using OndelCore::platform::VolumeResources;

namespace {

constexpr auto most = std::numeric_limits<std::int64_t>::max();
constexpr auto least = std::numeric_limits<std::int64_t>::min();

TEST(VolumeInfo, ComputesUsedPurgeableAndFraction) {
    struct Case {
        std::int64_t total, available, rawAvailable, used, purgeable;
        double fraction;
    };
    for (const Case& sizes : {Case{1000, 250, 200, 750, 50, 0.75},
                              {0, 0, 0, 0, 0, 0.0},
                              {0, -5, 0, 5, 0, 0.0},
                              {100, 160, 100, 0, 60, 0.0},
                              {100, -100, 0, 200, 0, 1.0},
                              {-1, -1, 0, 0, 0, 0.0},
                              {most, least, most, most, 0, 1.0},
                              {most, most, least, 0, most, 0.0}}) {
        VolumeInfo info;
        info.total = sizes.total;
        info.available = sizes.available;
        info.rawAvailable = sizes.rawAvailable;
        EXPECT_EQ(info.used(), sizes.used);
        EXPECT_EQ(info.purgeable(), sizes.purgeable);
        EXPECT_EQ(info.usedFraction(), sizes.fraction);
    }
}

TEST(VolumeInfo, HasADefaultForEachMissingFact) {
    const VolumeInfo empty = VolumeInfo::from({}, std::nullopt);
    VolumeInfo expected;
    expected.name = "Volume";
    expected.format = "--";
    EXPECT_EQ(empty, expected);
    VolumeResources blank;
    blank.name = " \t";
    blank.format = "";
    EXPECT_EQ(VolumeInfo::from(blank, std::nullopt), expected);

    const auto availableOf = [](std::optional<std::int64_t> raw, std::optional<std::int64_t> important) {
        VolumeResources resources;
        resources.available = raw;
        resources.availableForImportantUsage = important;
        return VolumeInfo::from(resources, std::nullopt).available;
    };
    EXPECT_EQ(availableOf(100, 60), 100);
    EXPECT_EQ(availableOf(100, 160), 160);
    EXPECT_EQ(availableOf(std::nullopt, 160), 160);
    EXPECT_EQ(availableOf(100, std::nullopt), 100);
}

TEST(VolumeInfo, IsAbsentForOtherProvidersAndMissingPaths) {
    for (const Location& place :
         {Location{.provider = {"cloud"}, .path = "/"}, Location{.provider = {"Local"}, .path = "/"},
          Location::local(""), Location::local("/no/such/path"), Location::local("/proc/self/fd/999"),
          Location::local(std::string(5000, 'x'))}) {
        EXPECT_FALSE(VolumeInfo::load(place)) << place.path;
        EXPECT_FALSE(VolumeCapabilities::probe(place)) << place.path;
    }
    const auto root = VolumeInfo::load(Location::local("/proc/.."));
    ASSERT_TRUE(root);
    EXPECT_EQ(root->volumeURL, "/");
}

class AttachmentTest : public testing::Test {
protected:
    static constexpr const char* usb = "pci0000:00/usb1/1-2/host0/block/sda";
    static constexpr const char* ata = "pci0000:00/ata1/host1/block/sdb";

    VolumeInfo loaded(const test::FakeMachine::Row& row) {
        machine.pretendMounted(machine.folder(), row);
        return VolumeInfo::load(Location::local(machine.folder()), machine.sources()).value();
    }
    test::FakeMachine machine;
};

TEST_F(AttachmentTest, IsThatOfTheDisksUnderTheVolume) {
    machine.addBlockDevice(usb, makedev(8, 0), {{"removable", "0"}});
    machine.addBlockDevice(std::string(usb) + "/sda1", makedev(8, 1), {{"partition", "1"}});
    machine.addBlockDevice(ata, makedev(8, 16), {{"removable", "0"}});
    machine.addBlockDevice("pci0000:00/ata2/block/sr0", makedev(11, 0), {{"removable", "1"}});
    machine.addBlockDevice("virtual/block/dm-0", makedev(253, 0), {{"dm/uuid", "CRYPT-LUKS2-00-home"}});
    machine.stack("virtual/block/dm-0", std::string(usb) + "/sda1");

    EXPECT_EQ(loaded({.device = makedev(8, 1)}).connection(), "External");
    EXPECT_EQ(loaded({.device = makedev(8, 16)}).connection(), "Internal");
    EXPECT_EQ(loaded({.type = "udf", .device = makedev(11, 0)}).connection(), "Removable");
    EXPECT_FALSE(loaded({.device = makedev(8, 1)}).isEncrypted);
    const VolumeInfo encrypted = loaded({.device = makedev(253, 0), .source = "/dev/mapper/home"});
    EXPECT_TRUE(encrypted.isEncrypted);
    EXPECT_FALSE(encrypted.isInternal);
    EXPECT_EQ(encrypted.device, "/dev/mapper/home");
    // One external disk in a mirror makes the volume external.
    machine.addBlockDevice("virtual/block/md0", makedev(9, 0));
    machine.stack("virtual/block/md0", ata);
    EXPECT_TRUE(loaded({.device = makedev(9, 0)}).isInternal);
    machine.stack("virtual/block/md0", usb);
    EXPECT_FALSE(loaded({.device = makedev(9, 0)}).isInternal);
}

TEST_F(AttachmentTest, IsKnownForVolumesWithoutDisks) {
    EXPECT_EQ(loaded({.type = "tmpfs", .device = makedev(0, 40), .source = "tmpfs"}).connection(),
              "Internal");
    EXPECT_EQ(loaded({.type = "nfs4", .device = makedev(0, 41), .source = "filer:/x"}).connection(),
              "External");
    const VolumeInfo gone = loaded({.device = makedev(99, 0), .source = "/dev/gone"});
    EXPECT_EQ(gone.connection(), "External");
    EXPECT_EQ(gone.device, "/dev/gone");
    EXPECT_TRUE(loaded({.options = "ro,noatime"}).isReadOnly);
    EXPECT_TRUE(loaded({.options = "rw", .superOptions = "ro"}).isReadOnly);
    EXPECT_FALSE(loaded({.options = "rw,rom", .superOptions = "rw"}).isReadOnly);
    EXPECT_EQ(loaded({.type = "smb3", .source = "//nas/share"}).format, "SMB");
    EXPECT_EQ(loaded({.type = "unheard-of"}).format, "unheard-of");
}

TEST_F(AttachmentTest, NamesTheVolumeByLabelThenPartitionThenFolder) {
    const dev_t number = makedev(8, 16);
    machine.addBlockDevice(ata, number);
    const auto name = [&] { return loaded({.device = number}).name; };
    // Without an entry for the type the mounted file system is asked; here it is the disk of this test.
    machine.setDatabase(number, {{"ID_FS_TYPE", "ext4"}});
    machine.setAttributes(ata, {{"uevent", "DEVNAME=sdb\nPARTNAME=Data partition"}});
    EXPECT_EQ(name(), "Data partition");
    machine.setDatabase(number, {{"ID_FS_TYPE", "ext4"}, {"ID_PART_ENTRY_NAME", "Windows"}});
    EXPECT_EQ(name(), "Windows");
    machine.setDatabase(
        number,
        {{"ID_FS_TYPE", "ext4"}, {"ID_FS_LABEL", "My label\n\xff"}, {"ID_PART_ENTRY_NAME", "Windows"}});
    EXPECT_EQ(name(), QString("My label\n") + QChar(QChar::ReplacementCharacter));
    machine.setDatabase(number, {{"ID_FS_TYPE", "ext4"}});
    machine.setAttributes(ata, {{"uevent", "DEVNAME=sdb"}});
    EXPECT_EQ(name().toStdString(), machine.folder().filename().string());
}

} // namespace
