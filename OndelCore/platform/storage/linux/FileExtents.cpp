#include "OndelCore/platform/storage/FileExtents.h"

#include <fcntl.h>
#include <linux/fiemap.h>
#include <linux/fs.h>
#include <linux/magic.h>
#include <sys/ioctl.h>
#include <sys/vfs.h>

#include <cerrno>
#include <cstddef>
#include <cstring>

namespace OndelCore::platform {

namespace {

constexpr std::uint32_t extentsPerCall = 128;

/// 0: unknown.
unsigned long typeOf(int descriptor) {
    struct statfs facts{};
    return fstatfs(descriptor, &facts) == 0 ? static_cast<unsigned long>(facts.f_type) : 0;
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
    return fallocate(descriptor, FALLOC_FL_KEEP_SIZE, 0, length) == 0;
}

bool lacksSparseFiles(int descriptor) {
    constexpr unsigned long exfat = 0x2011BAB0; // EXFAT_SUPER_MAGIC; not in the headers
    const unsigned long type = typeOf(descriptor);
    return type == MSDOS_SUPER_MAGIC || type == exfat;
}

void dropFromCache(int descriptor) { posix_fadvise(descriptor, 0, 0, POSIX_FADV_DONTNEED); }

} // namespace OndelCore::platform
