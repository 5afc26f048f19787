#include "OndelCore/platform/volumes/FileSystemFacts.h"

#include <algorithm>
#include <array>

namespace OndelCore::platform {

namespace {

constexpr std::uint32_t names = formatCaseSensitive | formatCasePreserving;
constexpr std::uint32_t links = formatSymbolicLinks | formatHardLinks;
constexpr std::uint32_t posix = names | links | formatSparseFiles;
constexpr std::uint32_t journal = formatJournal | formatJournalActive;

constexpr std::uint32_t attributes = interfaceExtendedAttributes | interfaceExtendedSecurity;
constexpr std::uint32_t copies = interfaceClone | interfaceSnapshot;

/// All bits except those in `open` are valid: those in `claimed` are present, the others absent. Whether a
/// volume is sealed does not follow from its type.
constexpr CapabilityWord format(std::uint32_t claimed, std::uint32_t open = 0) {
    return {claimed & ~open, (posix | journal) & ~open};
}
constexpr CapabilityWord interfaces(std::uint32_t claimed, std::uint32_t open = 0) {
    return {claimed & ~open, (attributes | copies | interfaceNamedStreams) & ~open};
}

constexpr FileSystemFacts row(std::string_view type, std::string_view displayName, FileSystemReach reach,
                              CapabilityWord format, CapabilityWord interfaces, std::int64_t maxLinks = 0,
                              std::int64_t maxName = 0) {
    return {type, displayName, reach, {format, interfaces}, maxLinks, maxName};
}

using enum FileSystemReach;

constexpr std::int64_t utf16Name = 255;

// Bits that depend on a server, a mount option or a choice at formatting are open here: the mounted file
// system may determine them (CapabilityWords.cpp). Sources: the kernel's Documentation/filesystems and each
// tool's manual. Links: ext2 EXT2_LINK_MAX, ext3 and ext4 EXT4_LINK_MAX, xfs XFS_MAXLINK, btrfs
// BTRFS_LINK_MAX, f2fs F2FS_LINK_MAX, jfs JFS_LINK_MAX, nilfs2 NILFS_LINK_MAX, udf UDF_MAX_LINKS, ntfs
// NTFS_LINK_MAX. Names: in characters where the kernel reports the bytes of the longest name in the widest
// encoding (1530). Case rules of network file systems depend on the server.
constexpr std::array rows = {
    row("ext2", "Ext2", device, format(posix), interfaces(attributes), 32000),
    row("ext3", "Ext3", device, format(posix | journal), interfaces(attributes), 65000),
    row("ext4", "Ext4", device, format(posix | journal), interfaces(attributes), 65000),
    row("xfs", "XFS", device, format(posix | journal), interfaces(attributes, interfaceClone), 2147483647),
    row("btrfs", "Btrfs", device, format(posix), interfaces(attributes | copies), 65535),
    row("bcachefs", "bcachefs", device, format(posix | journal), interfaces(attributes | copies)),
    row("f2fs", "F2FS", device, format(posix), interfaces(attributes), 32000),
    row("zfs", "ZFS", device, format(posix, formatCaseSensitive),
        interfaces(interfaceExtendedAttributes | interfaceSnapshot,
                   interfaceExtendedSecurity | interfaceClone)),
    row("jfs", "JFS", device, format(posix | journal), interfaces(attributes), 65535),
    row("nilfs2", "NILFS2", device, format(posix), interfaces(interfaceSnapshot), 32000),
    row("reiserfs", "ReiserFS", device, format(posix | journal), interfaces(attributes), 64535),
    row("vfat", "FAT", device, format(formatCasePreserving), interfaces(0), 1, utf16Name),
    row("msdos", "FAT", device, format(0), interfaces(0), 1),
    row("exfat", "exFAT", device, format(formatCasePreserving), interfaces(0), 1, utf16Name),
    row("ntfs", "NTFS", device, format(posix | formatJournal, formatCaseSensitive),
        interfaces(interfaceExtendedAttributes | interfaceNamedStreams, interfaceExtendedSecurity), 1024),
    row("ntfs3", "NTFS", device, format(posix | formatJournal, formatCaseSensitive),
        interfaces(interfaceExtendedAttributes | interfaceNamedStreams, interfaceExtendedSecurity), 1024),
    row("hfsplus", "HFS+", device, format(formatCasePreserving | links | formatJournal, formatCaseSensitive),
        interfaces(interfaceExtendedAttributes), 0, utf16Name),
    row("hfs", "HFS", device, format(formatCasePreserving), interfaces(0), 1),
    row("apfs", "APFS", device, format(posix, formatCaseSensitive),
        interfaces(interfaceExtendedAttributes | copies)),
    row("iso9660", "ISO 9660", device, format(0, names | links), interfaces(0)),
    row("udf", "UDF", device, format(posix), interfaces(0), 65535),
    row("squashfs", "SquashFS", device, format(posix), interfaces(interfaceExtendedAttributes)),
    row("erofs", "EROFS", device, format(posix), interfaces(attributes)),
    row("fuseblk", "FUSE", device, format(0, posix | journal),
        interfaces(0, attributes | interfaceNamedStreams)),
    row("tmpfs", "tmpfs", memory, format(posix), interfaces(attributes)),
    row("ramfs", "ramfs", memory, format(posix), interfaces(0)),
    row("overlay", "OverlayFS", layered, format(names | links, formatSparseFiles),
        interfaces(0, attributes | copies)),
    row("nfs", "NFS", network, format(links, names | formatSparseFiles),
        interfaces(0, attributes | interfaceClone)),
    row("cifs", "SMB", network, format(0, posix),
        interfaces(0, attributes | interfaceClone | interfaceNamedStreams)),
    row("smbfs", "SMB", network, format(0, posix), interfaces(0, attributes | interfaceNamedStreams)),
    row("afpfs", "AFP", network, format(0, posix), interfaces(0, attributes | interfaceNamedStreams)),
    row("9p", "9P", network, format(links, names | formatSparseFiles), interfaces(0, attributes)),
    row("virtiofs", "VirtioFS", network, format(links, names | formatSparseFiles),
        interfaces(0, attributes | copies)),
    row("vboxsf", "Shared Folder", network, format(0, posix), interfaces(0, attributes)),
    row("fuse.vmhgfs-fuse", "Shared Folder", network, format(0, posix), interfaces(0, attributes)),
    row("ceph", "CephFS", network, format(posix), interfaces(attributes | interfaceSnapshot)),
    row("fuse.glusterfs", "GlusterFS", network, format(links, names | formatSparseFiles),
        interfaces(0, attributes | copies)),
    row("fuse.sshfs", "SSHFS", network,
        format(formatSymbolicLinks, formatHardLinks | names | formatSparseFiles), interfaces(0)),
    row("fuse.rclone", "rclone", network, format(0, names | formatSymbolicLinks | formatSparseFiles),
        interfaces(0)),
    row("webdav", "WebDAV", network, format(0, names), interfaces(0)),
    row("ftp", "FTP", network, format(0, names | formatSymbolicLinks), interfaces(0)),
};

// Types whose FUSE program differs from the kernel's driver. ntfs-3g is case-sensitive, lowntfs-3g may not
// be; neither has the kernel driver's limit on links.
constexpr std::array programRows = {
    row("ntfs", "NTFS", device, format(links | formatSparseFiles | formatJournal, names),
        interfaces(interfaceExtendedAttributes | interfaceNamedStreams, interfaceExtendedSecurity)),
    row("apfs", "APFS", device, format(links | formatSparseFiles, names),
        interfaces(interfaceExtendedAttributes | copies)),
};

struct Alias {
    std::string_view kernelType;
    std::string_view type;
};
constexpr std::array aliases = {
    Alias{"nfs4", "nfs"},          Alias{"smb3", "cifs"},           Alias{"davfs", "webdav"},
    Alias{"davfs2", "webdav"},     Alias{"fuse.davfs2", "webdav"},  Alias{"fuse.davfs", "webdav"},
    Alias{"curlftpfs", "ftp"},     Alias{"fuse.curlftpfs", "ftp"},  Alias{"fuse.afpfs", "afpfs"},
    Alias{"fuse.ntfs-3g", "ntfs"}, Alias{"fuse.ntfs", "ntfs"},      Alias{"fuse.exfat", "exfat"},
    Alias{"fuse.apfs", "apfs"},    Alias{"fuse.apfs-fuse", "apfs"}, Alias{"sshfs", "fuse.sshfs"},
};

std::string_view resolveAlias(std::string_view type) {
    const auto* const alias = std::find_if(aliases.begin(), aliases.end(),
                                           [&](const Alias& row) { return row.kernelType == type; });
    return alias == aliases.end() ? type : alias->type;
}

} // namespace

std::span<const FileSystemFacts> allFileSystemFacts() { return rows; }

const FileSystemFacts* fileSystemFacts(std::string_view type, FileSystemDriver driver) {
    const auto rowIn = [&](const auto& table) -> const FileSystemFacts* {
        const auto found = std::ranges::find(table, type, &FileSystemFacts::type);
        return found == table.end() ? nullptr : &*found;
    };
    if (driver == FileSystemDriver::program)
        if (const FileSystemFacts* const facts = rowIn(programRows))
            return facts;
    return rowIn(rows);
}

std::string fileSystemTypeName(std::string_view kernelType, std::string_view source,
                               const std::optional<std::string>& onDevice) {
    if (kernelType.starts_with("fuseblk") && onDevice)
        return std::string(resolveAlias(*onDevice));
    if (kernelType.starts_with("fuseblk."))
        return std::string(resolveAlias("fuse." + std::string(kernelType.substr(8))));
    // Old FUSE programs put their type before a '#' in the source, because mount types had no sub-types.
    if (const auto mark = source.find('#'); kernelType == "fuse" && mark != std::string_view::npos)
        return std::string(resolveAlias(source.substr(0, mark)));
    return std::string(resolveAlias(kernelType));
}

bool isNetworkFileSystem(std::string_view type) {
    const FileSystemFacts* const facts = fileSystemFacts(resolveAlias(type));
    return facts && facts->reach == network;
}

} // namespace OndelCore::platform
