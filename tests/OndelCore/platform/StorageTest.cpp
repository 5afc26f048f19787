// The system calls of the storage functions. In this program fsync, fstatvfs and statfs are replaced by the
// functions below.

#include "OndelCore/platform/storage/Storage.h"

#include "OndelCore/platform/storage/CacheBypass.h"
#include "OndelCore/platform/storage/FileDescriptor.h"
#include "OndelCore/platform/storage/ReplaceFile.h"
#include "OndelCore/platform/volumes/PathFacts.h"
#include "support/TemporaryFolder.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/statfs.h>
#include <sys/statvfs.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
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

} // namespace
