// Folders that the desktop's document portal hands over.

#include "OndelCore/platform/volumes/PortalFolder.h"

#include "OndelCore/platform/storage/OpenFolders.h"
#include "support/DeafFileSystem.h"
#include "support/PortalFolder.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <fstream>
#include <optional>
#include <string>

using namespace OndelCore::platform;
namespace fs = std::filesystem;

namespace {

fs::path made(const fs::path& folder) {
    fs::create_directory(folder);
    return folder;
}

/// A folder that was last changed at another time than `earlier`. The system's clock for that stands still
/// for some milliseconds.
fs::path madeLater(const fs::path& folder, const fs::path& earlier) {
    struct stat first{};
    struct stat second{};
    do {
        fs::remove(folder);
        fs::create_directory(folder);
        stat(earlier.c_str(), &first);
        stat(folder.c_str(), &second);
    } while (first.st_ctim.tv_nsec == second.st_ctim.tv_nsec);
    return folder;
}

/// The attribute comes from a program, and the folder may be another one on this side of a sandbox.
TEST(PortalFolder, IsTheFolderBehindOnlyWhereThatIsTheSame) {
    const test::TemporaryFolder places;
    const fs::path behind = made(places.path() / "caf\xe9");
    const fs::path readOnly = made(places.path() / "read-only");
    std::ofstream(behind / "file") << "text";
    const fs::path other = madeLater(places.path() / "other", behind);
    test::PortalFolder portal(behind);
    const test::PortalFolder second(behind);
    if (!portal.problem().empty())
        GTEST_SKIP() << portal.problem();
    const fs::path start = fs::current_path();
    fs::current_path(places.path());
    ASSERT_EQ(mount(behind.c_str(), readOnly.c_str(), nullptr, MS_BIND, nullptr), 0);
    EXPECT_EQ(mount(nullptr, readOnly.c_str(), nullptr, MS_BIND | MS_REMOUNT | MS_RDONLY, nullptr), 0);

    const std::string path = behind.native();
    struct Told {
        const char* name;
        std::optional<std::string> hostPath;
        bool isTaken = false;
    };
    for (const Told& each : {
             Told{"nothing", {}},
             Told{"the folder", path, true},
             Told{"no bytes", ""},
             Told{"a relative path that leads there", behind.filename().native()},
             Told{"a detour", path + "/../" + behind.filename().native()},
             Told{"a smaller one", path + "/."},
             Told{"a path with its end inside", path + std::string("\0/x", 3)},
             Told{"one with its end behind", path + '\0'},
             Told{"the longest path and one byte", std::string(PATH_MAX, '/')},
             Told{"one that is too long for the system", std::string(PATH_MAX - 1, '/') + "x"},
             Told{"too long a name", "/" + std::string(300, 'x')},
             Told{"one that is gone", path + "x"},
             Told{"a file", (behind / "file").native()},
             Told{"another folder", other.native()},
             Told{"one that cannot be written to", readOnly.native()},
             Told{"itself", portal.path().native()},
             Told{"another portal's", second.path().native()},
         }) {
        portal.tell(each.hostPath);
        EXPECT_EQ(folderBehindPortal(portal.path()), each.isTaken ? behind : portal.path()) << each.name;
    }
    EXPECT_EQ(folderBehindPortal(other), other);
    umount2(readOnly.c_str(), MNT_DETACH);
    fs::current_path(start);
}

TEST(PortalFolder, IsLookedAtAgainWhileSomebodyChangesIt) {
    const test::TemporaryFolder behind;
    test::PortalFolder portal(behind.path());
    if (!portal.problem().empty())
        GTEST_SKIP() << portal.problem();
    portal.tell(behind.path().native());
    int answers = 0;
    portal.distort([&answers](fuse_attr& told) { told.ctimensec ^= ++answers % 4 == 3 ? 0U : 1U; });
    EXPECT_EQ(folderBehindPortal(portal.path()), behind.path());
    portal.distort([](fuse_attr& told) { told.ctimensec ^= 1U; });
    EXPECT_EQ(folderBehindPortal(portal.path()), portal.path());
}

/// Whoever serves such a file system could lead other users anywhere.
TEST(PortalFolder, BelongsToThisUserAndIsAPortals) {
    const test::TemporaryFolder behind;
    test::PortalFolder another(behind.path(), "fuse.portal", geteuid() + 1);
    test::PortalFolder otherType(behind.path(), "fuse.sshfs", geteuid());
    if (!another.problem().empty())
        GTEST_SKIP() << another.problem();
    for (test::PortalFolder* each : {&another, &otherType}) {
        each->tell(behind.path().native());
        EXPECT_EQ(folderBehindPortal(each->path()), each->path());
    }
}

TEST(PortalFolder, OfAPortalThatHangsIsLeftAsItIs) {
    const test::DeafFileSystem portal("fuse.portal");
    if (!portal.problem().empty())
        GTEST_SKIP() << portal.problem();
    EXPECT_EQ(folderBehindPortal(portal.path(), {.patience = std::chrono::milliseconds(50)}), portal.path());
}

/// Older portals (1.16) take files for links that are opened with O_NOFOLLOW.
TEST(PortalFolder, HasFilesThatCanBeOpened) {
    const test::TemporaryFolder behind;
    std::ofstream(behind.path() / "file") << "text";
    test::PortalFolder portal(behind.path());
    if (!portal.problem().empty())
        GTEST_SKIP() << portal.problem();
    const FileDescriptor folder = openFolder(portal.path());
    EXPECT_TRUE(openInnerFile(folder.get(), "file", O_RDONLY)) << errno;
    EXPECT_FALSE(openInnerFile(folder.get(), "none", O_RDONLY));
    EXPECT_EQ(errno, ENOENT);
}

TEST(OpenInnerFile, FollowsNoLinkAndWaitsForNoPipe) {
    const test::TemporaryFolder folder;
    std::ofstream(folder.path() / "file") << "text";
    fs::create_symlink("file", folder.path() / "link");
    ASSERT_EQ(mkfifo((folder.path() / "pipe").c_str(), 0600), 0);
    const FileDescriptor opened = openFolder(folder.path());
    EXPECT_TRUE(openInnerFile(opened.get(), "file", O_RDWR));
    EXPECT_TRUE(openInnerFile(opened.get(), "pipe", O_RDONLY));
    EXPECT_FALSE(openInnerFile(opened.get(), "link", O_RDONLY));
    EXPECT_EQ(errno, ELOOP);
}

} // namespace
