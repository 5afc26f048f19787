#include "OndelCore/platform/SmartBlocks.h"

#include "OndelCore/platform/FakeDrives.h"
#include "OndelCore/platform/linux/AtaPassThrough.h"

#include <gtest/gtest.h>
#include <linux/nvme_ioctl.h>

#include <cerrno>
#include <cstring>
#include <functional>
#include <random>

namespace OndelCore::platform {

namespace {

using test::descriptorSense;
using test::FakeDeviceTree;
using test::FakeDrive;
using test::FakeDrives;
using test::fixedSense;

SmartPage filled(std::uint8_t byte) {
    SmartPage page;
    page.fill(byte);
    return page;
}

TEST(SmartBlocks, AsksAnNvmeDriveForItsHealthLogAndNothingElse) {
    FakeDeviceTree tree;
    tree.addDisk("nvme0n1", "259:0", "nvme");
    tree.addPartition("nvme0n1", "nvme0n1p2", "259:2");
    FakeDrives drives;
    drives.drives["nvme0n1"].page = filled(0xff);

    const SmartAnswer answer = smartOfDevice("nvme0n1p2", tree.sources(drives));
    ASSERT_TRUE(std::holds_alternative<NvmeSmart>(answer.blocks)) << answer.source;
    EXPECT_EQ(std::get<NvmeSmart>(answer.blocks).page, filled(0xff));
    EXPECT_EQ(answer.source, "NVMe health log of nvme0n1");

    ASSERT_EQ(drives.drives["nvme0n1"].commands.size(), 1U);
    nvme_passthru_cmd command;
    std::memcpy(&command, drives.drives["nvme0n1"].commands[0].data(), sizeof command);
    EXPECT_EQ(command.opcode, 0x02);
    EXPECT_EQ(command.nsid, 0xffffffffU);
    EXPECT_EQ(command.cdw10, 0x007f0002U);
    EXPECT_EQ(command.data_len, 512U);
    EXPECT_EQ(command.timeout_ms, 20000U);
}

/// One ATA disk that differs from a healthy one, and what comes of it.
struct AtaCase {
    const char* what;
    std::function<void(FakeDrive&)> change;
    std::optional<bool> exceeded; ///< absent: no answer at all
    bool hasPage;
    std::size_t commandCount;
};

const AtaCase ataCases[] = {
    {"healthy", [](FakeDrive&) {}, false, true, 3},
    {"failing", [](FakeDrive& d) { d.verdict = descriptorSense(0x50, 0, 0xf4, 0x2c); }, true, true, 3},
    {"fixed sense",
     [](FakeDrive& d) {
         d.power = fixedSense(0x50, 0x80, 0, 0), d.verdict = fixedSense(0x50, 0, 0xf4, 0x2c);
     },
     true, true, 3},
    {"standby", [](FakeDrive& d) { d.power = descriptorSense(0x50, 0x00, 0, 0); }, {}, false, 1},
    {"standby_y", [](FakeDrive& d) { d.power = fixedSense(0x50, 0x01, 0, 0); }, {}, false, 1},
    {"spun down, cache on", [](FakeDrive& d) { d.power = descriptorSense(0x50, 0x40, 0, 0); }, {}, false, 1},
    {"power mode unknown to it", [](FakeDrive& d) { d.power = descriptorSense(0x51, 0, 0, 0); }, false, true,
     3},
    {"bridge without registers",
     [](FakeDrive& d) { d.power = {0x70, 0, 0x05, 0, 0, 0, 0, 10, 0, 0, 0, 0, 0x20, 0, 0, 0, 0, 0}; },
     {},
     false,
     1},
    {"sense cut short", [](FakeDrive& d) { d.power.resize(25); }, {}, false, 1},
    {"sense empty", [](FakeDrive& d) { d.power.clear(); }, {}, false, 1},
    {"switched off", [](FakeDrive& d) { d.verdict = descriptorSense(0x51, 0, 0x4f, 0xc2); }, {}, false, 2},
    {"no signature", [](FakeDrive& d) { d.verdict = descriptorSense(0x50, 0, 0, 0); }, {}, false, 2},
    {"verdict without registers", [](FakeDrive& d) { d.verdict.clear(); }, {}, false, 2},
    {"page cut short", [](FakeDrive& d) { d.missing = 1; }, false, false, 3},
    {"page times out", [](FakeDrive& d) { d.hostStatus = 3; }, false, false, 3},
    {"gone before the first command", [](FakeDrive& d) { d.commandError = ENODEV; }, {}, false, 0},
    {"gone before the verdict",
     [](FakeDrive& d) { d.commandError = ENODEV, d.commandsBeforeError = 1; },
     {},
     false,
     1},
    {"gone before the page", [](FakeDrive& d) { d.commandError = ENXIO, d.commandsBeforeError = 2; }, false,
     false, 2},
    {"gone before it is opened", [](FakeDrive& d) { d.openError = ENXIO; }, {}, false, 0},
    {"not permitted", [](FakeDrive& d) { d.commandError = EPERM; }, {}, false, 0},
};

TEST(SmartBlocks, AsksAnAtaDriveForItsModeThenItsVerdictThenItsFigures) {
    const test::Bytes expected[] = {
        {0x85, 0x06, 0x20, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0xe5, 0},
        {0x85, 0x06, 0x20, 0, 0xda, 0, 0, 0, 0, 0, 0x4f, 0, 0xc2, 0, 0xb0, 0},
        {0x85, 0x08, 0x0e, 0, 0xd0, 0, 1, 0, 0, 0, 0x4f, 0, 0xc2, 0, 0xb0, 0},
    };
    FakeDeviceTree tree;
    tree.addDisk("sda", "8:0", "scsi", {{"device/vendor", "ATA     "}});
    for (const AtaCase& each : ataCases) {
        SCOPED_TRACE(each.what);
        FakeDrives drives;
        FakeDrive& drive = drives.drives["sda"];
        drive.page = filled(0x5a);
        each.change(drive);

        const SmartAnswer answer = smartOfDevice("sda", tree.sources(drives));
        EXPECT_EQ(answer.isEmpty(), !each.exceeded) << answer.source;
        EXPECT_NE(answer.source.find("sda"), std::string::npos) << answer.source;
        ASSERT_EQ(drive.commands.size(), each.commandCount);
        for (std::size_t index = 0; index < drive.commands.size(); ++index)
            EXPECT_EQ(drive.commands[index], expected[index]);
        if (const auto* smart = std::get_if<AtaSmart>(&answer.blocks)) {
            EXPECT_EQ(smart->thresholdExceeded, each.exceeded);
            EXPECT_EQ(smart->page, each.hasPage ? std::optional(filled(0x5a)) : std::nullopt);
        }
    }
}

TEST(SmartBlocks, SendsNoAtaCommandToWhatDoesNotDeclareToTakeThem) {
    struct Case {
        const char* what;
        std::map<std::string, std::string> files;
        test::Bytes supportedPages;
        bool inDatabase;
        bool answers;
        std::size_t opened;
    };
    const test::Bytes listed{0, 0, 0, 3, 0x00, 0x83, 0x89};
    const Case cases[] = {
        {"bridge that lists the page",
         {{"device/vendor", "ACME"}, {"removable", "0"}},
         listed,
         false,
         true,
         1},
        {"bridge that the kernel asked", {{"device/vpd_pg89", "x"}}, {}, false, true, 1},
        {"bridge that the database knows", {{"removable", "1"}}, {}, true, true, 1},
        {"disk that lists others", {{"removable", "0"}}, {0, 0, 0, 2, 0x00, 0x83}, false, false, 1},
        {"list that ends before it", {{"removable", "0"}}, {0, 0, 0, 2, 0x00, 0x83, 0x89}, false, false, 1},
        {"list cut short", {{"removable", "0"}}, {0, 0, 0, 200, 0x00}, false, false, 1},
        {"another page than asked for",
         {{"removable", "0"}},
         {0, 0x05, 0, 3, 0x00, 0x83, 0x89},
         false,
         false,
         1},
        {"nothing", {{"removable", "0"}}, {}, false, false, 1},
        {"stick", {{"removable", "1"}}, listed, false, false, 0},
        {"asleep by the kernel's doing",
         {{"device/vendor", "ATA"}, {"device/power/runtime_status", "suspended"}},
         listed,
         false,
         false,
         0},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.what);
        FakeDeviceTree tree;
        tree.addDisk("sdb", "8:16", "scsi", each.files);
        FakeDrives drives;
        drives.drives["sdb"].supportedPages = each.supportedPages;
        SmartSources sources = tree.sources(drives);
        if (each.inDatabase)
            sources.system.database = [](dev_t) { return DeviceProperties{{"ID_ATA", "1"}}; };
        EXPECT_EQ(smartOfDevice("sdb", sources).isEmpty(), !each.answers);
        EXPECT_EQ(drives.opened.size(), each.opened);
        for (const test::Bytes& command : drives.drives["sdb"].commands)
            EXPECT_TRUE(each.answers || command[0] == 0x12) << int{command[0]};
    }
}

TEST(SmartBlocks, FindsTheFirstDiskThatAnswersUnderAllLayers) {
    FakeDeviceTree tree;
    tree.addDisk("sda", "8:0", "scsi", {{"device/vendor", "ATA"}});
    tree.addDisk("sdb", "8:16", "scsi", {{"device/vendor", "ATA"}});
    tree.addDisk("vda", "254:0", "virtio");
    tree.addPartition("sda", "sda1", "8:1");
    tree.addPartition("sdb", "sdb1", "8:17");
    tree.addLayer("md0", "9:0", {"sda1", "sdb1"});
    tree.addLayer("dm-0", "253:0", {"md0"});
    tree.addLayer("dm-1", "253:1", {"dm-0"});
    FakeDrives drives;
    drives.drives["sda"].power = descriptorSense(0x50, 0x00, 0, 0);
    drives.drives["sdb"];

    EXPECT_EQ(smartOfDevice("dm-1", tree.sources(drives)).source, "ATA S.M.A.R.T. of sdb");
    drives.drives["sdb"].openError = EACCES;
    EXPECT_EQ(smartOfDevice("dm-1", tree.sources(drives)).source,
              "sda is asleep and was left alone; sdb may only be asked by an administrator, and UDisks2 does "
              "not answer");
    EXPECT_EQ(smartOfDevice("vda", tree.sources(drives)).source, "vda has no S.M.A.R.T. interface");
    EXPECT_EQ(smartOfDevice("new\nline", tree.sources(drives)).source, "new?line is no block device");
}

/// Damaged sense data of every length, in a buffer of exactly that length so that the sanitizers see a byte
/// too far.
TEST(SmartBlocks, ReadsSenseDataOfAnyBytes) {
    std::mt19937_64 random(8589934592);
    std::size_t found = 0;
    for (int round = 0; round < 300000; ++round) {
        test::Bytes sense =
            round % 2 ? descriptorSense(0x50, 0xff, 0x4f, 0xc2) : fixedSense(0x50, 0, 0xf4, 0x2c);
        for (std::size_t changes = random() % 4; changes > 0; --changes)
            sense[random() % sense.size()] = static_cast<std::uint8_t>(random());
        sense.resize(random() % (sense.size() + 1));
        sense.shrink_to_fit();
        found += ataRegisters(sense).has_value();
    }
    EXPECT_GT(found, 1000U);
    EXPECT_EQ(ataRegisters(fixedSense(0x51, 7, 0x4f, 0xc2)),
              ataRegisters(descriptorSense(0x51, 7, 0x4f, 0xc2)));
}

TEST(SmartBlocks, StandsTheRealMachine) {
    for (const char* name : {"", "null", "no-such-device", "../etc/passwd", "loop0"})
        EXPECT_TRUE(smartOfDevice(name).isEmpty()) << name;
}

} // namespace
} // namespace OndelCore::platform
