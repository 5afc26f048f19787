#include "OndelCore/volumes/VolumeInfo.h"

#include "OndelCore/volumes/FileUrl.h"
#include "OndelCore/volumes/VolumeAccess.h"
#include "OndelCore/volumes/VolumeCapabilities.h"
#include "OndelCore/volumes/VolumeQuestions.h"
#include "support/FakeMachine.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <sys/sysmacros.h>

#include <fstream>
#include <limits>
#include <stdexcept>
#include <system_error>

using namespace OndelCore::volumes;
using namespace OndelCore::platform;
namespace fs = std::filesystem;

namespace {

constexpr auto most = std::numeric_limits<std::int64_t>::max();
constexpr auto least = std::numeric_limits<std::int64_t>::min();

TEST(VolumeInfo, ComputesUsedPurgeableAndFraction) {
    struct Case {
        std::int64_t total, available, rawAvailable, used, purgeable;
        double fraction;
    };
    for (const Case& sizes : {Case{1000, 250, 200, 750, 50, 0.75},
                              {0, 0, 0, 0, 0, 0.0},
                              {0, -5, 0, 5, 0, 0.0},
                              {100, 160, 100, 0, 60, 0.0},
                              {100, -100, 0, 200, 0, 1.0},
                              {-1, -1, 0, 0, 0, 0.0},
                              {most, least, most, most, 0, 1.0},
                              {most, most, least, 0, most, 0.0}}) {
        VolumeInfo info;
        info.total = sizes.total;
        info.available = sizes.available;
        info.rawAvailable = sizes.rawAvailable;
        EXPECT_EQ(info.used(), sizes.used);
        EXPECT_EQ(info.purgeable(), sizes.purgeable);
        EXPECT_EQ(info.usedFraction(), sizes.fraction);
    }
}

TEST(VolumeInfo, HasADefaultForEachMissingFact) {
    const VolumeInfo empty = volumeInfoOf({}, std::nullopt);
    VolumeInfo expected;
    expected.name = "Volume";
    expected.format = "--";
    EXPECT_EQ(empty, expected);
    VolumeResources blank;
    blank.name = " \t";
    blank.format = "";
    EXPECT_EQ(volumeInfoOf(blank, std::nullopt), expected);

    const auto availableOf = [](std::optional<std::int64_t> raw, std::optional<std::int64_t> important) {
        VolumeResources resources;
        resources.available = raw;
        resources.availableForImportantUsage = important;
        return volumeInfoOf(resources, std::nullopt).available;
    };
    EXPECT_EQ(availableOf(100, 60), 100);
    EXPECT_EQ(availableOf(100, 160), 160);
    EXPECT_EQ(availableOf(std::nullopt, 160), 160);
    EXPECT_EQ(availableOf(100, std::nullopt), 100);
}

TEST(VolumeInfo, IsAbsentForOtherProvidersAndMissingPaths) {
    for (const Location& place :
         {Location{.provider = {"cloud"}, .path = "/"}, Location{.provider = {"Local"}, .path = "/"},
          Location::local(""), Location::local("/no/such/path"), Location::local("/proc/self/fd/999"),
          Location::local(std::string(5000, 'x'))}) {
        EXPECT_FALSE(VolumeInfo::load(place)) << place.path;
        EXPECT_FALSE(VolumeCapabilities::probe(place)) << place.path;
    }
    const auto root = VolumeInfo::load(Location::local("/proc/.."));
    ASSERT_TRUE(root);
    EXPECT_EQ(root->volumeURL, "/");
}

class AttachmentTest : public testing::Test {
protected:
    static constexpr const char* usb = "pci0000:00/usb1/1-2/host0/block/sda";
    static constexpr const char* ata = "pci0000:00/ata1/host1/block/sdb";

