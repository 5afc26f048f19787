#include "OndelCore/platform/storage/OpenFolders.h"

#include "support/TemporaryFolder.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <fstream>

using namespace OndelCore::platform;
namespace fs = std::filesystem;

namespace {

void removeTree(const fs::path& tree, const Unlink& unlink = systemUnlink()) {
    const FileDescriptor parent = openFolder(tree.parent_path());
    const FileDescriptor folder = openInnerFolder(parent.get(), tree.filename());
    removeFolder(folder.get(), parent.get(), tree.filename(), unlink);
}

bool isThere(const fs::path& path) { return fs::exists(fs::symlink_status(path)); }

struct RemoveTree : testing::Test {
    RemoveTree() {
        fs::create_directories(outside);
        fs::create_directories(tree);
        std::ofstream(outside / "file").put('x');
    }
    ~RemoveTree() override { EXPECT_TRUE(isThere(outside / "file")); }
    const test::TemporaryFolder folder;
    const fs::path outside = folder.path() / "outside", tree = folder.path() / "tree";
};

TEST_F(RemoveTree, RemovesTheContentAndNothingElse) {
    fs::create_directories(tree / "closed" / "inner");
    fs::create_directories(tree / "\xff not UTF-8");
    for (int i = 0; i < 1500; ++i)
        std::ofstream(tree / "\xff not UTF-8" / std::to_string(i)).put('x');
    fs::create_directory_symlink(outside, tree / "closed" / "inner" / "link");
    fs::permissions(tree / "closed", fs::perms::none);
    fs::permissions(tree, fs::perms::owner_read);
    removeTree(tree);
    EXPECT_FALSE(isThere(tree));

    fs::create_directory_symlink(outside, tree);
    EXPECT_FALSE(openInnerFolder(openFolder(folder.path()).get(), "tree"));
    removeTree(tree);
}

TEST_F(RemoveTree, LeavesMountedFileSystemsAlone) {
    const fs::path other = tree / "tmpfs", same = tree / "bind";
    fs::create_directories(other);
    fs::create_directories(same);
    std::ofstream(tree / "file").put('x');
    if (mount("tmpfs", other.c_str(), "tmpfs", 0, "size=1m") != 0 ||
        mount(outside.c_str(), same.c_str(), nullptr, MS_BIND, nullptr) != 0)
        GTEST_SKIP() << "no right to mount";
    std::ofstream(other / "kept").put('x');
    removeTree(tree);
    EXPECT_TRUE(isThere(other / "kept"));
    EXPECT_FALSE(isThere(tree / "file"));
    EXPECT_EQ(umount(other.c_str()) + umount(same.c_str()), 0);
}

TEST_F(RemoveTree, RemovesAnyDepth) {
    if (!fs::is_directory("/dev/shm"))
        GTEST_SKIP() << "no file system in memory";
    const test::TemporaryFolder memory("/dev/shm");
    fs::create_directory(memory.path() / "tree");
    FileDescriptor inner = openFolder(memory.path() / "tree");
    for (int depth = 0; depth < 20000; ++depth) {
        ASSERT_EQ(mkdirat(inner.get(), "d", 0700), 0);
        inner = FileDescriptor(openat(inner.get(), "d", O_RDONLY | O_DIRECTORY));
    }
    inner = FileDescriptor(); // an open descriptor keeps all parent folders in memory
    removeTree(memory.path() / "tree");
    EXPECT_FALSE(isThere(memory.path() / "tree"));
}

TEST_F(RemoveTree, TerminatesIfAnOpenFileIsRenamedByItsRemoval) {
    fs::create_directories(tree / "inner");
    for (const char* name : {"a", "held", "z"})
        std::ofstream(tree / "inner" / name).put('x');
    int hidden = 0;
    removeTree(tree, [&](int parent, const char* name, int flags) {
        const std::string entry = name;
        if (entry != "held" && !entry.starts_with(".fuse_hidden"))
            return unlinkat(parent, name, flags);
        if (++hidden > 100)
            throw std::bad_alloc(); // it does not terminate
        return renameat(parent, name, parent, (".fuse_hidden" + std::to_string(hidden)).c_str());
    });
    EXPECT_LE(hidden, 3);
    EXPECT_EQ(namesIn(openFolder(tree / "inner").get()).size(), 1U);
    removeTree(tree);
    EXPECT_FALSE(isThere(tree));
}

TEST_F(RemoveTree, FollowsARenamedFolder) {
    const FileDescriptor parent = openFolder(folder.path());
    const FileDescriptor opened = openInnerFolder(parent.get(), "tree");
    std::ofstream(tree / "file").put('x');
    fs::rename(tree, outside / "moved");
    fs::create_directory(tree);
    removeFolder(opened.get(), parent.get(), "tree");
    EXPECT_FALSE(isThere(outside / "moved"));
    EXPECT_TRUE(isThere(tree));

    // The parent of a folder that is moved out during the walk is another folder.
    fs::create_directories(tree / "a" / "b");
    std::ofstream(tree / "a" / "b" / "last").put('x');
    std::ofstream(tree / "a" / "z").put('x');
    removeTree(tree, [&](int at, const char* name, int flags) {
        if (std::string(name) == "last")
            fs::rename(tree / "a" / "b", outside / "b");
        return unlinkat(at, name, flags);
    });
    EXPECT_FALSE(isThere(tree));
    EXPECT_TRUE(isThere(outside / "b"));
}

} // namespace
