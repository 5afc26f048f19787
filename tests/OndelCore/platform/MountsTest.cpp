#include "OndelCore/platform/volumes/Mounts.h"

#include "OndelCore/platform/storage/FileDescriptor.h"
#include "OndelCore/platform/volumes/PathFacts.h"
#include "OndelCore/platform/volumes/VisibleMounts.h"
#include "support/DeafFileSystem.h"
#include "support/TemporaryFolder.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <iterator>
#include <set>
#include <sstream>

using namespace OndelCore::platform;
using namespace std::chrono_literals;
namespace fs = std::filesystem;

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
        {"flatpak", {"/mnt/archive", "/home", "/run/media/ada/STICK"}},
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
        return Mount{id, parent, id, "/", point, "ext4", "/dev/x", "", ""};
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
    EXPECT_EQ(found[1], (Mount{21, 20, 40, "/sub vol", "/mnt/caf\xe9", "fuse.sshfs", "me@host:/x y", "ro",
                               "rw,user_id=0"}));
    EXPECT_TRUE(mounts(folder.path() / "none").empty());
    std::ofstream(table, std::ios::trunc).close();
    EXPECT_TRUE(mounts(table).empty());
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

/// The state letters of this process's children ("D" hangs, "Z" is a zombie).
std::string childStates() {
    std::string states;
    for (const fs::directory_entry& entry : fs::directory_iterator("/proc")) {
        std::stringstream text;
        text << std::ifstream(entry.path() / "stat").rdbuf();
        const std::string line = text.str();
        const auto name = line.rfind(") "); // the end of the process name
        if (name == std::string::npos)
            continue;
        char state = 0;
        pid_t parent = 0;
        std::stringstream(line.substr(name + 2)) >> state >> parent;
        if (parent == getpid())
            states += state;
    }
    return states;
}

TEST(PathFacts, NeitherWaitForAHangingFileSystemNorLeaveProcesses) {
    test::DeafFileSystem deaf;
    if (!deaf.problem().empty())
        GTEST_SKIP() << deaf.problem();
    const auto ask = [&](const Waiting& waiting) {
        return pathFacts(deaf.path() / "x", PathQuestion::place, waiting);
    };
    EXPECT_FALSE(ask({.patience = 24h, .isCancelled = [&deaf] { return deaf.isAsked(); }}));
    while (childStates() != "D") // killed, but unable to end
        poll(nullptr, 0, 1);
    for (int time = 0; time < 3; ++time) {
        EXPECT_FALSE(ask({.patience = 1ms}));
        EXPECT_EQ(childStates(), "D") << "one hanging child for all questions";
    }
    deaf.end();
    EXPECT_EQ(ask({.patience = 24h})->error, ENOTCONN)
        << "asked again as soon as the hanging child has ended";
    while (!childStates().empty())
        poll(nullptr, 0, 1);
}

TEST(PathFacts, AreTheSameThroughAChildProcess) {
    const test::TemporaryFolder folder;
    std::ofstream(folder.path() / "Name") << "x";
    fs::create_symlink(folder.path(), folder.path() / "link");
    const Mount everything{.mountPoint = "/", .type = "fuse.sshfs"};
    const auto both = [&](const fs::path& path) {
        const auto direct = pathFacts(path, PathQuestion::abilities, {}, {.patience = 24h});
        const auto child = pathFacts(path, PathQuestion::abilities, {everything}, {.patience = 24h});
        EXPECT_EQ(direct->error, child->error);
        EXPECT_EQ(direct->mountId, child->mountId);
        EXPECT_EQ(direct->resolved, child->resolved);
        EXPECT_EQ(direct->total, child->total);
        EXPECT_EQ(direct->maxNameLength, child->maxNameLength);
        EXPECT_EQ(direct->keepsUserAttributes, child->keepsUserAttributes);
        EXPECT_EQ(direct->letterCase, child->letterCase);
        return *child;
    };
    EXPECT_EQ(both(folder.path() / "link").resolved, folder.path());
    EXPECT_EQ(both(folder.path() / "none").error, ENOENT);
    if (setxattr(folder.path().c_str(), "user.other", "x", 1, 0) == 0) {
        EXPECT_EQ(both(folder.path()).keepsUserAttributes, true);
    }
    EXPECT_EQ(both("").error, ENOENT);
    EXPECT_EQ(both(".").resolved, fs::current_path());
    EXPECT_FALSE(both(folder.path() / "Name").isFolder);
    EXPECT_GT(both(folder.path()).total, 0);
    EXPECT_TRUE(both(folder.path()).isFolder);
}

TEST(MayHang, FollowsLinksToMountsThatMayHang) {
    const test::TemporaryFolder parent;
    const fs::path folder = fs::canonical(parent.path());
    fs::create_directories(folder / "local/below");
    fs::create_directory(folder / "dead");
    fs::create_directory_symlink(folder / "dead/x", folder / "to-dead");
    fs::create_directory_symlink("../dead", folder / "local/up");
    fs::create_directory_symlink("loop", folder / "loop");
    fs::create_directory_symlink("local", folder / "to-local");
    const auto mounted = [](const fs::path& point, const char* type) {
        return Mount{.mountPoint = point, .type = type};
    };
    const std::vector<Mount> mounts{mounted("/", "ext4"), mounted(folder / "local", "xfs"),
                                    mounted(folder / "dead", "nfs4")};
    for (const char* hanging : {"dead", "dead/", "dead/x", "to-dead", "to-dead/y", "local/up", "local/up/z",
                                "local/below/../../dead", "to-local/up"})
        EXPECT_TRUE(mayHang(folder / hanging, mounts)) << hanging;
    for (const char* local :
         {"", "local", "local/below", "to-local/below", "loop/x", "none/x", "deader", "local/.."})
        EXPECT_FALSE(mayHang(folder / local, mounts)) << local;
    for (const char* type : {"fuseblk", "fuse.sshfs", "nfs", "cifs", "9p", "autofs", "proc", "unheard-of"})
        EXPECT_TRUE(mayHang(mounted("/x", type))) << type;
    for (const char* type : {"ext4", "vfat", "ntfs3", "tmpfs", "overlay", "devtmpfs"})
        EXPECT_FALSE(mayHang(mounted("/x", type))) << type;
}

TEST(PathFacts, DetectLetterCaseByExistingNames) {
    const test::TemporaryFolder folder;
    const auto letterCase = [](const fs::path& path) {
        return pathFacts(path, PathQuestion::abilities)->letterCase;
    };
    const fs::path below = folder.path() / "12";
    fs::create_directory(below);
    std::ofstream(below / "34").close();
    EXPECT_EQ(letterCase(below), LetterCase::sensitive) << "by a name in a parent folder";
    std::ofstream(below / "Name").close();
    std::ofstream(below / "nAME").close();
    EXPECT_EQ(letterCase(below), LetterCase::sensitive) << "by two names that differ in case";
}

} // namespace
