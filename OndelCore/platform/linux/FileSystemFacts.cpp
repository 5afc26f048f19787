#include "OndelCore/platform/FileSystemFacts.h"

#include <algorithm>
#include <array>

namespace OndelCore::platform {

namespace {

constexpr std::uint32_t names = formatCaseSensitive | formatCasePreserving;
constexpr std::uint32_t links = formatSymbolicLinks | formatHardLinks;
constexpr std::uint32_t posix = names | links | formatSparseFiles;
constexpr std::uint32_t journal = formatJournal | formatJournalActive;
constexpr std::uint32_t unsealedFormat = posix | journal;

constexpr std::uint32_t attributes = interfaceExtendedAttributes | interfaceExtendedSecurity;
constexpr std::uint32_t copies = interfaceClone | interfaceSnapshot;
constexpr std::uint32_t everyInterface = attributes | copies | interfaceNamedStreams;

/// Every bit is known: those in `claimed` are there, all others are not.
constexpr CapabilityWord known(std::uint32_t claimed, std::uint32_t valid) { return {claimed, valid}; }
constexpr CapabilityWord format(std::uint32_t claimed) { return known(claimed, unsealedFormat); }
constexpr CapabilityWord interfaces(std::uint32_t claimed) { return known(claimed, everyInterface); }

using enum FileSystemReach;

// What a server decides, what a mount option or a creation flag decides, is not valid here: whoever asks the
// mounted file system itself may make it so (see CapabilityWords.cpp). Sources: the kernel's
// Documentation/filesystems, each tool's manual. Link counts: ext4 EXT4_LINK_MAX, xfs XFS_MAXLINK,
// btrfs BTRFS_LINK_MAX, f2fs F2FS_LINK_MAX, udf UDF_MAX_LINKS, ntfs NTFS_LINK_MAX.
constexpr std::array rows = {
    FileSystemFacts{"ext2", "Ext2", device, {format(posix), interfaces(attributes)}, 32000},
    FileSystemFacts{"ext3", "Ext3", device, {format(posix | journal), interfaces(attributes)}, 32000},
    FileSystemFacts{"ext4", "Ext4", device, {format(posix | journal), interfaces(attributes)}, 65000},
    FileSystemFacts{"xfs",
                    "XFS",
                    device,
                    {format(posix | journal), known(attributes, everyInterface & ~interfaceClone)},
                    2147483647},
    FileSystemFacts{"btrfs", "Btrfs", device, {format(posix), interfaces(attributes | copies)}, 65535},
    FileSystemFacts{
        "bcachefs", "bcachefs", device, {format(posix | journal), interfaces(attributes | copies)}},
    FileSystemFacts{"f2fs", "F2FS", device, {format(posix), interfaces(attributes)}, 32000},
    FileSystemFacts{"zfs",
                    "ZFS",
                    device,
                    {known(posix, unsealedFormat & ~formatCaseSensitive),
                     known(interfaceExtendedAttributes | interfaceSnapshot,
                           everyInterface & ~interfaceClone & ~interfaceExtendedSecurity)}},
    FileSystemFacts{"jfs", "JFS", device, {format(posix | journal), interfaces(attributes)}, 65535},
    FileSystemFacts{"nilfs2", "NILFS2", device, {format(posix), interfaces(interfaceSnapshot)}, 32000},
    FileSystemFacts{"reiserfs", "ReiserFS", device, {format(posix | journal), interfaces(attributes)}, 64535},
    FileSystemFacts{"vfat", "FAT", device, {format(formatCasePreserving), interfaces(0)}, 1},
    FileSystemFacts{"msdos", "FAT", device, {format(0), interfaces(0)}, 1},
    FileSystemFacts{"exfat", "exFAT", device, {format(formatCasePreserving), interfaces(0)}, 1},
    FileSystemFacts{
        "ntfs",
        "NTFS",
        device,
        {known((posix & ~formatCaseSensitive) | formatJournal, unsealedFormat & ~formatCaseSensitive),
         known(interfaceExtendedAttributes | interfaceNamedStreams,
               everyInterface & ~interfaceExtendedSecurity)},
        1024},
    FileSystemFacts{
        "ntfs3",
        "NTFS",
        device,
        {known((posix & ~formatCaseSensitive) | formatJournal, unsealedFormat & ~formatCaseSensitive),
         known(interfaceExtendedAttributes | interfaceNamedStreams,
               everyInterface & ~interfaceExtendedSecurity)},
        1024},
    FileSystemFacts{
        "hfsplus",
        "HFS+",
        device,
        {known(formatCasePreserving | links | formatJournal, unsealedFormat & ~formatCaseSensitive),
         interfaces(interfaceExtendedAttributes)}},
    FileSystemFacts{"hfs", "HFS", device, {format(formatCasePreserving), interfaces(0)}, 1},
    FileSystemFacts{"apfs",
                    "APFS",
                    device,
                    {known(posix & ~formatCaseSensitive, unsealedFormat & ~formatCaseSensitive),
                     interfaces(interfaceExtendedAttributes | copies)}},
    FileSystemFacts{"iso9660", "ISO 9660", device, {known(0, journal | formatSparseFiles), interfaces(0)}},
    FileSystemFacts{"udf", "UDF", device, {format(names | links), interfaces(0)}, 65535},
    FileSystemFacts{"squashfs", "SquashFS", device, {format(posix), interfaces(interfaceExtendedAttributes)}},
    FileSystemFacts{"erofs", "EROFS", device, {format(posix), interfaces(attributes)}},
    FileSystemFacts{
        "fuseblk", "FUSE", device, {known(formatCasePreserving, formatCasePreserving), known(0, copies)}},
    FileSystemFacts{"tmpfs", "tmpfs", memory, {format(posix), interfaces(attributes)}},
    FileSystemFacts{"ramfs", "ramfs", memory, {format(posix), interfaces(0)}},
    FileSystemFacts{"overlay",
                    "OverlayFS",
                    layered,
                    {known(names | links, names | links | journal), known(0, interfaceNamedStreams)}},
    FileSystemFacts{"nfs",
                    "NFS",
                    network,
                    {known(formatCasePreserving | links, formatCasePreserving | links | journal),
                     known(0, interfaceNamedStreams | interfaceSnapshot)}},
    FileSystemFacts{
        "cifs",
        "SMB",
        network,
        {known(formatCasePreserving, formatCasePreserving | journal), known(0, interfaceSnapshot)}},
    FileSystemFacts{
        "smbfs",
        "SMB",
        network,
        {known(formatCasePreserving, formatCasePreserving | journal), known(0, interfaceSnapshot)}},
    FileSystemFacts{"afpfs",
                    "AFP",
                    network,
                    {known(formatCasePreserving, formatCasePreserving | journal), known(0, copies)}},
    FileSystemFacts{
        "9p",
        "9P",
        network,
        {known(formatCasePreserving | links, formatCasePreserving | links | journal),
         known(0, copies | interfaceNamedStreams)}},
    FileSystemFacts{"virtiofs",
                    "VirtioFS",
                    network,
                    {known(formatCasePreserving | links, formatCasePreserving | links | journal),
                     known(0, interfaceNamedStreams)}},
    FileSystemFacts{"ceph",
                    "CephFS",
                    network,
                    {known(posix, posix | journal), known(attributes | interfaceSnapshot, everyInterface)}},
    FileSystemFacts{
        "fuse.glusterfs",
        "GlusterFS",
        network,
        {known(names | links, names | links | journal), known(0, copies | interfaceNamedStreams)}},
    FileSystemFacts{"fuse.sshfs",
                    "SSHFS",
                    network,
                    {known(formatCasePreserving | formatSymbolicLinks,
                           formatCasePreserving | formatSymbolicLinks | journal),
                     interfaces(0)}},
    FileSystemFacts{"fuse.rclone", "rclone", network, {known(0, formatHardLinks | journal), interfaces(0)}},
    FileSystemFacts{"webdav",
                    "WebDAV",
                    network,
                    {known(formatCasePreserving, formatCasePreserving | links | journal | formatSparseFiles),
                     interfaces(0)}},
    FileSystemFacts{
        "ftp",
        "FTP",
        network,
        {known(formatCasePreserving, formatCasePreserving | formatHardLinks | journal | formatSparseFiles),
         interfaces(0)}},
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

const FileSystemFacts* fileSystemFacts(std::string_view type) {
    const auto* const row = std::find_if(rows.begin(), rows.end(),
                                         [&](const FileSystemFacts& facts) { return facts.type == type; });
    return row == rows.end() ? nullptr : row;
}

std::string fileSystemTypeName(std::string_view kernelType, std::string_view source,
                               const std::optional<std::string>& onDevice) {
    if (kernelType.starts_with("fuseblk") && onDevice)
        return std::string(resolveAlias(*onDevice));
    if (kernelType.starts_with("fuseblk."))
        return std::string(resolveAlias("fuse." + std::string(kernelType.substr(8))));
    // Before mount types had sub-types, FUSE programs put theirs before a '#' into the source.
    if (const auto mark = source.find('#'); kernelType == "fuse" && mark != std::string_view::npos)
        return std::string(resolveAlias(source.substr(0, mark)));
    return std::string(resolveAlias(kernelType));
}

bool isNetworkFileSystem(std::string_view type) {
    const FileSystemFacts* const facts = fileSystemFacts(resolveAlias(type));
    return facts && facts->reach == network;
}

} // namespace OndelCore::platform
