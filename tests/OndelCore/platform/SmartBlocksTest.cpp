#include "OndelCore/platform/drives/SmartBlocks.h"

#include "OndelCore/platform/FakeDrives.h"
#include "OndelCore/platform/drives/linux/AtaPassThrough.h"

#include <sys/sysmacros.h>

#include <random>

namespace OndelCore::platform {

namespace {

using test::answerOf;
using test::descriptorSense;
using test::FakeDrive;
using test::FakeDrives;
using test::FakeMachine;
using test::fixedSense;
using test::mountFrom;
using test::sourcesOf;

TEST(SmartBlocks, ReadsOnlyTheHealthLogOfAnNvmeDrive) {
    FakeMachine machine;
    addDisk(machine, "nvme0n1", makedev(259, 0), "nvme");
    machine.addBlockDevice("nvme0n1/nvme0n1p2", makedev(259, 2), {{"partition", "1"}});
    FakeDrives drives;
    drives.drives["nvme0n1"].page.fill(0xff);

    const SmartAnswer answer = answerOf("nvme0n1p2", sourcesOf(machine, drives));
    ASSERT_TRUE(std::holds_alternative<NvmeSmart>(answer.blocks)) << answer.source;
    EXPECT_EQ(std::get<NvmeSmart>(answer.blocks).page, drives.drives["nvme0n1"].page);
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

/// An ATA disk and the expected outcome: verdict, page, number of commands sent.
struct AtaCase {
    const char* what;
    FakeDrive drive;
    const char* outcome;
};

const AtaCase ataCases[] = {
    {"healthy", {}, "good, page, 3"},
    {"failing", {.verdict = descriptorSense(0x50, 0, 0xf4, 0x2c)}, "exceeded, page, 3"},
    {"fixed sense",
     {.power = fixedSense(0x50, 0x80), .verdict = fixedSense(0x50, 0, 0xf4, 0x2c)},
     "exceeded, page, 3"},
    {"standby", {.power = descriptorSense(0x50, 0x00)}, "none, 1"},
    {"standby_y", {.power = fixedSense(0x50, 0x01)}, "none, 1"},
    {"spun down behind its cache", {.power = descriptorSense(0x50, 0x40)}, "none, 1"},
    {"power mode unknown to it", {.power = descriptorSense(0x51, 0)}, "good, page, 3"},
    {"bridge without registers", {.power = {0x70, 0, 0x05, 0, 0, 0, 0, 10, 0, 0, 0, 0, 0x20, 0}}, "none, 1"},
    {"sense without its end", {.power = {0x72, 1, 0, 0x1d, 0, 0, 0, 14, 9, 12, 0, 0, 0, 0xff}}, "none, 1"},
    {"no sense", {.power = {}}, "none, 1"},
    {"switched off", {.verdict = descriptorSense(0x51, 0, 0x4f, 0xc2)}, "none, 2"},
    {"no signature", {.verdict = descriptorSense(0x50, 0)}, "none, 2"},
    {"verdict without registers", {.verdict = {}}, "none, 2"},
    {"page cut short", {.missing = 1}, "good, 3"},
    {"page times out", {.hostStatus = 3}, "good, 3"},
    {"gone before it is opened", {.openError = ENXIO}, "none, 0"},
    {"gone before the first command", {.commandError = ENODEV}, "none, 0"},
    {"gone before the verdict", {.commandError = ENODEV, .commandsBeforeError = 1}, "none, 1"},
    {"gone before the page", {.commandError = ENXIO, .commandsBeforeError = 2}, "good, 2"},
    {"not permitted", {.commandError = EPERM}, "none, 0"},
};

std::string outcomeOf(const SmartAnswer& answer, const FakeDrive& drive) {
    std::string text = "none";
    if (const auto* smart = std::get_if<AtaSmart>(&answer.blocks)) {
        text = smart->thresholdExceeded.value() ? "exceeded" : "good";
        text += !smart->page ? "" : *smart->page == drive.page ? ", page" : ", another page";
    }
    return text + ", " + std::to_string(drive.commands.size());
}

TEST(SmartBlocks, ReadsModeThenVerdictThenFiguresOfAnAtaDrive) {
    const test::Bytes expected[] = {
        {0x85, 0x06, 0x20, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0xe5, 0},
        {0x85, 0x06, 0x20, 0, 0xda, 0, 0, 0, 0, 0, 0x4f, 0, 0xc2, 0, 0xb0, 0},
        {0x85, 0x08, 0x0e, 0, 0xd0, 0, 1, 0, 0, 0, 0x4f, 0, 0xc2, 0, 0xb0, 0},
    };
    FakeMachine machine;
    addDisk(machine, "sda", makedev(8, 0), "scsi", {{"device/vendor", "ATA     "}});
    for (const AtaCase& each : ataCases) {
        SCOPED_TRACE(each.what);
        FakeDrives drives;
        FakeDrive& drive = drives.drives["sda"] = each.drive;
        drive.page.fill(0x5a);
        const SmartAnswer answer = answerOf("sda", sourcesOf(machine, drives));
        EXPECT_EQ(outcomeOf(answer, drive), each.outcome) << answer.source;
        EXPECT_NE(answer.source.find("sda"), std::string::npos) << answer.source;
        for (std::size_t index = 0; index < drive.commands.size(); ++index)
            EXPECT_EQ(drive.commands[index], expected[index]);
    }
}

TEST(SmartBlocks, SendsAtaCommandsOnlyToDisksThatDeclareThem) {
    struct Case {
        const char* what;
        FakeMachine::Attributes files;
        test::Bytes supportedPages;
        bool answers;
        std::size_t opened;
    };
    const FakeMachine::Attributes fixed{{"device/vendor", "ACME"}, {"removable", "0"}};
    const test::Bytes listed{0, 0, 0, 3, 0x00, 0x83, 0x89};
    const Case cases[] = {
        {"bridge that lists the page", fixed, listed, true, 1},
        {"bridge that the kernel asked", {{"device/vpd_pg89", "x"}}, {}, true, 1},
        {"bridge that the database knows", {{"in-database", ""}, {"removable", "1"}}, {}, true, 1},
        {"disk that lists others", fixed, {0, 0, 0, 2, 0x00, 0x83}, false, 1},
        {"list that ends before it", fixed, {0, 0, 0, 2, 0x00, 0x83, 0x89}, false, 1},
        {"list cut short", fixed, {0, 0, 0, 200, 0x00}, false, 1},
        {"another page than asked for", fixed, {0, 0x05, 0, 3, 0x00, 0x83, 0x89}, false, 1},
        {"nothing", fixed, {}, false, 1},
        {"stick", {{"removable", "1"}}, listed, false, 0},
        {"asleep", {{"device/vendor", "ATA"}, {"device/power/runtime_status", "suspended"}}, {}, false, 0},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.what);
        FakeMachine machine;
        addDisk(machine, "sdb", makedev(8, 16), "scsi", each.files);
        FakeDrives drives;
        drives.drives["sdb"].supportedPages = each.supportedPages;
        if (each.files.contains("in-database"))
            machine.setDatabase(makedev(8, 16), {{"ID_ATA", "1"}});
        EXPECT_EQ(answerOf("sdb", sourcesOf(machine, drives)).isEmpty(), !each.answers);
        EXPECT_EQ(drives.opened.size(), each.opened);
        for (const test::Bytes& command : drives.drives["sdb"].commands)
            EXPECT_TRUE(each.answers || command[0] == 0x12) << int{command[0]};
    }
}

/// "sda: NVMe health log of sda | sdb: ..." for every disk under a device.
std::string told(const DiskAnswers& answers) {
    std::string text = answers.obstacle;
    for (const auto& [disk, answer] : answers.disks)
        text += (text.empty() ? "" : " | ") + disk + ": " + answer.source;
    return text;
}

TEST(SmartBlocks, ReadsEveryDiskUnderAllLayers) {
    FakeMachine machine;
    const FakeMachine::Attributes ata{{"device/vendor", "ATA"}};
    addDisk(machine, "sda", makedev(8, 0), "scsi", ata);
    addDisk(machine, "sdb", makedev(8, 16), "scsi", ata);
    addDisk(machine, "sdc", makedev(8, 32), "scsi", ata);
    addDisk(machine, "nvme0n1", makedev(259, 0), "nvme");
    addDisk(machine, "vda", makedev(254, 0), "virtio");
    machine.addBlockDevice("sda/sda1", makedev(8, 1), {{"partition", "1"}});
    machine.addBlockDevice("sdb/sdb1", makedev(8, 17), {{"partition", "1"}});
    unsigned layer = 0;
    for (const auto& [upper, lower] : {std::pair{"md0", "sda/sda1"}, {"dm-0", "md0"}, {"dm-1", "dm-0"}}) {
        machine.addBlockDevice(upper, makedev(253, layer++), {{"dm/name", std::string("name-of-") + upper}});
        machine.stack(upper, lower);
    }
    machine.stack("md0", "sdb/sdb1");
    machine.addBlockDevice("dm-2", makedev(253, 10), {{"dm/uuid", "mpath-3600a"}});
    machine.stack("dm-2", "sdb");
    machine.stack("dm-2", "sdc");
    machine.joinBtrfs("0-a", {"nvme0n1", "sda/sda1"});
    machine.addBlockDevice("loop0", makedev(7, 0), {{"loop/backing_file", "/srv/data/image (deleted)"}});
    machine.addBlockDevice("loop1", makedev(7, 1), {{"loop/backing_file", "/tmp/image"}});
    machine.setMountTable("1 0 8:32 / / rw - ext4 /dev/sdc rw\n"
                          "2 1 0:40 / /srv/data rw - btrfs /dev/nvme0n1 rw\n"
                          "3 1 0:41 / /tmp rw - tmpfs none rw\n"
                          "4 1 253:2 / /srv/dat rw - ext4 /dev/dm-1 rw\n");
    FakeDrives drives;
    for (const char* name : {"sda", "sdb", "sdc", "nvme0n1"})
        drives.drives[name];
    const auto all = [&](const char* name, const char* type = "ext4") {
        return told(smartOfMount(mountFrom(name, type), sourcesOf(machine, drives)));
    };

    const std::string mirror = "sda: ATA S.M.A.R.T. of sda | sdb: ATA S.M.A.R.T. of sdb";
    const std::string btrfs = "nvme0n1: NVMe health log of nvme0n1 | sda: ATA S.M.A.R.T. of sda";
    const std::pair<const char*, std::string> cases[] = {
        {"dm-1", mirror},
        {"mapper/name-of-dm-1", mirror},
        {"loop0", btrfs},
        {"loop1", "loop1: loop1 has no S.M.A.R.T. interface"},
        {"vda:/dev/sdc", "vda: vda has no S.M.A.R.T. interface | sdc: ATA S.M.A.R.T. of sdc"},
        {"dm-2", "sdb: ATA S.M.A.R.T. of sdb"},
        {"new\nline", "new?line is no block device"},
    };
    for (const auto& [device, expected] : cases)
        EXPECT_EQ(all(device), expected) << device;
    for (const char* member : {"nvme0n1", "sda1"})
        EXPECT_EQ(all(member, "btrfs"), btrfs) << member;

    drives.drives["sda"].power = descriptorSense(0x50, 0x00);
    drives.drives["sdb"].openError = EACCES;
    EXPECT_EQ(all("dm-1"), "sda: sda is asleep and was left alone | sdb: sdb may only be asked by an "
                           "administrator, and UDisks2 does not answer");
    EXPECT_EQ(all("dm-2"), "sdb: ATA S.M.A.R.T. of sdc") << "the other path to the drive works";
}

TEST(SmartBlocks, LimitsTheWaitForAHangingDisk) {
    FakeMachine machine;
    addDisk(machine, "nvme0n1", makedev(259, 0), "nvme");
    addDisk(machine, "nvme1n1", makedev(259, 1), "nvme");
    machine.joinBtrfs("0-a", {"nvme0n1", "nvme1n1"});
    const auto gate = std::make_shared<std::latch>(1);
    const auto drives = std::make_shared<FakeDrives>();
    drives->drives["nvme0n1"].hangsUntil = gate;
    drives->drives["nvme1n1"];
    SmartSources sources = sourcesOf(machine, *drives);
    sources.calls = drives; // shared with the hanging thread
    sources.patience = std::chrono::seconds(1);
    const std::string answers = told(smartOfMount(mountFrom("nvme0n1", "btrfs"), sources));
    gate->count_down();
    EXPECT_EQ(answers, "nvme0n1: nvme0n1 does not answer | nvme1n1: NVMe health log of nvme1n1");
}

/// Damaged sense data of every length, in buffers of exactly that length, so that the sanitizers detect reads
/// beyond the end.
TEST(SmartBlocks, DecodesDamagedSenseData) {
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

} // namespace
} // namespace OndelCore::platform
