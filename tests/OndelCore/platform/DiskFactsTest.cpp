#include "OndelCore/platform/drives/linux/DiskFacts.h"

#include "OndelCore/platform/drives/DiskWitness.h"
#include "OndelCore/platform/drives/linux/DriveLinks.h"
#include "OndelCore/platform/drives/linux/DriveSensors.h"
#include "OndelCore/platform/storage/FileDescriptor.h"
#include "support/FakeMachine.h"
#include "support/TemporaryFolder.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/sysmacros.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

using namespace OndelCore::platform;
namespace fs = std::filesystem;

namespace {

using Attributes = test::FakeMachine::Attributes;

const std::string pci = "pci0000:00/0000:01:00.0";
const std::string nvme = pci + "/nvme/nvme0/nvme0n1";
const std::string ataPort = "pci0000:00/0000:00:17.0/ata3";
const std::string ata = ataPort + "/host2/target2:0:0/2:0:0:0/block/sda";
const std::string usbDevice = "pci0000:00/0000:00:14.0/usb1/1-4";
const std::string usb = usbDevice + "/1-4:1.0/host6/target6:0:0/6:0:0:0/block/sdb";
const dev_t number = makedev(8, 0);

/// One disk in a tree, with the links that the kernel makes.
BlockDevice addDisk(test::FakeMachine& machine, const std::string& place, const Attributes& attributes = {}) {
    const fs::path folder = machine.addBlockDevice(place, number, attributes);
    const bool isNvme = place == nvme;
    const fs::path device = isNvme ? folder.parent_path() : folder.parent_path().parent_path();
    if (!fs::exists(folder / "device"))
        fs::create_symlink(device, folder / "device");
    if (isNvme) {
        machine.setAttributes(pci + "/nvme/nvme0", {{"transport", "pcie"}});
        fs::create_symlink(device.parent_path().parent_path(), device / "device");
    }
    return *blockDevice(number, machine.folder() / "sys");
}

std::string told(const std::optional<DriveLink>& link) {
    if (!link)
        return "none";
    const auto gigabits = [](double rate) { return std::to_string(std::llround(rate / 1e7)); };
    return gigabits(link->now) + " of " + gigabits(link->best); // in hundredths
}

TEST(DriveLinks, OfNvmeDrivesAreThoseOfPcie) {
    const struct {
        const char* speed;
        const char* lanes;
        std::string link;
    } cases[] = {
        {"16.0 GT/s PCIe", "4", "6400 of 6400"},
        {"8.0 GT/s PCIe", "4", "3200 of 6400"},
        {"16.0 GT/s PCIe", "2", "3200 of 6400"},
        {"2.5 GT/s", "1", "250 of 6400"},
        {"Unknown", "4", "none"},
        {"Unknown speed", "4", "none"},
        {"16.0 GT/s PCIe", "0", "none"},
        {"16.0 GT/s PCIe", "255", "none"},
        {"16.0 GT/s PCIe", "", "none"},
        {"-8.0 GT/s PCIe", "4", "none"},
        {"nan GT/s PCIe", "4", "none"},
        {"16.0", "4", "none"},
    };
    for (const auto& [speed, lanes, link] : cases) {
        test::FakeMachine machine;
        const BlockDevice disk = addDisk(machine, nvme);
        machine.setAttributes(pci, {{"current_link_speed", speed},
                                    {"current_link_width", lanes},
                                    {"max_link_speed", "16.0 GT/s PCIe"},
                                    {"max_link_width", "4"}});
        EXPECT_EQ(told(linkOfDisk(disk)), link) << speed << " x" << lanes;
        machine.setAttributes(pci, {{"removable", "removable"}}); // Thunderbolt tells no true link
        EXPECT_EQ(told(linkOfDisk(disk)), "none");
    }
    test::FakeMachine machine;
    EXPECT_EQ(told(linkOfDisk(addDisk(machine, nvme))), "none");
}

/// The identity of an ATA disk as the kernel shows it, with this for its word 76.
std::string identity(const std::string& word) {
    std::string text;
    for (int index = 0; index < 256; ++index)
        text += (index == 76 ? word : "3fff") + (index % 8 == 7 ? '\n' : ' ');
    return text;
}

TEST(DriveLinks, OfSataDisksAreMeasuredByWhatTheDiskSays) {
    const struct {
        const char* speed;
        std::string identity;
        std::string link;
    } cases[] = {
        {"6.0 Gbps", identity("850e"), "600 of 600"},   {"3.0 Gbps", identity("850e"), "300 of 600"},
        {"3.0 Gbps", identity("0006"), "300 of 300"}, // the disk knows no more: whatever the port could do
        {"1.5 Gbps", identity("0002"), "150 of 150"},   {"<unknown>", identity("850e"), "none"},
        {"3.0 Gbps", identity("0000"), "none"},         {"3.0 Gbps", identity("ffff"), "none"},
        {"3.0 Gbps", identity("zzzz"), "none"},         {"3.0 Gbps", "850e 850e\n", "none"},
        {"3.0 Gbps", std::string(100000, 'f'), "none"},
    };
    for (const auto& [speed, id, link] : cases) {
        test::FakeMachine machine;
        const BlockDevice disk = addDisk(machine, ata);
        machine.setAttributes(ataPort + "/link3",
                              {{"ata_link/link3/sata_spd", speed}, {"dev3.0/ata_device/dev3.0/id", id}});
        EXPECT_EQ(told(linkOfDisk(disk)), link)
            << speed << ' ' << id.substr(std::min<std::size_t>(380, id.size()), 4);
    }
}

TEST(DriveLinks, OfUsbDisksAreMeasuredByTheirCapabilities) {
    const std::string header("\x05\x0f\x40\x00\x03", 5);
    const std::string lpm("\x07\x10\x02\x02\x00\x00\x00", 7);
    const std::string super("\x0a\x10\x03\x00\x0e\x00\x01\x0a\xff\x07", 10);
    const std::string superPlus(
        "\x14\x10\x0a\x00\x01\x00\x00\x00\x00\x11\x00\x00\x30\x40\x0a\x00\xb0\x40\x0a\x00", 20);
    const struct {
        const char* speed;
        const char* version;
        std::optional<std::string> capabilities;
        std::string link;
    } cases[] = {
        {"480", " 2.10", {}, "48 of 500"},
        {"480", " 2.00", {}, "none"},
        {"5000", " 3.20", {}, "none"}, // without a word of more
        {"480", " 2.10", header + lpm, "none"},
        {"480", " 2.10", header + lpm + super, "48 of 500"},
        {"480", " 2.10", header + super + superPlus, "48 of 1000"},
        {"5000", " 3.20", header + super + superPlus, "500 of 1000"},
        {"10000", " 3.20", header + super + superPlus, "1000 of 1000"},
        {"480", " 2.10", header + super.substr(0, 6), "none"}, // cut off
        {"480", " 2.10", header + std::string(100, '\0'), "none"},
        {"480", " 2.10", std::string(), "none"},
        {"12", " 2.10", header + super, "none"},
        {"fast", " 2.10", {}, "none"},
    };
    for (const auto& [speed, version, capabilities, link] : cases) {
        test::FakeMachine machine;
        const BlockDevice disk = addDisk(machine, usb);
        machine.setAttributes(usbDevice, {{"speed", speed}, {"version", version}});
        if (capabilities)
            std::ofstream(machine.folder() / "sys/devices" / usbDevice / "bos_descriptors") << *capabilities;
        EXPECT_EQ(told(linkOfDisk(disk)), link) << speed << version;
    }
}

TEST(DiskFacts, TellWhereAPartitionBeginsWithinAPhysicalBlock) {
    const struct {
        const char* start;
        const char* physical;
        const char* shift;
        std::optional<Misalignment> misalignment;
    } cases[] = {
        {"2048", "4096", "0", {}},
        {"63", "4096", "0", Misalignment{3584, 4096}},
        {"63", "512", "0", {}},
        {"63", "4096", "3584", {}}, // the disk shifts its blocks for this
        {"2048", "4096", "3584", Misalignment{512, 4096}},
        {"63", "4096", "-1", {}},
        {"63", "5000", "0", {}},
        {"63", "", "0", {}},
        {"-63", "4096", "0", {}},
        {"63", "4096", "", {}},
        {"9223372036854775807", "4096", "0", {}},
    };
    for (const auto& [start, physical, shift, misalignment] : cases) {
        test::FakeMachine machine;
        addDisk(machine, ata, {{"queue/physical_block_size", physical}, {"alignment_offset", shift}});
        machine.addBlockDevice(ata + "/sda1", makedev(8, 1), {{"partition", "1"}, {"start", start}});
        machine.addBlockDevice("virtual/block/dm-0", makedev(253, 0), {{"dm/uuid", "CRYPT-LUKS2-x"}});
        machine.stack("virtual/block/dm-0", ata + "/sda1");
        Circumstances found;
        addDiskFacts(found, blockStack(makedev(253, 0), machine.sources()));
        EXPECT_EQ(found.misalignment, misalignment) << start << ' ' << physical << ' ' << shift;
        EXPECT_TRUE(found.isEncrypted);
        EXPECT_EQ(found.disks, 1);
    }
}

TEST(DiskFacts, SayNothingOfWhatADiskDoesNotTellTruly) {
    const struct {
        std::string place;
        Attributes attributes;
        std::string words;
    } cases[] = {
        {ata, {{"queue/rotational", "1"}, {"queue/write_cache", "write back"}}, "rotates caches"},
        {ata, {{"queue/rotational", "0"}, {"queue/write_cache", "write through"}}, "still through"},
        {ata, {{"queue/rotational", "2"}, {"queue/write_cache", "yes"}}, ""},
        {ata, {}, ""},
        {usb, {{"queue/rotational", "1"}}, ""}, // what the kernel takes for granted
        {usb, {{"queue/rotational", "0"}}, "still"},
        {"pci0000:00/0000:00:02.0/virtio1/block/vda", {{"queue/rotational", "1"}}, "virtual"},
        {nvme, {{"../model", "QEMU NVMe Ctrl     "}}, "virtual"},
        {nvme, {{"../model", "Samsung SSD 990 PRO 2TB"}}, ""},
        {"virtual/block/loop0",
         {{"queue/rotational", "1"}, {"loop/backing_file", "/x"}, {"loop/dio", "0"}},
         "file cached"},
        {"virtual/block/loop0", {{"loop/backing_file", "/x"}, {"loop/dio", "1"}}, "file"},
        {"virtual/block/loop0", {{"loop/backing_file", "/x"}}, "file"},
    };
    for (const auto& [place, attributes, words] : cases) {
        test::FakeMachine machine;
        addDisk(machine, place, attributes);
        Circumstances found;
        addDiskFacts(found, blockStack(number, machine.sources()));
        std::string said;
        const auto say = [&](bool isSo, const char* word) {
            said += isSo ? (said.empty() ? "" : " ") + std::string(word) : "";
        };
        say(found.isRotational == true, "rotates"), say(found.isRotational == false, "still");
        say(found.hasVolatileWriteCache == true, "caches");
        say(found.hasVolatileWriteCache == false, "through");
        say(found.isVirtualDisk, "virtual"), say(found.isFileOnDisk, "file");
        say(found.isCachedFileOnDisk, "cached");
        EXPECT_EQ(said, words) << place;
    }
}

struct DriveSensorsTest : testing::Test {
    static SmartSources sources() { return {.system = {}, .serviceBus = "unix:path=/no/bus"}; }
    const DriveSensors::Clock::time_point start = DriveSensors::Clock::now();
};

TEST_F(DriveSensorsTest, AreAbsentWhereTheyTellNonsense) {
    const struct {
        std::string text;
        std::optional<double> celsius;
        std::optional<double> limit;
    } cases[] = {
        {"41850", 41.85, 41.85},
        {"-5000", -5, {}},
        {"-40000", {}, {}},
        {"65261850", {}, {}},
        {"150000", 150, 150},
        {"150001", {}, {}},
        {"", {}, {}},
        {"hot", {}, {}},
        {"99999999999999999999", {}, {}},
        {"41850 C", {}, {}},
        {std::string(1 << 20, '4'), {}, {}},
        {"0", 0, {}},
    };
    for (const auto& [text, celsius, limit] : cases) {
        test::FakeMachine machine;
        const BlockDevice disk = addDisk(machine, nvme);
        machine.setAttributes(
            pci + "/nvme/nvme0/hwmon1",
            {{"name", "nvme"}, {"temp1_input", text}, {"temp1_max", text}, {"temp1_crit", text}});
        DriveSensors sensors({disk}, sources());
        EXPECT_EQ(sensors.hottest(start), celsius) << text.substr(0, 30);
        EXPECT_EQ(sensors.limits().max, limit) << text.substr(0, 30);
        EXPECT_EQ(sensors.limits().critical, limit) << text.substr(0, 30);
    }
}

TEST_F(DriveSensorsTest, OfSeveralDisksTheHottestCountsAndTheHighestLimit) {
    test::FakeMachine machine;
    const auto setSata = [&](const char* input) {
        machine.setAttributes(ata + "/device/hwmon/hwmon2", {{"name", "drivetemp"}, {"temp1_input", input}});
    };
    const BlockDevice first = addDisk(machine, nvme);
    machine.setAttributes(pci + "/nvme/nvme0/hwmon1",
                          {{"name", "nvme"}, {"temp1_input", "40000"}, {"temp1_max", "80000"}});
    machine.setAttributes(ata, {{"dev", "8:16"}, {"device/hwmon/hwmon2/temp1_max", "60000"}});
    const BlockDevice second{
        .number = makedev(8, 16), .name = "sda", .folder = machine.folder() / "sys/devices" / ata};
    setSata("50000");
    DriveSensors sensors({first, second}, sources());
    EXPECT_EQ(sensors.hottest(start), 50);
    EXPECT_EQ(sensors.limits().max, 80);
    setSata("55000"); // a SATA disk is asked every five seconds
    EXPECT_EQ(sensors.hottest(start + std::chrono::seconds(4)), 50);
    EXPECT_EQ(sensors.hottest(start + std::chrono::seconds(5)), 55);
    machine.setAttributes(ata, {{"device/power/runtime_status", "suspended"}}); // a reading would wake it
    EXPECT_EQ(sensors.hottest(start + std::chrono::seconds(10)), 40);
    fs::remove(machine.folder() / "sys/devices" / ata / "device/hwmon/hwmon2/temp1_max");
    EXPECT_FALSE(sensors.limits().max); // whose limit would it be
    fs::remove_all(machine.folder() / "sys/devices");
    EXPECT_FALSE(sensors.hottest(start + std::chrono::seconds(15)));
}

TEST_F(DriveSensorsTest, OfOtherThingsAreNone) {
    test::FakeMachine machine;
    const BlockDevice disk = addDisk(machine, ata);
    machine.setAttributes(ata + "/device/hwmon/hwmon0", {{"name", "acpitz"}, {"temp1_input", "40000"}});
    EXPECT_FALSE(DriveSensors({disk}, sources()).hottest(start));
    EXPECT_FALSE(DriveSensors({}, sources()).hottest(start));
}

struct CountingDisks : testing::Test {
    void write(const char* disk, const std::string& stat) const {
        std::filesystem::create_directory(folder.path() / disk);
        std::ofstream(folder.path() / disk / "stat") << stat;
    }
    const test::TemporaryFolder folder;
    const std::unique_ptr<DiskWitness> witness = witnessOf({folder.path() / "sda", folder.path() / "sdb"});
};

TEST_F(CountingDisks, AreSummedUpInBytes) {
    write("sda", "   10    1   16   3   20   2   32   0   0   0   0\n"); // kernels before 4.18 end here
    write("sdb", "  100    0  160   0  200   0  320   0   0   0   0   0   0   0   0   5   6\n");
    EXPECT_EQ(witness->counters(), (DiskCounters{176 * 512, 110, 352 * 512, 220}));
    EXPECT_FALSE(witnessOf({}));
}

TEST_F(CountingDisks, ThatTellNonsenseOrCountBackTellNothing) {
    write("sda", "10 0 16 0 20 0 32 0");
    for (const char* bad : {"", "no numbers at all", "1 2 3", "-1 0 0 0 0 0 0",
                            "9 0 99999999999999999999 0 0 0 0", "9 0 9000000000000000000 0 0 0 0"}) {
        write("sdb", bad);
        EXPECT_FALSE(witness->counters()) << bad;
    }
    write("sdb", "100 0 160 0 200 0 320 0");
    EXPECT_TRUE(witness->counters());
    EXPECT_TRUE(witness->counters()) << "nothing was moved";
    write("sdb", "100 0 159 0 200 0 320 0");
    EXPECT_FALSE(witness->counters());
    std::filesystem::remove_all(folder.path() / "sda");
    EXPECT_FALSE(witness->counters());
}

TEST(ThreadTraffic, CountsWhatThisThreadWrote) {
    const test::TemporaryFolder folder; // may lie in memory, where nothing counts
    const auto before = trafficOfThisThread();
    if (!before)
        GTEST_SKIP() << "the kernel does not account for threads";
    const FileDescriptor file(open((folder.path() / "file").c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600));
    const std::vector<char> block(1 << 20);
    ASSERT_EQ(write(file.get(), block.data(), block.size()), 1 << 20);
    const auto after = trafficOfThisThread();
    EXPECT_GE(after->readBytes, before->readBytes);
    const std::int64_t written = after->writtenBytes - before->writtenBytes;
    EXPECT_TRUE(written == 0 || written >= 1 << 20) << written;
}

} // namespace
