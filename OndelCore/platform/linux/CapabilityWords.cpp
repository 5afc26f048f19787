#include "OndelCore/platform/linux/CapabilityWords.h"

#include "OndelCore/platform/BlockDevices.h"
#include "OndelCore/platform/FileDescriptor.h"

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/xattr.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdint>

namespace OndelCore::platform {

namespace {

/// The answer of XFS to "what is your geometry", first version (xfs_fs.h); all in the machine's byte order.
struct XfsGeometry {
    std::array<std::uint32_t, 4> blockAndGroupSizes;
    std::array<std::uint32_t, 4> sectorAndInodeSizes;
    std::array<std::uint64_t, 4> blockCounts;
    std::array<std::uint8_t, 16> uuid;
    std::uint32_t stripeUnit;
    std::uint32_t stripeWidth;
    std::int32_t version;
    std::uint32_t flags;
    std::array<std::uint32_t, 4> logSectorAndRealtimeSizes;
};
static_assert(sizeof(XfsGeometry) == 112);
static_assert(offsetof(XfsGeometry, flags) == 92);
constexpr unsigned long xfsGetGeometry = _IOR('X', 100, XfsGeometry);
constexpr std::uint32_t xfsIgnoresCase = 1U << 13;
constexpr std::uint32_t xfsSharesBlocks = 1U << 20;

constexpr long folderIgnoresCase = 0x40000000; // FS_CASEFOLD_FL of linux/fs.h

/// Whether the file system keeps an attribute of this name; absent if it does not say.
std::optional<bool> keepsAttribute(const std::filesystem::path& path, const char* name) {
    if (getxattr(path.c_str(), name, nullptr, 0) >= 0 || errno == ENODATA)
        return true;
    return errno == EOPNOTSUPP ? std::optional(false) : std::nullopt;
}

void askAttributes(CapabilityWords& words, const std::filesystem::path& path) {
    if (const auto keeps = keepsAttribute(path, "user.ondel"))
        words.interfaces.state(interfaceExtendedAttributes, *keeps);
    if (const auto keeps = keepsAttribute(path, "system.posix_acl_access"))
        words.interfaces.state(interfaceExtendedSecurity, *keeps);
}

void askFolder(CapabilityWords& words, std::string_view type, const std::filesystem::path& path) {
    const FileDescriptor folder(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (!folder)
        return;
    long flags = 0;
    if (ioctl(folder.get(), FS_IOC_GETFLAGS, &flags) == 0 && (flags & folderIgnoresCase))
        words.format.state(formatCaseSensitive, false);
    XfsGeometry geometry{};
    if (type == "xfs" && ioctl(folder.get(), xfsGetGeometry, &geometry) == 0) {
        words.interfaces.state(interfaceClone, (geometry.flags & xfsSharesBlocks) != 0);
        words.format.state(formatCaseSensitive, (geometry.flags & xfsIgnoresCase) == 0);
    }
}

/// Ext3 and Ext4 can be made without a journal, and mounted without using it.
void askJournal(CapabilityWords& words, const Mount& mount, const SystemSources& sources) {
    if (hasMountOption(mount.superOptions, "norecovery") || hasMountOption(mount.superOptions, "noload")) {
        words.format.state(formatJournalActive, false);
        return;
    }
    const auto device = blockDevice(mount.device, sources.sysfs);
    if (!device)
        return;
    std::string folder = device->folder.filename().string();
    if (const auto task = readAttribute(sources.sysfs / "fs/ext4" / folder / "journal_task"))
        words.format.state(formatJournalActive, *task != "<none>");
}

void readOptions(CapabilityWords& words, std::string_view type, const Mount& mount) {
    const auto has = [&](std::string_view option) { return hasMountOption(mount.superOptions, option); };
    if (has("nocase") || has("caseinsensitive"))
        words.format.state(formatCaseSensitive, false);
    if (has("casesensitive"))
        words.format.state(formatCaseSensitive, true);
    if (type == "iso9660") {
        words.format.state(formatCaseSensitive, has("check=s"));
        if (has("norock") && has("check=r")) // the names are Joliet's
            words.format.state(formatCasePreserving, true);
    }
    if (type == "cifs" && (has("mfsymlinks") || has("unix") || has("posix")))
        words.format.state(formatSymbolicLinks, true);
}

} // namespace

CapabilityWords capabilityWords(const FileSystemFacts& facts, const Mount& mount,
                                const std::filesystem::path& path, const SystemSources& sources) {
    CapabilityWords words = facts.capabilities;
    readOptions(words, facts.type, mount);
    askAttributes(words, path);
    askFolder(words, facts.type, path);
    if (facts.type == "ext3" || facts.type == "ext4")
        askJournal(words, mount, sources);
    if (facts.reach == FileSystemReach::device)
        words.format.state(formatSealed, blockStack(mount, sources).isSealed);
    return words;
}

} // namespace OndelCore::platform
