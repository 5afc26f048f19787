#include "OndelCore/platform/volumes/FileSystemAnswers.h"

#include "support/FakeMachine.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

#include <set>

using namespace OndelCore::platform;

namespace {

TEST(FileSystemFacts, HaveOneValidRowPerType) {
    std::set<std::string_view> types;
    for (const FileSystemFacts& facts : allFileSystemFacts()) {
        EXPECT_TRUE(types.insert(facts.type).second) << facts.type;
        EXPECT_FALSE(facts.displayName.empty()) << facts.type;
        for (const CapabilityWord& word : {facts.capabilities.format, facts.capabilities.interfaces})
            EXPECT_EQ(word.claimed & ~word.valid, 0U) << facts.type << " claims invalid bits";
        EXPECT_EQ(fileSystemTypeName(facts.type), facts.type) << "hidden by an alias";
    }
}

TEST(FileSystemFacts, NormalizeTypeNames) {
    for (const auto& [type, name] : {std::pair("nfs4", "nfs"),
                                     {"smb3", "cifs"},
                                     {"davfs", "webdav"},
                                     {"fuse.davfs2", "webdav"},
                                     {"", ""}})
        EXPECT_EQ(fileSystemTypeName(type), name);
    EXPECT_EQ(fileSystemTypeName("fuse", "curlftpfs#ftp://host/"), "ftp");
    EXPECT_EQ(fileSystemTypeName("fuse", "sshfs#me@host:/x"), "fuse.sshfs");
    EXPECT_EQ(fileSystemTypeName("fuseblk", "/dev/sdb1", "exfat"), "exfat");
    EXPECT_EQ(fileSystemTypeName("fuseblk", "/dev/sdb1"), "fuseblk");
    EXPECT_EQ(fileSystemTypeName("fuseblk.ntfs", "/dev/sdb1"), "ntfs");
    EXPECT_EQ(fileSystemTypeName("ext4", "a#b"), "ext4");
    for (const char* type : {"nfs4", "smb3", "fuse.sshfs", "9p", "davfs"})
        EXPECT_TRUE(isNetworkFileSystem(type)) << type;
    for (const char* type : {"ext4", "tmpfs", "overlay", "fuseblk", "", "unheard-of"})
        EXPECT_FALSE(isNetworkFileSystem(type)) << type;
}

class OptimalSizeTest : public testing::Test {
protected:
    std::int64_t optimalSize(const test::FakeMachine::Attributes& queue) {
        test::FakeMachine machine;
        const std::string disk = "pci0000:00/ata1/block/sda";
        machine.addBlockDevice(disk, makedev(8, 0), queue);
        machine.addBlockDevice(disk + "/sda1", makedev(8, 1), {{"partition", "1"}});
        machine.pretendMounted(machine.folder(), {.device = makedev(8, 1), .source = "/dev/sda1"});
        return askFileSystem(machine.folder(), machine.sources())->optimalIOSizeBytes;
    }
};

TEST_F(OptimalSizeTest, ComesFromTheQueueOfTheWholeDisk) {
    const char* const declared = "queue/optimal_io_size";
    const char* const request = "queue/max_sectors_kb";
    EXPECT_EQ(optimalSize({{declared, "0"}, {request, "1280"}}), 1048576);
    EXPECT_EQ(optimalSize({{declared, "0"}, {request, "4"}}), 65536);
    EXPECT_EQ(optimalSize({{declared, "0"}, {request, "32767"}}), 4194304);
    EXPECT_EQ(optimalSize({{declared, "1572864"}, {request, "512"}}), 1572864); // a RAID's stripe
    EXPECT_EQ(optimalSize({{declared, "33553920"}, {request, "512"}}), 524288); // a USB bridge's error
    EXPECT_EQ(optimalSize({{declared, "-4096"}, {request, "junk"}}), 0);
    EXPECT_EQ(optimalSize({}), 0);
}

TEST_F(OptimalSizeTest, IsTheServersPreferenceAndUnknownForMemory) {
    test::FakeMachine machine;
    struct stat facts{};
    ASSERT_EQ(stat(machine.folder().c_str(), &facts), 0);
    machine.pretendMounted(machine.folder(),
                           {.type = "nfs4", .device = makedev(0, 40), .source = "filer:/x"});
    const auto nfs = askFileSystem(machine.folder(), machine.sources());
    EXPECT_EQ(nfs->optimalIOSizeBytes, facts.st_blksize > 4096 ? facts.st_blksize : 0);
    EXPECT_EQ(nfs->type, "nfs");
    machine.pretendMounted(machine.folder(), {.type = "tmpfs", .device = makedev(0, 41), .source = "tmpfs"});
    EXPECT_EQ(askFileSystem(machine.folder(), machine.sources())->optimalIOSizeBytes, 0);
}

TEST(FileSystemAnswers, DependOnOptionsAndLayers) {
    test::FakeMachine machine;
    machine.addBlockDevice("virtual/block/dm-0", makedev(253, 0), {{"dm/uuid", "CRYPT-VERITY-00-usr"}});
    const auto words = [&](const test::FakeMachine::Row& row) {
        machine.pretendMounted(machine.folder(), row);
        return *askFileSystem(machine.folder(), machine.sources())->capabilities;
    };
    const dev_t dm = makedev(253, 0);
    EXPECT_TRUE(words({.type = "erofs", .device = dm}).format.has(formatSealed));
    EXPECT_FALSE(words({.type = "erofs", .device = makedev(7, 9)}).format.has(formatSealed));
    EXPECT_TRUE(words({.type = "xfs", .device = dm}).format.has(formatJournalActive));
    EXPECT_TRUE(words({.type = "ext4", .device = dm}).format.has(formatJournalActive));
    EXPECT_FALSE(words({.type = "ext4", .device = dm, .superOptions = "ro,norecovery"})
                     .format.has(formatJournalActive));
    EXPECT_FALSE(
        words({.type = "ntfs3", .device = dm, .superOptions = "rw,nocase"}).format.has(formatCaseSensitive));
    EXPECT_TRUE(words({.type = "zfs", .device = 41, .superOptions = "rw,xattr,casesensitive"})
                    .format.has(formatCaseSensitive));
}

/// The answers of file systems, and their abilities in trials: looking up names in the other case, making
/// links and holes, names of 255 and 256 characters, setting and reading access lists. The rows of network
/// file systems are derived from their drivers; the others were recorded.
struct Tried {
    const char* what;
    const char *type, *source, *superOptions;
    std::int64_t nameMax; ///< the result of pathconf(3)
    std::optional<bool> userAttributes, accessLists;
    LetterCase letterCase;
    bool hasCapitals;
    const char* abilities; ///< see `abilitiesOf`
    std::int64_t longestName;
    std::optional<std::int64_t> mostLinks;
};

/// Case-sensitive, case-Preserving, sYmbolic and Hard links, Sparse files, access Lists, cloning (K): the
/// letter if present, "-" if absent, "." if unknown.
std::string abilitiesOf(const CapabilityWords& words) {
    const auto answer = [](const CapabilityWord& word, std::uint32_t bit, char letter) {
        return !word.knows(bit) ? '.' : word.has(bit) ? letter : '-';
    };
    return {answer(words.format, formatCaseSensitive, 'C'),
            answer(words.format, formatCasePreserving, 'P'),
            answer(words.format, formatSymbolicLinks, 'Y'),
            answer(words.format, formatHardLinks, 'H'),
            answer(words.format, formatSparseFiles, 'S'),
            answer(words.interfaces, interfaceExtendedSecurity, 'L'),
            answer(words.interfaces, interfaceClone, 'K')};
}

TEST(FileSystemAnswers, AgreeWithTrials) {
    using enum LetterCase;
    const auto none = std::nullopt;
    for (const Tried& tried : {
             Tried{"FAT", "vfat", "/dev/none", "rw,shortname=mixed,utf8", 1530, false, false, preserving,
                   true, "-P-----", 255, 1},
             Tried{"exFAT", "exfat", "/dev/none", "rw,iocharset=utf8", 1530, false, false, preserving, true,
                   "-P-----", 255, 1},
             Tried{"ntfs-3g", "fuseblk.ntfs", "/dev/none", "rw,user_id=0", 255, true, true, sensitive, true,
                   "CPYHS.-", 255, none},
             Tried{"lowntfs-3g ignore_case", "fuseblk.ntfs", "/dev/none", "rw,user_id=0", 255, true, true,
                   ignored, false, "-.YHS.-", 255, none},
             Tried{"UDF", "udf", "/dev/none", "rw,iocharset=utf8", 254, false, false, sensitive, true,
                   "CPYHS--", 254, 65535},
             Tried{"ISO with Rock Ridge", "iso9660", "/dev/none", "ro,nojoliet,check=s,map=n", 255, false,
                   false, sensitive, true, "CPY.---", 255, none},
             Tried{"ISO with Joliet", "iso9660", "/dev/none", "ro,norock,check=r,map=n", 255, false, false,
                   preserving, true, "-P-----", 255, none},
             Tried{"ISO, plain", "iso9660", "/dev/none", "ro,nojoliet,check=s,map=n", 255, false, false,
                   sensitive, false, "C...---", 255, none},
             Tried{"overlay", "overlay", "overlay", "rw,lowerdir=/l,upperdir=/u", 255, false, true, sensitive,
                   true, "CPYH.L.", 255, none},
             Tried{"NFS of a Linux server", "nfs4", "filer:/x", "rw,vers=4.2", 255, true, false, sensitive,
                   true, "CPYH.-.", 255, none},
             Tried{"NFS, nothing there to look up", "nfs4", "filer:/x", "rw,vers=4.2", 255, true, false,
                   unknown, false, "..YH.-.", 255, none},
             Tried{"SSHFS", "fuse.sshfs", "me@host:", "rw", 255, false, false, sensitive, true, "CPY..--",
                   255, none},
             Tried{"SSHFS of a Mac", "fuse.sshfs", "me@host:", "rw", 255, false, false, preserving, true,
                   "-PY..--", 255, none},
             Tried{"9P", "9p", "share", "rw,trans=virtio", 255, none, none, sensitive, true, "CPYH..-", 255,
                   none},
             Tried{"SMB of Windows", "cifs", "//nas/x", "rw,vers=3.1.1", 255, true, none, preserving, true,
                   "-P.....", 255, none},
             Tried{"SMB, case told", "cifs", "//nas/x", "rw,nocase", 255, true, none, unknown, false,
                   "-......", 255, none},
             Tried{"a program of its own", "fuse.mergerfs", "pool", "rw", 255, true, true, sensitive, true,
                   "CP.....", 255, none},
         }) {
        const Mount mount{.device = makedev(0, 99),
                          .type = tried.type,
                          .source = tried.source,
                          .superOptions = tried.superOptions};
        PathFacts told;
        told.maxNameLength = tried.nameMax;
        told.maxLinkCount = 127; // the result of pathconf(3) if it does not know
        told.keepsUserAttributes = tried.userAttributes;
        told.keepsAccessLists = tried.accessLists;
        told.letterCase = tried.letterCase;
        told.hasCapitals = tried.hasCapitals;
        const auto answers = fileSystemAnswers(told, mount);
        EXPECT_EQ(abilitiesOf(*answers.capabilities), tried.abilities) << tried.what;
        EXPECT_EQ(answers.maxNameLength, tried.longestName) << tried.what;
        EXPECT_EQ(answers.maxLinkCount, tried.mostLinks) << tried.what;
    }
}

TEST(FileSystemAnswers, HandleUnknownTypesAndPaths) {
    test::FakeMachine machine;
    machine.pretendMounted(machine.folder(), {.type = "unheard-of", .device = makedev(8, 0)});
    const auto answers = askFileSystem(machine.folder(), machine.sources());
    EXPECT_EQ(answers->type, "unheard-of");
    EXPECT_FALSE(answers->capabilities->format.knows(formatSparseFiles));
    EXPECT_TRUE(answers->capabilities->format.has(formatCaseSensitive)) << "as was found out";
    EXPECT_GT(answers->blockSizeBytes, 0);
    machine.setMountTable("");
    EXPECT_EQ(askFileSystem(machine.folder(), machine.sources())->type, "");
    EXPECT_FALSE(askFileSystem(machine.folder() / "none", machine.sources()));
    EXPECT_FALSE(askFileSystem(std::string(5000, 'x'), machine.sources()));
    EXPECT_FALSE(askFileSystem("", machine.sources()));
}

} // namespace
