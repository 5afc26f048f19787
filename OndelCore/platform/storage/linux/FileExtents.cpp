#include "OndelCore/platform/storage/FileExtents.h"

#include <fcntl.h>
#include <linux/fiemap.h>
#include <linux/fs.h>
#include <linux/magic.h>
#include <sys/ioctl.h>
#include <sys/utsname.h>
#include <sys/vfs.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <utility>

namespace OndelCore::platform {

namespace {

constexpr std::uint32_t extentsPerCall = 128;
constexpr unsigned long exfatMagic = 0x2011BAB0; // EXFAT_SUPER_MAGIC; not in the headers

/// 0: unknown.
unsigned long typeOf(int descriptor) {
    struct statfs facts{};
    return fstatfs(descriptor, &facts) == 0 ? static_cast<unsigned long>(facts.f_type) : 0;
}

/// Since Linux 6.8 exFAT keeps how much of a file is valid, and fills what it is enlarged by only when
/// something is written behind it.
bool enlargesExfatWithoutWriting() {
    constexpr std::pair since{6, 8};
    utsname system{};
    std::pair release{0, 0};
    return uname(&system) == 0 &&
           std::sscanf(system.release, "%d.%d", &release.first, &release.second) == 2 && release >= since;
}

} // namespace

std::vector<FileExtent> fileExtents(int descriptor, std::size_t most) {
    if (typeOf(descriptor) == BTRFS_SUPER_MAGIC) // answers in addresses of its own
        return {};
    constexpr std::uint32_t elsewhere =
        FIEMAP_EXTENT_UNKNOWN | FIEMAP_EXTENT_DELALLOC | FIEMAP_EXTENT_ENCODED | FIEMAP_EXTENT_DATA_INLINE;
    constexpr std::size_t headSize = sizeof(fiemap);
    std::vector<std::byte> memory(headSize + extentsPerCall * sizeof(fiemap_extent));
    std::vector<FileExtent> extents;
    std::uint64_t from = 0;
    for (bool isLast = false; !isLast && extents.size() < most;) {
        fiemap question{};
        question.fm_start = from;
        question.fm_length = FIEMAP_MAX_OFFSET - from;
        question.fm_extent_count = extentsPerCall;
        std::memcpy(memory.data(), &question, headSize);
        if (ioctl(descriptor, FS_IOC_FIEMAP, memory.data()) != 0)
            break;
        std::memcpy(&question, memory.data(), headSize);
        if (question.fm_mapped_extents == 0)
            break;
        for (std::uint32_t i = 0; i < question.fm_mapped_extents; ++i) {
            fiemap_extent extent{};
            std::memcpy(&extent, memory.data() + headSize + i * sizeof extent, sizeof extent);
            from = extent.fe_logical + extent.fe_length;
            isLast = (extent.fe_flags & FIEMAP_EXTENT_LAST) != 0;
            if ((extent.fe_flags & elsewhere) == 0)
                extents.push_back({static_cast<std::int64_t>(extent.fe_logical),
                                   static_cast<std::int64_t>(extent.fe_physical),
                                   static_cast<std::int64_t>(extent.fe_length)});
        }
    }
    return extents;
}

bool reserveSpace(int descriptor, std::int64_t length) {
    const unsigned long type = typeOf(descriptor);
    if (type == TMPFS_MAGIC || type == RAMFS_MAGIC) { // would take the machine's memory
        errno = EOPNOTSUPP;
        return false;
    }
    if (fallocate(descriptor, FALLOC_FL_KEEP_SIZE, 0, length) == 0)
        return true;
    return errno == EOPNOTSUPP && type == exfatMagic && enlargesExfatWithoutWriting() &&
           ftruncate(descriptor, length) == 0;
}

bool lacksSparseFiles(int descriptor) {
    const unsigned long type = typeOf(descriptor);
    return type == MSDOS_SUPER_MAGIC || type == exfatMagic;
}

bool spreadsSparseFiles(int descriptor) {
    // NTFS-3G: a program behind FUSE, which has this attribute alone.
    return typeOf(descriptor) == FUSE_SUPER_MAGIC &&
           fgetxattr(descriptor, "system.ntfs_attrib", nullptr, 0) > 0;
}

void dropFromCache(int descriptor) { posix_fadvise(descriptor, 0, 0, POSIX_FADV_DONTNEED); }

} // namespace OndelCore::platform
