#include "OndelCore/platform/drives/linux/FileSystemState.h"

#include "OndelCore/platform/drives/BlockDevices.h"
#include "OndelCore/platform/storage/FileDescriptor.h"
#include "OndelCore/platform/volumes/linux/MountedType.h"

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>

#include <fstream>
#include <string>
#include <string_view>

namespace OndelCore::platform {

namespace {

bool isProgram(const Mount& mount) {
    return mount.type == "fuse" || mount.type == "fuseblk" || mount.type.starts_with("fuse.") ||
           mount.type.starts_with("fuseblk.");
}

/// FS_IOC_GETFLAGS. Fails: absent.
std::optional<unsigned> flagsOf(int descriptor) {
    int flags = 0; // what the kernel writes, whatever the request's number says
    return ioctl(descriptor, FS_IOC_GETFLAGS, &flags) == 0 ? std::optional(static_cast<unsigned>(flags))
                                                           : std::nullopt;
}

std::optional<bool> allowsDirectIo(int file) {
    struct statx facts{};
    if (statx(file, "", AT_EMPTY_PATH, STATX_DIOALIGN, &facts) != 0 || !(facts.stx_mask & STATX_DIOALIGN))
        return std::nullopt;
    return facts.stx_dio_offset_align != 0;
}

/// Whether the superblock's own default mode is to journal data: the mount table leaves that out.
bool journalsByDefault(const Mount& mount, const SystemSources& sources, const std::filesystem::path& proc) {
    const auto device = blockDevice(mount.device, sources.sysfs);
    if (!device)
        return false;
    std::ifstream options(proc / "fs" / mount.type / device->folder.filename() / "options");
    std::string line;
    for (int lines = 0; lines < 100 && std::getline(options, line); ++lines)
        if (line == "data=journal")
            return true;
    return false;
}

void addBtrfs(Circumstances& circumstances, std::string_view options, unsigned flags) {
    const bool writesInPlace = hasMountOption(options, "nodatacow") || (flags & FS_NOCOW_FL);
    circumstances.copiesOnWrite = !writesInPlace;
    circumstances.checksumsData = !writesInPlace && !hasMountOption(options, "nodatasum");
    const auto names = [&](const char* option) {
        const auto method = mountOptionValue(options, option);
        return hasMountOption(options, option) || (method && *method != "no" && *method != "none");
    };
    const bool isAsked = names("compress") || (flags & FS_COMPR_FL);
    const bool isRefused = (flags & FS_NOCOMP_FL) != 0;
    circumstances.compresses =
        circumstances.checksumsData && (names("compress-force") || (isAsked && !isRefused));
}

void addOptions(Circumstances& circumstances, const Mount& mount, unsigned flags,
                const SystemSources& sources, const std::filesystem::path& proc) {
    if (mount.type == "btrfs")
        return addBtrfs(circumstances, mount.superOptions, flags);
    circumstances.compresses = (flags & FS_COMPR_FL) != 0;
    if (mount.type == "bcachefs")
        circumstances.compresses =
            mountOptionValue(mount.superOptions, "compression").value_or("none") != "none";
    circumstances.copiesOnWrite = mount.type == "zfs" || mount.type == "nilfs2" ||
                                  (mount.type == "bcachefs" && !hasMountOption(mount.superOptions, "nocow"));
    if (mount.type == "ext3" || mount.type == "ext4")
        circumstances.journalsData = mountOptionValue(mount.superOptions, "data") == "journal" ||
                                     (flags & FS_JOURNAL_DATA_FL) || journalsByDefault(mount, sources, proc);
}

std::int64_t saturatingProduct(std::uint64_t count, std::uint64_t unit) {
    std::int64_t bytes = 0;
    return __builtin_mul_overflow(count, unit, &bytes) ? INT64_MAX : bytes;
}

} // namespace

void addFileSystemState(Circumstances& circumstances, const Mount& mount, int folder,
                        const SystemSources& sources, const std::filesystem::path& proc) {
    SystemSources withoutDevices = sources; // reading a superblock would open the device
    withoutDevices.superblock = [](dev_t) { return DeviceProperties(); };
    withoutDevices.image = [](const std::filesystem::path&) { return DeviceProperties(); };
    circumstances.fileSystemType = mountedType(mount, withoutDevices);
    const FileSystemFacts* const facts = factsOfMounted(mount, circumstances.fileSystemType);
    circumstances.reach = facts ? std::optional(facts->reach) : std::nullopt;
    circumstances.isServedByProgram = isProgram(mount);
    if (circumstances.isServedByProgram || circumstances.reach == FileSystemReach::network)
        return; // an answer may never come

    // What a file inherits from its folder differs from what the mount says.
    const FileDescriptor file(openat(folder, ".", O_TMPFILE | O_RDWR | O_CLOEXEC, S_IRUSR | S_IWUSR));
    circumstances.allowsDirectIo = file ? allowsDirectIo(file.get()) : std::nullopt;
    const unsigned flags = flagsOf(file ? file.get() : folder).value_or(0);
    addOptions(circumstances, mount, flags, sources, proc);
    circumstances.isEncrypted = circumstances.isEncrypted || (flags & FS_ENCRYPT_FL);
}

void addSizes(Circumstances& circumstances, int folder) {
    struct statvfs sizes{};
    if (fstatvfs(folder, &sizes) != 0 || sizes.f_blocks == 0)
        return;
    circumstances.capacityBytes = saturatingProduct(sizes.f_blocks, sizes.f_frsize);
    circumstances.freeBytes = saturatingProduct(sizes.f_bavail, sizes.f_frsize);
}

} // namespace OndelCore::platform
