#include "OndelCore/platform/DriveDescription.h"

#include "support/FakeMachine.h"

#include <gtest/gtest.h>
#include <sys/sysmacros.h>

using namespace OndelCore::platform;

namespace {

struct Drive {
    const char* what;
    std::string place;
    test::FakeMachine::Attributes attributes;
    DeviceProperties database;
    DriveDescription expected;
};

DriveDescription described(const Drive& drive) {
    test::FakeMachine machine;
    const dev_t number = makedev(8, 0);
    machine.addBlockDevice(drive.place, number, drive.attributes);
    machine.setDatabase(number, drive.database);
    machine.pretendMounted(machine.folder(), {.device = number});
    return describeDrive(machine.folder(), machine.sources()).value_or(DriveDescription());
}

const std::string pci = "pci0000:00/0000:00:1d.0";

TEST(DriveDescription, TellsEachKindOfDrive) {
    const std::vector<Drive> drives{
        {"SATA disk, database",
         "pci0000:00/0000:00:17.0/ata1/host0/target0:0:0/0:0:0:0/block/sda",
         {{"device/vendor", "ATA     "}, {"device/model", "Samsung SSD 860 "}},
         {{"ID_MODEL", "Samsung SSD 860 EVO 500GB               "}, {"ID_BUS", "ata"}},
         {{}, "Samsung SSD 860 EVO 500GB               ", "SATA", "SATA"}},
        {"SATA disk, no database",
         "pci0000:00/0000:00:17.0/ata1/host0/target0:0:0/0:0:0:0/block/sda",
         {{"device/vendor", "ATA     "}, {"device/model", "Samsung SSD 860 "}},
         {},
         {{}, "Samsung SSD 860 ", "SATA", {}}},
        {"SATA disk behind a USB bridge that passes ATA commands on",
         "pci0000:00/0000:00:14.0/usb2/2-1/2-1:1.0/host6/target6:0:0/6:0:0:0/block/sdc",
         {{"device/vendor", "WD      "}, {"device/model", "My Passport 25E2"}},
         {{"ID_VENDOR", "WD"}, {"ID_MODEL", "My Passport 25E2"}, {"ID_BUS", "ata"}},
         {"WD", "My Passport 25E2", "USB", "SATA"}},
        {"NVMe",
         pci + "/nvme/nvme0/nvme0n1",
         {{"../transport", "pcie"}, {"device/model", "WDC PC SN730"}},
         {},
         {{}, "WDC PC SN730", "NVMe", {}}},
        {"NVMe in a Thunderbolt case",
         "pci0000:00/0000:00:07.0/0000:04:00.0/nvme/nvme1/nvme1n1",
         {{"../transport", "pcie"}, {"../../../removable", "removable"}},
         {},
         {{}, {}, "Thunderbolt", {}}},
        {"NVMe over a network",
         "virtual/nvme-fabrics/ctl/nvme2/nvme2n1",
         {{"../transport", "tcp"}},
         {},
         {{}, {}, "NVMe over Fabrics", {}}},
        {"SAS",
         pci + "/host1/port-1:0/end_device-1:0/target1:0:0/1:0:0:0/block/sdd",
         {{"device/vendor", "SEAGATE "}, {"device/model", "ST4000NM0023"}},
         {},
         {"SEAGATE ", "ST4000NM0023", "SAS", {}}},
        {"SATA disk on a SAS controller",
         pci + "/host1/port-1:1/end_device-1:1/target1:0:1/1:0:1:0/block/sde",
         {{"device/vendor", "ATA     "}, {"device/model", "HGST HUS72"}},
         {},
         {{}, "HGST HUS72", "SATA", {}}},
        {"memory card",
         "pci0000:00/mmc_host/mmc0/mmc0:aaaa/block/mmcblk0",
         {{"device/type", "SD"}, {"device/name", "SD32G"}},
         {},
         {{}, "SD32G", "SD", {}}},
        {"soldered flash",
         "platform/mmc_host/mmc1/mmc1:0001/block/mmcblk1",
         {{"device/type", "MMC"}, {"device/name", "DA4064"}},
         {},
         {{}, "DA4064", "eMMC", {}}},
        {"virtio disk",
         "pci0000:00/0000:00:02.0/virtio1/block/vda",
         {{"device/vendor", "0x1af4"}},
         {},
         {{}, {}, "VirtIO", {}}},
        {"FireWire, known to the database only",
         "pci0000:00/other/block/sdf",
         {},
         {{"ID_BUS", "ieee1394"}},
         {{}, {}, {}, "FireWire"}},
    };
    for (const Drive& drive : drives)
        EXPECT_EQ(described(drive), drive.expected) << drive.what;
}

TEST(DriveDescription, OfSeveralDisksTellsWhatTheyHaveInCommon) {
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
