#include "OndelCore/platform/drives/DriveDescription.h"

#include "support/FakeMachine.h"

#include <gtest/gtest.h>
#include <sys/sysmacros.h>

using namespace OndelCore::platform;

namespace {

using Text = std::optional<std::string>;

/// The description of a disk with these attributes and these entries in the device database.
DriveDescription described(const std::string& place, const test::FakeMachine::Attributes& attributes,
                           const DeviceProperties& database = {}) {
    test::FakeMachine machine;
    const dev_t number = makedev(8, 0);
    machine.addBlockDevice(place, number, attributes);
    machine.setDatabase(number, database);
    machine.pretendMounted(machine.folder(), {.device = number});
    return describeDrive(machine.folder(), machine.sources()).value_or(DriveDescription());
}

DriveDescription drive(const Text& vendor, const Text& model, const Text& bus, const Text& protocol = {}) {
    return {vendor, model, bus, protocol};
}

constexpr std::nullopt_t none = std::nullopt;

TEST(DriveDescription, DescribesSataUsbAndSasDisks) {
    const std::string sata = "pci0000:00/0000:00:17.0/ata1/host0/target0:0:0/0:0:0:0/block/sda";
    const test::FakeMachine::Attributes cut{{"device/vendor", "ATA     "},
                                            {"device/model", "Samsung SSD 860 "}};
    EXPECT_EQ(described(sata, cut), drive(none, "Samsung SSD 860 ", "SATA"));
    EXPECT_EQ(described(sata, cut, {{"ID_MODEL", "Samsung SSD 860 EVO 500GB "}, {"ID_BUS", "ata"}}),
              drive(none, "Samsung SSD 860 EVO 500GB ", "SATA", "SATA"));
    // Behind a bridge that passes ATA commands the database has the disk as ATA.
    EXPECT_EQ(described("pci0000:00/usb2/2-1/2-1:1.0/host6/target6:0:0/6:0:0:0/block/sdc",
                        {{"device/vendor", "WD      "}, {"device/model", "My Passport 25E2"}},
                        {{"ID_BUS", "ata"}}),
              drive("WD      ", "My Passport 25E2", "USB", "SATA"));
    const std::string sas = "pci0000:00/host1/port-1:0/end_device-1:0/target1:0:0/1:0:0:0/block/sdd";
    EXPECT_EQ(described(sas, {{"device/vendor", "SEAGATE "}, {"device/model", "ST4000"}}),
              drive("SEAGATE ", "ST4000", "SAS"));
    EXPECT_EQ(described(sas, {{"device/vendor", "ATA     "}, {"device/model", "HGST"}}),
              drive(none, "HGST", "SATA"));
    EXPECT_EQ(described("pci0000:00/other/block/sdf", {}, {{"ID_BUS", "ieee1394"}}),
              drive(none, none, none, "FireWire"));
}

TEST(DriveDescription, DescribesFlashAndVirtualDisks) {
    const std::string slot = "pci0000:00/0000:00:07.0/0000:04:00.0/nvme/nvme1/nvme1n1";
    EXPECT_EQ(described(slot, {{"../transport", "pcie"}, {"device/model", "SN730"}}),
              drive(none, "SN730", "NVMe"));
    EXPECT_EQ(described(slot, {{"../transport", "pcie"}, {"../../../removable", "removable"}}),
              drive(none, none, "Thunderbolt"));
    EXPECT_EQ(described("virtual/nvme-fabrics/ctl/nvme2/nvme2n1", {{"../transport", "tcp"}}),
              drive(none, none, "NVMe over Fabrics"));
    const std::string card = "pci0000:00/mmc_host/mmc0/mmc0:aaaa/block/mmcblk0";
    EXPECT_EQ(described(card, {{"device/type", "SD"}, {"device/name", "SD32G"}}), drive(none, "SD32G", "SD"));
    EXPECT_EQ(described(card, {{"device/type", "MMC"}, {"device/name", "DA4064"}}),
              drive(none, "DA4064", "eMMC"));
    EXPECT_EQ(described("pci0000:00/virtio1/block/vda", {{"device/vendor", "0x1af4"}}),
              drive(none, none, "VirtIO"));
    EXPECT_EQ(described("virtual/block/loop0", {}), DriveDescription());
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