    VolumeInfo loaded(const test::FakeMachine::Row& row) {
        machine.pretendMounted(machine.folder(), row);
        return loadVolumeInfo(Location::local(machine.folder()), machine.sources()).value();
    }
    test::FakeMachine machine;
};

TEST_F(AttachmentTest, IsThatOfTheDisksUnderTheVolume) {
    machine.addBlockDevice(usb, makedev(8, 0), {{"removable", "0"}});
    machine.addBlockDevice(std::string(usb) + "/sda1", makedev(8, 1), {{"partition", "1"}});
    machine.addBlockDevice(ata, makedev(8, 16), {{"removable", "0"}});
    machine.addBlockDevice("pci0000:00/ata2/block/sr0", makedev(11, 0), {{"removable", "1"}});
    machine.addBlockDevice("virtual/block/dm-0", makedev(253, 0), {{"dm/uuid", "CRYPT-LUKS2-00-home"}});
    machine.stack("virtual/block/dm-0", std::string(usb) + "/sda1");

    EXPECT_EQ(loaded({.device = makedev(8, 1)}).connection(), "External");
    EXPECT_EQ(loaded({.device = makedev(8, 16)}).connection(), "Internal");
    EXPECT_EQ(loaded({.type = "udf", .device = makedev(11, 0)}).connection(), "Removable");
    EXPECT_FALSE(loaded({.device = makedev(8, 1)}).isEncrypted);
    const VolumeInfo encrypted = loaded({.device = makedev(253, 0), .source = "/dev/mapper/home"});
    EXPECT_TRUE(encrypted.isEncrypted);
    EXPECT_FALSE(encrypted.isInternal);
    EXPECT_EQ(encrypted.device, "/dev/mapper/home");
    // One external disk in a mirror makes the volume external.
    machine.addBlockDevice("virtual/block/md0", makedev(9, 0));
    machine.stack("virtual/block/md0", ata);
    EXPECT_TRUE(loaded({.device = makedev(9, 0)}).isInternal);
    machine.stack("virtual/block/md0", usb);
    EXPECT_FALSE(loaded({.device = makedev(9, 0)}).isInternal);
}

TEST_F(AttachmentTest, IsKnownForVolumesWithoutDisks) {
    EXPECT_EQ(loaded({.type = "tmpfs", .device = makedev(0, 40), .source = "tmpfs"}).connection(),
              "Internal");
    EXPECT_EQ(loaded({.type = "nfs4", .device = makedev(0, 41), .source = "filer:/x"}).connection(),
              "External");
    const VolumeInfo gone = loaded({.device = makedev(99, 0), .source = "/dev/gone"});
    EXPECT_EQ(gone.connection(), "External");
    EXPECT_EQ(gone.device, "/dev/gone");
    EXPECT_TRUE(loaded({.options = "ro,noatime"}).isReadOnly);
    EXPECT_TRUE(loaded({.options = "rw", .superOptions = "ro"}).isReadOnly);
    EXPECT_FALSE(loaded({.options = "rw,rom", .superOptions = "rw"}).isReadOnly);
    EXPECT_EQ(loaded({.type = "smb3", .source = "//nas/share"}).format, "SMB");
    EXPECT_EQ(loaded({.type = "unheard-of"}).format, "unheard-of");
}

TEST_F(AttachmentTest, NamesTheVolumeByLabelThenPartitionThenFolder) {
    const dev_t number = makedev(8, 16);
    machine.addBlockDevice(ata, number);
    const auto name = [&] { return loaded({.device = number}).name; };
    // Without an entry for the type the mounted file system is asked; here it is the disk of this test.
    machine.setDatabase(number, {{"ID_FS_TYPE", "ext4"}});
    machine.setAttributes(ata, {{"uevent", "DEVNAME=sdb\nPARTNAME=Data partition"}});
    EXPECT_EQ(name(), "Data partition");
    machine.setDatabase(number, {{"ID_FS_TYPE", "ext4"}, {"ID_PART_ENTRY_NAME", "Windows"}});
    EXPECT_EQ(name(), "Windows");
    machine.setDatabase(
        number,
        {{"ID_FS_TYPE", "ext4"}, {"ID_FS_LABEL", "My label\n\xff"}, {"ID_PART_ENTRY_NAME", "Windows"}});
    EXPECT_EQ(name(), QString("My label\n") + QChar(QChar::ReplacementCharacter));
    machine.setDatabase(number, {{"ID_FS_TYPE", "ext4"}});
    machine.setAttributes(ata, {{"uevent", "DEVNAME=sdb"}});
    EXPECT_EQ(name().toStdString(), machine.folder().filename().string());
}

struct Feature {
    Capability VolumeCapabilities::* field;
    CapabilityWord CapabilityWords::* word;
    std::uint32_t bit;
};

// The bits as numbers, to detect wrong constants.
const std::vector<Feature> features{
    {&VolumeCapabilities::isCaseSensitive, &CapabilityWords::format, 0x100},
    {&VolumeCapabilities::isCasePreserving, &CapabilityWords::format, 0x200},
    {&VolumeCapabilities::supportsSparseFiles, &CapabilityWords::format, 0x40},
    {&VolumeCapabilities::supportsHardLinks, &CapabilityWords::format, 0x4},
    {&VolumeCapabilities::supportsSymbolicLinks, &CapabilityWords::format, 0x2},
    {&VolumeCapabilities::supportsExtendedAttributes, &CapabilityWords::interfaces, 0x4000},
    {&VolumeCapabilities::supportsNamedStreams, &CapabilityWords::interfaces, 0x2000},
    {&VolumeCapabilities::supportsExtendedSecurity, &CapabilityWords::interfaces, 0x400},
    {&VolumeCapabilities::supportsCloning, &CapabilityWords::interfaces, 0x10000},
    {&VolumeCapabilities::supportsSnapshots, &CapabilityWords::interfaces, 0x20000},
    {&VolumeCapabilities::supportsJournal, &CapabilityWords::format, 0x8},
    {&VolumeCapabilities::isJournalActive, &CapabilityWords::format, 0x10},
    {&VolumeCapabilities::isSealed, &CapabilityWords::format, 0x2000000},
};

VolumeCapabilities from(const std::optional<CapabilityWords>& words) {
    FileSystemAnswers answers;
    answers.capabilities = words;
    return capabilitiesOf(answers);
}

TEST(VolumeCapabilities, NeedAValidClaim) {
    for (const Feature& feature : features) {
        CapabilityWords words;
        (words.*feature.word).claimed = feature.bit;
        EXPECT_EQ(from(words).*feature.field, Capability());
        (words.*feature.word).valid = ~feature.bit;
        EXPECT_EQ(from(words).*feature.field, Capability());
        (words.*feature.word).valid = feature.bit;
        const VolumeCapabilities one = from(words);
        for (const Feature& other : features)
            EXPECT_EQ(one.*other.field, other.field == feature.field ? Capability(true) : Capability())
                << feature.bit << ' ' << other.bit;
        (words.*feature.word).claimed = 0;
        EXPECT_EQ(from(words).*feature.field, Capability(false));
    }
}

TEST(VolumeCapabilities, TakeEachLimitFromItsAnswer) {
    const auto capabilities = capabilitiesOf({"ext4", 4096, 1048576, 255, 4095, 65000, {}});
    EXPECT_EQ(capabilities.filesystemType, "ext4");
    EXPECT_EQ(capabilities.blockSize, 4096);
    EXPECT_EQ(capabilities.optimalIOSize, 1048576);
    EXPECT_EQ(capabilities.maxNameLength, 255);
    EXPECT_EQ(capabilities.maxPathLength, 4095);
    EXPECT_EQ(capabilities.maxLinkCount, 65000);
}

TEST(VolumeCapabilities, AssumeOnlyCasePreservationByDefault) {
    const VolumeCapabilities unknown = from(std::nullopt);
    for (const Feature& feature : features) {
        EXPECT_EQ(bool{unknown.*feature.field}, feature.field == &VolumeCapabilities::isCasePreserving);
        EXPECT_FALSE((unknown.*feature.field).isKnown());
    }
    EXPECT_FALSE(from(CapabilityWords()).isCasePreserving);
}

TEST(Bookmark, FindsItsFolderAndDetectsAReplacement) {
    const test::TemporaryFolder parent;
    for (const std::string name : {"plain", "two words", "two\nlines", "caf\xe9", "12 34\n"}) {
        const fs::path folder = parent.path() / name;
        fs::create_directory(folder);
        const BookmarkData data = VolumeAccess::bookmark(folder);
        EXPECT_EQ(VolumeAccess::resolve(data), (ResolvedBookmark{folder, false}));

        // The old folder is kept elsewhere, so that its inode is not reused.
        fs::rename(folder, parent.path() / "elsewhere");
        EXPECT_EQ(VolumeAccess::resolve(data), (ResolvedBookmark{folder, true}));
        fs::create_directory(folder);
        EXPECT_EQ(VolumeAccess::resolve(data), (ResolvedBookmark{folder, true}));
        fs::remove(folder);
        std::ofstream(folder).close();
        EXPECT_EQ(VolumeAccess::resolve(data), (ResolvedBookmark{folder, true}));
        fs::remove(folder);
        fs::rename(parent.path() / "elsewhere", folder);
        EXPECT_EQ(VolumeAccess::resolve(data), (ResolvedBookmark{folder, false}));
    }
    EXPECT_EQ(VolumeAccess::resolve(VolumeAccess::bookmark(".")).url, fs::absolute("."));
}

TEST(Bookmark, RefusesFilesAndInvalidData) {
    const test::TemporaryFolder parent;
    std::ofstream(parent.path() / "file").close();
    for (const fs::path& none : {parent.path() / "none", parent.path() / "file", fs::path()})
        EXPECT_THROW(VolumeAccess::bookmark(none), std::system_error) << none;

    const BookmarkData good = VolumeAccess::bookmark(parent.path());
    const auto pathAt = good.find("\n/");
    for (std::size_t length = 0; length <= pathAt + 1; ++length)
        EXPECT_THROW(VolumeAccess::resolve(good.substr(0, length)), std::system_error) << length;
    for (const std::string bad :
         {"ondel-bookmark-1\n-1 2\n/tmp", "ondel-bookmark-1\n1 99999999999999999999\n/tmp",
          "ondel-bookmark-1\n1  2\n/tmp", "ondel-bookmark-1\n1 2\ntmp", "ondel-bookmark-2\n1 2\n/tmp"})
        EXPECT_THROW(VolumeAccess::resolve(bad), std::system_error) << bad;
    EXPECT_THROW(VolumeAccess::resolve(good + '\0' + "x"), std::system_error);
}

TEST(WithAccess, ReleasesOnlyAcquiredAccess) {
    for (const bool isGiven : {true, false})
        for (const bool throws : {true, false}) {
            std::string events;
            const auto start = [&](const fs::path& folder) {
                return events += "start " + folder.string() + ' ', isGiven;
            };
            const auto body = [&] { return events += "body ", throws ? throw std::runtime_error("") : 42; };
            try {
                EXPECT_EQ(VolumeAccess::withAccess(
                              "/x", body, {.start = start, .stop = [&](const auto&) { events += "stop"; }}),
                          42);
            } catch (const std::runtime_error&) {
                events += " threw";
            }
            EXPECT_EQ(events,
                      std::string("start /x body ") + (isGiven ? "stop" : "") + (throws ? " threw" : ""));
        }
    EXPECT_EQ(VolumeAccess::withAccess("/", [] { return 1; }), 1);
}

TEST(FileUrl, KeepsTheBytesOfLocalPaths) {
    const struct {
        std::string url;
        std::optional<std::filesystem::path> path;
    } cases[] = {
        {"file:///tmp/a%20b%C3%A4", "/tmp/a bä"},
        {"file:///tmp/%ff%5c", "/tmp/\xff\\"}, // invalid UTF-8
        {"file:///tmp/a?b#c", "/tmp/a"},
        {"file://localhost/tmp", "/tmp"},
        {"file://elsewhere.invalid/tmp", std::nullopt},
        {"file:///tmp/%00", std::nullopt},
        {"file:tmp", std::nullopt},
        {"https://example.invalid/tmp", std::nullopt},
        {"", std::nullopt},
    };
    for (const auto& each : cases) {
        EXPECT_EQ(localPath(each.url), each.path) << each.url;
        EXPECT_EQ(localPath(QUrl::fromEncoded(QByteArray::fromStdString(each.url))), each.path) << each.url;
        if (each.path) {
            EXPECT_EQ(localPath(fileUrl(*each.path)), each.path) << each.url;
        }
    }
}

} // namespace
