#include "OndelCore/platform/Storage.h"

#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <sys/mount.h>

#include <fstream>

using OndelCore::platform::removeTree;
namespace fs = std::filesystem;

namespace {

TEST(RemoveTree, TakesWhateverIsInsideAndNothingElse) {
    const test::TemporaryFolder folder;
    const fs::path outside = folder.path() / "outside", tree = folder.path() / "tree",
                   file = outside / "file";
    fs::create_directories(outside);
    std::ofstream(file).put('x');
    fs::create_directories(tree / "closed" / "inner");
    fs::create_directories(tree / "\xff not UTF-8");
    for (int i = 0; i < 3000; ++i)
        std::ofstream(tree / "\xff not UTF-8" / std::to_string(i)).put('x');
    fs::create_directory_symlink(outside, tree / "closed" / "inner" / "link");
    fs::permissions(tree / "closed", fs::perms::none);
    fs::permissions(tree, fs::perms::owner_read);

    removeTree(tree);
    EXPECT_FALSE(fs::exists(fs::symlink_status(tree)));
    EXPECT_TRUE(fs::exists(file));

    fs::create_directory_symlink(outside, tree);
    removeTree(tree);
    EXPECT_FALSE(fs::exists(fs::symlink_status(tree)));
    EXPECT_TRUE(fs::exists(file));
    removeTree(tree);
}

TEST(RemoveTree, LeavesAnotherFileSystemMountedInsideAlone) {
    const test::TemporaryFolder folder;
    const fs::path tree = folder.path() / "tree", mounted = tree / "mounted", kept = mounted / "kept";
    fs::create_directories(mounted);
    std::ofstream(tree / "file").put('x');
    if (mount("tmpfs", mounted.c_str(), "tmpfs", 0, "size=1m") != 0)
        GTEST_SKIP() << "no right to mount";
    std::ofstream(kept).put('x');
    removeTree(tree);
    EXPECT_TRUE(fs::exists(kept));
    EXPECT_FALSE(fs::exists(tree / "file"));
    EXPECT_EQ(umount(mounted.c_str()), 0);
}

} // namespace
