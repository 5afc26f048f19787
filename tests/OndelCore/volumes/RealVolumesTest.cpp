// Real file systems on loop devices, and the real answers of the kernel and its tools.

#include "OndelCore/platform/storage/FileDescriptor.h"
#include "OndelCore/platform/storage/FileTrials.h"
#include "OndelCore/volumes/MountedVolumes.h"
#include "OndelCore/volumes/VolumeCapabilities.h"
#include "OndelCore/volumes/VolumeInfo.h"
#include "OndelCore/volumes/VolumeQuestions.h"
#include "support/DeafFileSystem.h"
#include "support/LoopMount.h"

#include <QProcess>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/mount.h>
#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <string>
#include <vector>

using namespace OndelCore::volumes;
using OndelCore::platform::FileDescriptor;
using OndelCore::platform::TriedAbilities;
using OndelCore::platform::tryAbilities;
namespace fs = std::filesystem;

namespace {

constexpr std::int64_t mebibyte = 1048576;

/// A second mount of a mounted file system. Owner: the destructor unmounts it.
class Mounted {
public:
    Mounted(const fs::path& source, const fs::path& point, const char* type, unsigned long flags,
            const char* options)
        : m_point(point) {
        fs::create_directories(point);
        EXPECT_EQ(mount(source.c_str(), point.c_str(), type, flags, options), 0);
    }
    ~Mounted() { umount2(m_point.c_str(), MNT_DETACH); }
    Mounted(const Mounted&) = delete;
    Mounted& operator=(const Mounted&) = delete;

private:
    fs::path m_point;
};

bool setLabel(const fs::path& mountPoint, const std::string& label) {
    char text[FSLABEL_MAX] = {};
    label.copy(text, sizeof text - 1);
    const FileDescriptor folder(open(mountPoint.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    return ioctl(folder.get(), FS_IOC_SETFSLABEL, text) == 0;
}

/// The mount points below `folder` in the real list.
std::vector<fs::path> listedBelow(const fs::path& folder) {
    std::vector<fs::path> points;
    for (const MountedVolume& volume : mountedVolumes())
        if (volume.url.native().starts_with(folder.native()))
            points.push_back(volume.url);
    return points;
}

#define SKIP_WITHOUT(mounted)                                                                                \
    if (!(mounted).problem().empty())                                                                        \
    GTEST_SKIP() << (mounted).problem()

struct Kind {
    const char* type;
    const char* format;
    std::int64_t bytes;
    bool clones, snapshots, journals;
};

class RealVolume : public testing::TestWithParam<Kind> {};

TEST_P(RealVolume, HasTheFactsOfItsFileSystem) {
    const Kind& kind = GetParam();
    const test::LoopMount disk(kind.type, kind.bytes * mebibyte);
    SKIP_WITHOUT(disk);
    OndelCore::platform::SystemSources noDatabase;
    noDatabase.database = [](dev_t) { return OndelCore::platform::DeviceProperties(); };
    noDatabase.superblock = [](dev_t) {
        ADD_FAILURE() << "a disk that may sleep was read for what its file system knows";
        return OndelCore::platform::DeviceProperties();
    };
    EXPECT_EQ(loadVolumeInfo(Location::local(disk.path()), noDatabase)->name, "mount");
    const bool isLabelled = setLabel(disk.path(), "Lab disk 7");
    const fs::path below = disk.path() / "folder";
    fs::create_directory(below);

    const auto info = VolumeInfo::load(Location::local(below));
    ASSERT_TRUE(info);
    EXPECT_EQ(info->name, isLabelled ? QString("Lab disk 7") : QString("mount"));
    EXPECT_EQ(info->format, kind.format);
    EXPECT_EQ(info->volumeURL, disk.path());
    EXPECT_GT(info->total, kind.bytes * mebibyte / 2);
    EXPECT_LE(info->total, kind.bytes * mebibyte);
    EXPECT_GT(info->available, 0);
    EXPECT_EQ(info->connection(), "Internal");
    EXPECT_FALSE(info->isReadOnly || info->isEncrypted);
    const bool isOnDevice = std::string(kind.type) != "tmpfs";
    EXPECT_EQ(info->device->starts_with("/dev/loop"), isOnDevice) << *info->device;

    const auto capabilities = VolumeCapabilities::probe(below);
    ASSERT_TRUE(capabilities);
    EXPECT_EQ(capabilities->filesystemType, kind.type);
    EXPECT_EQ(capabilities->maxNameLength, 255);
    EXPECT_EQ(capabilities->supportsCloning, Capability(kind.clones));
    const FileDescriptor opened(open(below.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    EXPECT_EQ(tryAbilities(opened.get()), (TriedAbilities{.sparseFiles = true, .cloning = kind.clones}));
    EXPECT_EQ(capabilities->supportsSparseFiles, Capability(true));
    EXPECT_EQ(capabilities->supportsSnapshots, Capability(kind.snapshots));
    EXPECT_EQ(capabilities->isJournalActive, Capability(kind.journals));
    EXPECT_TRUE(capabilities->isCaseSensitive && capabilities->supportsHardLinks);
    EXPECT_EQ(capabilities->optimalIOSize > 0, isOnDevice);
    EXPECT_EQ(listedBelow(disk.path()).size(), isOnDevice ? 1U : 0U);
}

INSTANTIATE_TEST_SUITE_P(Types, RealVolume,
                         testing::Values(Kind{"ext4", "Ext4", 64, false, false, true},
                                         Kind{"xfs", "XFS", 320, true, false, true},
                                         Kind{"btrfs", "Btrfs", 128, true, true, false},
                                         Kind{"tmpfs", "tmpfs", 16, false, false, false}),
                         [](const auto& kind) { return std::string(kind.param.type); });

TEST(RealVolumes, ListSubvolumesOnceAtTheShortestMountPoint) {
    const test::LoopMount disk("btrfs", 128 * mebibyte);
    SKIP_WITHOUT(disk);
    if (QProcess::execute("btrfs", {"-q", "subvolume", "create",
                                    QString::fromStdString((disk.path() / "home").string())}) != 0)
        GTEST_SKIP() << "no btrfs tool";
    const std::string device = *VolumeInfo::load(Location::local(disk.path()))->device;
    const test::TemporaryFolder elsewhere;
    const Mounted longer(device, elsewhere.path() / "a-much-longer-name-than-the-other-one-has", "btrfs", 0,
                         "subvol=home");
    EXPECT_TRUE(listedBelow(elsewhere.path()).empty());
    EXPECT_EQ(listedBelow(disk.path()), std::vector<fs::path>{disk.path()});
    const Mounted shorter(device, elsewhere.path() / "h", "btrfs", 0, "subvol=home");
    EXPECT_EQ(listedBelow(elsewhere.path()), std::vector<fs::path>{elsewhere.path() / "h"});
    EXPECT_EQ(listedBelow(disk.path()), std::vector<fs::path>{});
    const auto info = VolumeInfo::load(Location::local(elsewhere.path() / "h"));
    EXPECT_EQ(info->volumeURL, elsewhere.path() / "h");
    EXPECT_EQ(info->device, device);
}

TEST(RealVolumes, AreListedDespiteOneThatNeverAnswers) {
    const test::DeafFileSystem deaf;
    SKIP_WITHOUT(deaf);
    const auto volumes = mountedVolumes();
    const auto found = std::ranges::find(volumes, deaf.path(), &MountedVolume::url);
    ASSERT_NE(found, volumes.end());
    EXPECT_EQ(found->name, "deaf");
    EXPECT_EQ(found->format, "SSHFS");
    EXPECT_FALSE(found->total);
}

/// File systems of the kernel or a FUSE program, whichever is available. The type is that on the device.
struct Foreign {
    const char* type;
    std::vector<std::string> format;
};

class ForeignVolume : public testing::TestWithParam<Foreign> {};

TEST_P(ForeignVolume, HasTheTypeOfItsDevice) {
    const test::LoopMount disk(GetParam().type, 64 * mebibyte, {}, GetParam().format);
    SKIP_WITHOUT(disk);
    EXPECT_EQ(VolumeInfo::load(Location::local(disk.path()))->name, "STICK");
    EXPECT_EQ(VolumeCapabilities::probe(disk.path())->filesystemType, GetParam().type);
    EXPECT_FALSE(VolumeCapabilities::probe(disk.path())->supportsCloning);
    EXPECT_EQ(listedBelow(disk.path()), std::vector<fs::path>{disk.path()});
}

INSTANTIATE_TEST_SUITE_P(Types, ForeignVolume,
                         testing::Values(Foreign{"vfat", {"-n", "STICK"}}, Foreign{"exfat", {"-L", "STICK"}}),
                         [](const auto& kind) { return std::string(kind.param.type); });

/// With a FUSE program, on a loop device and directly from the image.
TEST(RealVolumes, OfNtfsHaveTheFactsOfTheirFuseProgram) {
    test::LoopMount disk("ntfs", 64 * mebibyte, {}, {"-q", "-F", "-L", "STICK"});
    SKIP_WITHOUT(disk);
    std::ofstream(disk.path() / "Name").close();
    const auto told = VolumeCapabilities::probe(disk.path());
    EXPECT_EQ(told->filesystemType, "ntfs");
    EXPECT_EQ(VolumeInfo::load(Location::local(disk.path()))->name, "STICK");
    EXPECT_EQ(told->isCaseSensitive, Capability(true));
    EXPECT_EQ(told->supportsExtendedSecurity, Capability()) << "it takes access lists and keeps none";
    EXPECT_FALSE(told->maxLinkCount);
    ASSERT_TRUE(disk.unmount());

    const test::TemporaryFolder elsewhere;
    const QString image = QString::fromStdString(disk.image().string());
    const QString point = QString::fromStdString(elsewhere.path().string());
    if (QProcess::execute("lowntfs-3g", {"-o", "ignore_case", image, point}) != 0)
        GTEST_SKIP() << "no lowntfs-3g";
    std::ofstream(elsewhere.path() / "Other").close();
    const auto info = VolumeInfo::load(Location::local(elsewhere.path()));
    const auto lower = VolumeCapabilities::probe(elsewhere.path());
    umount2(elsewhere.path().c_str(), MNT_DETACH);
    EXPECT_EQ(info->format, "NTFS");
    EXPECT_EQ(info->name, "STICK");
    EXPECT_EQ(info->connection(), VolumeInfo::load(Location::local(disk.image()))->connection());
    EXPECT_EQ(lower->filesystemType, "ntfs");
    EXPECT_EQ(lower->isCaseSensitive, Capability(false));
    EXPECT_EQ(lower->isCasePreserving, Capability()) << "names come back in lower case";
}

} // namespace
