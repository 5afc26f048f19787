#include "OndelCore/platform/drives/Circumstances.h"

#include "OndelCore/platform/drives/linux/CircumstanceSources.h"
#include "OndelCore/platform/drives/linux/FileSystemState.h"
#include "OndelCore/platform/drives/linux/MachineState.h"
#include "OndelCore/platform/storage/FileDescriptor.h"
#include "support/FakeMachine.h"
#include "support/LoopMount.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <linux/loop.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

#include <algorithm>
#include <fstream>
#include <functional>
#include <thread>

using namespace OndelCore::platform;
namespace fs = std::filesystem;

namespace {

using Attributes = test::FakeMachine::Attributes;

const std::string controller = "pci0000:00/0000:01:00.0/nvme/nvme0";
const std::string disk = controller + "/nvme0n1";
const std::string sensor = controller + "/hwmon1";

FileDescriptor folderAt(const fs::path& path) {
    return FileDescriptor(open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
}

void writeTo(const fs::path& file, const std::string& text) {
    fs::create_directories(file.parent_path());
    const fs::path complete = file.parent_path() / "new";
    std::ofstream(complete) << text;
    fs::rename(complete, file); // so that nobody reads half of it
}

TEST(MachineState, IsOnBatteryOnlyIfItsOwnIsDischargedAndNothingCharges) {
    const Attributes battery{{"BAT0/type", "Battery"}, {"BAT0/status", "Discharging"}};
    const struct {
        Attributes supplies;
        bool isOnBattery;
    } cases[] = {
        {{}, false},
        {battery, true},
        {{{"BAT0/type", "Battery"}, {"BAT0/status", "Full"}}, false},
        {{{"AC/type", "Mains"}, {"AC/online", "0"}}, false},
        {{{"mouse/type", "Battery"}, {"mouse/status", "Discharging"}, {"mouse/scope", "Device"}}, false},
        {{{"BAT0/type", "Battery"}, {"BAT0/status", ""}, {"AC/type", "Mains"}, {"AC/online", "no"}}, false},
    };
    int number = 0;
    for (const auto& [supplies, isTrue] : cases) {
        test::FakeMachine machine;
        machine.setAttributes("../class/power_supply", supplies);
        EXPECT_EQ(isOnBattery(machine.folder() / "sys"), isTrue) << number++;
    }
    for (const char* online : {"0", "1"}) {
        test::FakeMachine machine;
        machine.setAttributes("../class/power_supply", battery);
        machine.setAttributes("../class/power_supply/usb-c", {{"type", "USB"}, {"online", online}});
        EXPECT_EQ(isOnBattery(machine.folder() / "sys"), *online == '0');
    }
}

TEST(MachineState, SavesPowerOnlyIfTheGovernorPinsAllProcessorsToTheLowestFrequency) {
    const struct {
        const char* governor;
        const char* driver;
        const char* lowest;
        bool saves;
    } cases[] = {
        {"powersave", "acpi-cpufreq", "800000", true},
        {"powersave", "intel_cpufreq", "800000", true},
        {"powersave", "intel_pstate", "800000", false}, // its ordinary governor
        {"powersave", "amd-pstate-epp", "800000", false},
        {"powersave", "acpi-cpufreq", "3000000", false}, // the lowest is the highest
        {"powersave", "acpi-cpufreq", "", false},
        {"schedutil", "acpi-cpufreq", "800000", false},
        {"", "", "", false},
    };
    for (const auto& [governor, driver, lowest, saves] : cases) {
        test::FakeMachine machine;
        const Attributes policy{{"scaling_governor", governor},
                                {"scaling_driver", driver},
                                {"scaling_min_freq", lowest},
                                {"cpuinfo_max_freq", "3000000"}};
        machine.setAttributes("system/cpu/cpufreq/policy0", policy);
        machine.setAttributes("system/cpu/cpufreq/policy1", policy);
        EXPECT_EQ(hasPowerSaveGovernor(machine.folder() / "sys"), saves) << governor << ' ' << driver;
        machine.setAttributes("system/cpu/cpufreq/policy1", {{"scaling_governor", "performance"}});
        EXPECT_FALSE(hasPowerSaveGovernor(machine.folder() / "sys"));
    }
    EXPECT_FALSE(hasPowerSaveGovernor("/no/such/folder"));
}

TEST(MachineState, IsAbsentWhereProcTellsNonsense) {
    const test::TemporaryFolder proc;
    const auto all = [&] {
        return std::tuple(memoryOfKernel(proc.path()), kernelRelease(proc.path()),
                          ioWaitMicroseconds(proc.path()));
    };
    const auto none = std::tuple(std::optional<std::int64_t>(), std::string(), std::optional<std::int64_t>());
    EXPECT_EQ(all(), none);
    const std::string long5000(5000, '9');
    for (const std::string& bad :
         {std::string(), long5000, std::string("MemTotal: -5 kB"), std::string("MemTotal: 5 MB"),
          std::string("MemTotal: 99999999999999999999 kB"), std::string("MemTotal: 9223372036854775807 kB\n"),
          std::string("some avg10=0.00 total=\n"), std::string("full total=5\n"),
          std::string("some total=-1\n")}) {
        writeTo(proc.path() / "meminfo", bad);
        writeTo(proc.path() / "pressure/io", bad);
        writeTo(proc.path() / "sys/kernel/osrelease", bad.empty() ? bad : long5000);
        EXPECT_EQ(all(), none) << bad.substr(0, 50);
    }
    writeTo(proc.path() / "meminfo", "MemTotal:       24684084 kB\nMemFree: 1 kB\n");
    writeTo(proc.path() / "pressure/io",
            "some avg10=0.18 avg60=2.32 avg300=3.71 total=392077563\nfull total=1\n");
    writeTo(proc.path() / "sys/kernel/osrelease", "6.1.0-18-amd64\n");
    EXPECT_EQ(all(), std::tuple(std::optional<std::int64_t>(24684084LL * 1024), "6.1.0-18-amd64",
                                std::optional<std::int64_t>(392077563)));
}

TEST(FileSystemState, FollowsFromTypeAndOptions) {
    const struct {
        const char* type;
        const char* options;
        std::string words; ///< what is set
    } cases[] = {
        {"ext4", "rw", "device"},
        {"ext4", "rw,data=journal", "device journals"},
        {"ext4", "rw,data=ordered", "device"},
        {"xfs", "rw,attr2", "device"},
        {"btrfs", "rw,ssd", "device cow sums"},
        {"btrfs", "rw,compress=zstd:3", "device compresses cow sums"},
        {"btrfs", "rw,compress-force=lzo", "device compresses cow sums"},
        {"btrfs", "rw,compress=no", "device cow sums"},
        {"btrfs", "rw,compress=zstd:3,nodatasum", "device cow"},
        {"btrfs", "rw,compress=zstd:3,nodatacow", "device"},
        {"bcachefs", "rw,compression=lz4", "device compresses cow"},
        {"bcachefs", "rw,nocow", "device"},
        {"zfs", "rw", "device cow"},
        {"tmpfs", "rw", "memory"},
        {"nfs4", "rw", "network"},
        {"fuse.sshfs", "rw", "network program"},
        {"fuseblk", "rw", "device program"},
        {"fuse.unheard-of", "rw", "program"},
        {"fusectl", "rw", ""},
    };
    const test::FakeMachine machine;
    const FileDescriptor folder = folderAt("/proc"); // takes no new file and tells nothing of its own
    for (const auto& [type, options, words] : cases) {
        Mount mount;
        mount.type = type;
        mount.superOptions = options;
        Circumstances found;
        addFileSystemState(found, mount, folder.get(), machine.sources(), machine.folder());
        std::string said;
        const auto say = [&](bool isSo, const char* word) {
            said += isSo ? (said.empty() ? "" : " ") + std::string(word) : "";
        };
        say(found.reach == FileSystemReach::device, "device");
        say(found.reach == FileSystemReach::memory, "memory");
        say(found.reach == FileSystemReach::network, "network");
        say(found.isServedByProgram, "program");
        say(found.compresses, "compresses");
        say(found.copiesOnWrite, "cow");
        say(found.checksumsData, "sums");
        say(found.journalsData, "journals");
        EXPECT_EQ(said, words) << type << ' ' << options;
        EXPECT_FALSE(found.allowsDirectIo);
    }
}

TEST(FileSystemState, KnowsAModeThatTheMountTableLeavesOut) {
    test::FakeMachine machine;
    machine.addBlockDevice(disk, makedev(259, 0));
    Mount mount;
    mount.type = "ext4";
    mount.device = makedev(259, 0);
    for (const char* mode : {"ordered", "journal"}) {
        writeTo(machine.folder() / "proc/fs/ext4/nvme0n1/options", "rw\ndata=" + std::string(mode) + "\n");
        Circumstances found;
        addFileSystemState(found, mount, -1, machine.sources(), machine.folder() / "proc");
        EXPECT_EQ(found.journalsData, *mode == 'j');
    }
}

/// A machine with an NVMe drive, and a volume on it that is really the test's own folder.
struct CircumstanceWatchTest : testing::Test {
    CircumstanceWatchTest() {
        machine.addBlockDevice(disk, makedev(259, 0), {{"queue/rotational", "0"}});
        machine.setAttributes(controller, {{"transport", "pcie"}});
        machine.setAttributes(sensor, {{"name", "nvme"}, {"temp1_input", "41850"}, {"temp1_max", "81850"}});
        machine.pretendMounted(machine.folder(), {.type = "ext4", .device = makedev(259, 0)});
        writeTo(proc() / "pressure/io", "some avg10=0.00 avg60=0.00 avg300=0.00 total=1000\n");
    }
    fs::path proc() const { return machine.folder() / "proc"; }
    fs::path temperature() const { return machine.folder() / "sys/devices" / sensor / "temp1_input"; }

    std::unique_ptr<CircumstanceWatch> watch(std::chrono::milliseconds interval,
                                             std::size_t mostSamples = 4096) const {
        const CircumstanceSources sources{
            .drives = {.system = machine.sources(), .serviceBus = "unix:path=/no/bus"},
            .proc = proc(),
            .interval = interval,
            .mostSamples = mostSamples};
        return watchCircumstancesIn(sources, folderAt(machine.folder()).get());
    }
    static void awaitThat(const std::function<bool()>& isSo) {
        while (!isSo())
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    test::FakeMachine machine;
};

TEST_F(CircumstanceWatchTest, TellsHeatAndPressureUntilItEnds) {
    const auto watch = this->watch(std::chrono::milliseconds(5));
    awaitThat([&] { return watch->celsius() == 41.85; });
    writeTo(temperature(), "42850\n");
    awaitThat([&] { return watch->celsius() == 42.85; }); // the first look is complete
    writeTo(proc() / "pressure/io", "some avg10=0.00 avg60=0.00 avg300=0.00 total=999999999\n");
    writeTo(temperature(), "70850\n");
    awaitThat([&] { return watch->celsius() == 70.85; });
    fs::remove_all(machine.folder() / "sys/devices/pci0000:00"); // pulled out
    awaitThat([&] { return !watch->celsius(); });

    const Circumstances found = watch->finish();
    EXPECT_EQ(found.disks, 1);
    EXPECT_EQ(found.isRotational, false);
    EXPECT_EQ(found.fileSystemType, "ext4");
    EXPECT_GT(found.capacityBytes.value_or(0), 0);
    EXPECT_EQ(found.maxCelsius, 81.85);
    EXPECT_FALSE(found.criticalCelsius);
    ASSERT_GE(found.samples.size(), 3U);
    EXPECT_EQ(found.samples.front().celsius, 41.85);
    EXPECT_FALSE(found.samples.front().ioPressure);
    EXPECT_TRUE(std::ranges::is_sorted(found.samples, {}, &CircumstanceSample::elapsed));
    double pressure = 0;
    for (const CircumstanceSample& sample : found.samples) {
        EXPECT_LE(sample.ioPressure.value_or(0), 1);
        pressure = std::max(pressure, sample.ioPressure.value_or(0));
    }
    EXPECT_EQ(pressure, 1); // more than the time that passed
}

TEST_F(CircumstanceWatchTest, KeepsFewSamplesOfALongRunAtEqualDistances) {
    const auto watch = this->watch(std::chrono::milliseconds(1), 16);
    for (int degrees = 1; degrees <= 100; ++degrees) { // so at least 100 looks
        writeTo(temperature(), std::to_string(degrees) + "000\n");
        awaitThat([&] { return watch->celsius() == degrees; });
    }
    const Circumstances found = watch->finish();
    EXPECT_LE(found.samples.size(), 16U);
    EXPECT_GE(found.samples.size(), 8U);
    EXPECT_LT(found.samples.front().celsius, 100);
    EXPECT_GT(found.samples.back().celsius, 75);
    EXPECT_TRUE(std::ranges::is_sorted(found.samples, {}, &CircumstanceSample::elapsed));
}

TEST_F(CircumstanceWatchTest, EndsAtOnceWhileASensorHangs) {
    fs::remove(temperature());
    ASSERT_EQ(mkfifo(temperature().c_str(), 0600), 0); // whoever opens it waits
    auto watch = this->watch(std::chrono::milliseconds(1));
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    EXPECT_FALSE(watch->celsius());
    EXPECT_EQ(watch->finish().disks, 1);
    watch.reset();
    const FileDescriptor release(open(temperature().c_str(), O_RDWR | O_CLOEXEC));
}

/// What a watch says of a real volume.
Circumstances circumstancesOf(const fs::path& path) {
    return watchCircumstances(folderAt(path).get())->finish();
}

TEST(RealVolume, InAFileIsToldWithWhetherItsTransfersAreCached) {
    const test::LoopMount volume("ext4", 16 << 20);
    if (!volume.problem().empty())
        GTEST_SKIP() << volume.problem();
    struct stat facts{};
    ASSERT_EQ(stat(volume.path().c_str(), &facts), 0);
    const auto loop = blockDevice(facts.st_dev);
    ASSERT_TRUE(loop);
    const FileDescriptor device(open(loop->node().c_str(), O_RDONLY | O_CLOEXEC));
    for (const unsigned long isDirect : {0UL, 1UL}) {
        if (ioctl(device.get(), LOOP_SET_DIRECT_IO, isDirect) != 0)
            GTEST_SKIP() << "direct " << isDirect << ": errno " << errno;
        const Circumstances found = circumstancesOf(volume.path());
        EXPECT_TRUE(found.isFileOnDisk);
        EXPECT_EQ(found.isCachedFileOnDisk, isDirect == 0);
        EXPECT_EQ(found.fileSystemType, "ext4");
        EXPECT_FALSE(found.isServedByProgram || found.compresses || found.copiesOnWrite ||
                     found.journalsData);
        EXPECT_NE(found.allowsDirectIo, false);
        EXPECT_GT(found.freeBytes.value_or(0), 0);
        EXPECT_LT(found.freeBytes.value_or(0), found.capacityBytes.value_or(0));
        EXPECT_GT(found.memoryBytes.value_or(0), 0);
        EXPECT_FALSE(found.kernel.empty());
    }
}

TEST(RealVolume, ThatJournalsOrCompressesIsTold) {
    const struct {
        const char* type;
        const char* options;
        bool journals;
        bool compresses;
    } cases[] = {{"ext4", "data=journal", true, false},
                 {"btrfs", "compress=zstd", false, true},
                 {"btrfs", "compress=zstd,nodatacow", false, false}};
    for (const auto& [type, options, journals, compresses] : cases) {
        const test::LoopMount volume(type, 128 << 20, options);
        if (!volume.problem().empty())
            GTEST_SKIP() << volume.problem();
        const Circumstances found = circumstancesOf(volume.path());
        EXPECT_EQ(found.journalsData, journals) << options;
        EXPECT_EQ(found.compresses, compresses) << options;
        EXPECT_EQ(found.copiesOnWrite, compresses) << options;
        EXPECT_TRUE(fs::is_empty(volume.path()) || fs::exists(volume.path() / "lost+found"));
    }
}

} // namespace
