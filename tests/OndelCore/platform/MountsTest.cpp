#include "OndelCore/platform/volumes/Mounts.h"

#include "OndelCore/platform/storage/FileDescriptor.h"
#include "OndelCore/platform/volumes/VisibleMounts.h"
#include "support/TemporaryFolder.h"

#include <fcntl.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <set>

using namespace OndelCore::platform;

namespace {

const std::filesystem::path fixtures = MOUNTINFO_FOLDER;

std::vector<std::string> visiblePoints(std::vector<Mount> table) {
    std::vector<std::string> points;
    for (const Mount& mount : visibleMounts(std::move(table), [](const std::filesystem::path& path) {
             return path.native().find("-file") == std::string::npos;
         }))
        points.push_back(mount.mountPoint.string());
    return points;
}

TEST(VisibleMounts, AreTheVolumesThatPeopleExpect) {
    struct Case {
        const char* fixture;
        std::vector<std::string> expected;
    };
    const std::vector<Case> cases{
        {"desktop-with-snaps",
         {"/", "/home", "/media/ada/Backup disk", "/media/ada/CANON_DC", "/home/ada/server", "/mnt/nas",
          "/mnt/image"}},
        {"container-host", {"/", "/boot", "/tank", "/mnt/a", "/mnt/b"}},
        {"inside-a-container", {"/", "/data-folder"}},
        {"btrfs-subvolumes", {"/", "/mnt/photos"}},
        {"stacked-and-bound",
         {"/", "/d", "/mnt", "/media/usb", "/net/filer/vol", "/misc/nas", "/media/two lines\nand\\more\ttab",
          "/srv/caf\xe9"}},
    };
    for (const Case& machine : cases) {
        auto table = mounts(fixtures / machine.fixture);
        EXPECT_EQ(visiblePoints(table), machine.expected) << machine.fixture;
        std::reverse(table.begin(), table.end());
        const auto backward = visiblePoints(table);
        EXPECT_EQ(std::set(backward.begin(), backward.end()),
                  std::set(machine.expected.begin(), machine.expected.end()))
            << machine.fixture;
        EXPECT_EQ(backward.size(), machine.expected.size()) << machine.fixture;
    }
}

TEST(VisibleMounts, TerminateOnADamagedTable) {
    const auto mount = [](std::uint64_t id, std::uint64_t parent, const char* point) {
        Mount one;
        one.id = one.device = id;
        one.parentId = parent;
        one.root = "/";
        one.mountPoint = point;
        one.type = "ext4";
        one.source = "/dev/x";
        return one;
    };
    EXPECT_TRUE(visiblePoints({mount(1, 2, "/a"), mount(2, 1, "/a")}).empty());
    EXPECT_EQ(visiblePoints({mount(3, 3, "/"), mount(4, 99, "/b"), mount(5, 3, "")}),
              (std::vector<std::string>{"/", "/b"}));
}

TEST(MountTable, KeepsBytesAndSkipsMalformedLines) {
    const test::TemporaryFolder folder;
    const auto table = folder.path() / "mountinfo";
    std::ofstream(table)
        << "20 1 8:1 / / rw,relatime shared:1 - ext4 /dev/sda1 rw,errors=remount-ro\n"
           "not a mount\n"
           "21 20 0:40 /sub\\040vol /mnt/caf\xe9 ro - fuse.sshfs me@host:/x\\040y rw,user_id=0\n"
           "22 20 8:2\n";
    const auto found = mounts(table);
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[1], (Mount{.id = 21,
                               .parentId = 20,
                               .device = 40,
                               .root = "/sub vol",
                               .mountPoint = "/mnt/caf\xe9",
                               .type = "fuse.sshfs",
                               .source = "me@host:/x y",
                               .options = "ro",
                               .superOptions = "rw,user_id=0"}));
    EXPECT_TRUE(mounts(folder.path() / "none").empty());
    std::ofstream(table, std::ios::trunc).close();
    EXPECT_TRUE(mounts(table).empty());
}

TEST(MountTable, IsReadOnceForAllCopies) {
    const test::TemporaryFolder folder;
    const auto file = folder.path() / "mountinfo";
    const MountTable table(file);
    const MountTable copy = table;
    std::ofstream(file) << "20 1 8:1 / / rw - ext4 /dev/sda1 rw\n";
    EXPECT_EQ(copy.mounts().size(), 1U) << "not read before the first question";
    std::ofstream(file, std::ios::trunc).close();
    EXPECT_EQ(table.mounts().size(), 1U);
    EXPECT_EQ(MountTable(file).mounts().size(), 0U);
}

TEST(MountOfDescriptor, EqualsTheMountOfThePath) {
    const auto all = mounts();
    for (const char* path : {"/proc/self/mountinfo", "/dev", "/"}) {
        const FileDescriptor file(open(path, O_RDONLY | O_CLOEXEC));
        const auto mount = mountOfDescriptor(file.get(), all);
        ASSERT_TRUE(mount) << path;
        EXPECT_EQ(mount, mountOfPathIn(all, path));
        EXPECT_FALSE(mountOfDescriptor(file.get(), {}));
    }
    EXPECT_FALSE(mountOfDescriptor(-1, all));
}

TEST(MountOptions, MatchWholeWords) {
    const std::string options = "rw,nocase_not,upperdir=/a=b,size=,ro";
    EXPECT_TRUE(hasMountOption(options, "ro"));
    EXPECT_FALSE(hasMountOption(options, "nocase"));
    EXPECT_FALSE(hasMountOption("", "ro"));
    EXPECT_EQ(mountOptionValue(options, "upperdir"), "/a=b");
    EXPECT_EQ(mountOptionValue(options, "size"), "");
    EXPECT_EQ(mountOptionValue(options, "rw"), std::nullopt);
}

} // namespace
