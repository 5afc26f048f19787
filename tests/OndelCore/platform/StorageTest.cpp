// The system calls of the storage functions. In this program fsync, fstatvfs and statfs are replaced by the
// functions below.

#include "OndelCore/platform/storage/Storage.h"

#include "OndelCore/platform/storage/CacheBypass.h"
#include "OndelCore/platform/storage/FileDescriptor.h"
#include "OndelCore/platform/storage/OpenFolders.h"
#include "OndelCore/platform/storage/ReplaceFile.h"
#include "OndelCore/platform/volumes/PathFacts.h"
#include "support/TemporaryFolder.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/statfs.h>
#include <sys/statvfs.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <fstream>
#include <string>
#include <vector>

using namespace OndelCore::platform;
namespace fs = std::filesystem;

namespace {

/// The files that fsync was called for: "folder", or "file of N bytes".
std::vector<std::string> synced;

/// A file system with fragments of 512 bytes, of which 2 are reserved for root, and a preferred transfer of
/// 4096 bytes.
template <typename Sizes>
int answerSmallFragments(Sizes& sizes) {
    sizes = {};
    sizes.f_bsize = 4096;
    sizes.f_frsize = 512;
    sizes.f_blocks = 10;
    sizes.f_bfree = 8;
    sizes.f_bavail = 6;
    return 0;
}

} // namespace

extern "C" int fsync(int descriptor) {
    struct stat facts{};
    fstat(descriptor, &facts);
    synced.push_back(S_ISDIR(facts.st_mode) ? "folder"
                                            : "file of " + std::to_string(facts.st_size) + " bytes");
    return static_cast<int>(syscall(SYS_fsync, descriptor));
}
extern "C" int fstatvfs(int, struct statvfs* sizes) noexcept { return answerSmallFragments(*sizes); }
extern "C" int statfs(const char*, struct statfs* sizes) noexcept { return answerSmallFragments(*sizes); }

namespace {

TEST(Storage, FlushesWithFsync) {
    const test::TemporaryFolder folder;
    const FileDescriptor opened(open(folder.path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    synced.clear();
    EXPECT_FALSE(flushToMedium(opened.get()));
    EXPECT_EQ(synced, std::vector<std::string>{"folder"});
}

TEST(Storage, CountsInFragments) {
    EXPECT_EQ(freeBytes(0), 6 * 512);
    const auto facts = pathFacts("/", PathQuestion::sizes, {}, {});
    ASSERT_TRUE(facts);
    EXPECT_EQ(facts->total, 10 * 512);
    EXPECT_EQ(facts->available, 6 * 512);
    EXPECT_EQ(facts->blockSize, 512);
}

TEST(ReplaceFile, SyncsTheContentThenTheFolder) {
    const test::TemporaryFolder folder;
    const fs::path file = folder.path() / "file";
    const auto permissions = fs::perms::owner_read | fs::perms::owner_write;
    const auto replace = [&](Lasting lasting, bool isStillWanted) {
        synced.clear();
        return replaceFile(file, "12345", permissions, lasting, [=] { return isStillWanted; });
    };
    EXPECT_EQ(replace(Lasting::onMedium, false), std::errc::operation_canceled);
    EXPECT_EQ(synced, std::vector<std::string>{"file of 5 bytes"});
    EXPECT_TRUE(fs::is_empty(folder.path()));
    EXPECT_FALSE(replace(Lasting::onMedium, true));
    EXPECT_EQ(synced, (std::vector<std::string>{"file of 5 bytes", "folder"}));
    EXPECT_FALSE(replace(Lasting::untilPowerLoss, true));
    EXPECT_TRUE(synced.empty());
    EXPECT_EQ(fs::status(file).permissions(), permissions);
}

TEST(CacheBypass, IsOffForTheRefusedTransferOnly) {
    const test::TemporaryFolder folder;
    const FileDescriptor file(open((folder.path() / "file").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600));
    CacheBypass bypass(file.get());
    const auto isOn = [&] { return (fcntl(file.get(), F_GETFL) & O_DIRECT) != 0; };
    if (!isOn())
        GTEST_SKIP() << "no direct transfers in " << folder.path();
    std::vector<bool> wasOn;
    const auto refusedOnce = [&]() -> ssize_t {
        wasOn.push_back(isOn());
        errno = EINVAL;
        return wasOn.size() == 1 ? -1 : 7;
    };
    EXPECT_EQ(bypass.perform(refusedOnce), 7);
    EXPECT_EQ(bypass.perform(refusedOnce), 7);
    EXPECT_EQ(wasOn, (std::vector<bool>{true, false, true}));
    EXPECT_EQ(bypass.refusedTransfers(), 1);
    EXPECT_TRUE(isOn());
}

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
