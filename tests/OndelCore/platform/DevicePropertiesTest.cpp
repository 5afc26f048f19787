#include "OndelCore/platform/drives/BlockDevices.h"
#include "OndelCore/platform/drives/SystemSources.h"

#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/sysmacros.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

using namespace OndelCore::platform;
namespace fs = std::filesystem;

namespace {

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

} // namespace
