#include "OndelCore/platform/storage/Storage.h"

#include "OndelCore/SaturatingMath.h"

#include <sys/statvfs.h>
#include <unistd.h>

#include <cerrno>

namespace OndelCore::platform {

std::optional<std::int64_t> freeBytes(int descriptor) {
    struct statvfs facts{};
    if (fstatvfs(descriptor, &facts) != 0)
        return std::nullopt;
    // Linux counts in fragments; f_bsize is larger on some FUSE and network file systems.
    return saturatingMultiply(facts.f_bavail, facts.f_frsize);
}

std::optional<std::int64_t> totalBytes(int descriptor) {
    struct statvfs facts{};
    if (fstatvfs(descriptor, &facts) != 0)
        return std::nullopt;
    return saturatingMultiply(facts.f_blocks, facts.f_frsize);
}

// fsync(2) on Linux also flushes the drive's cache.
std::error_code flushToMedium(int descriptor) {
    while (fsync(descriptor) != 0)
        if (errno != EINTR)
            return {errno, std::generic_category()};
    return {};
}

} // namespace OndelCore::platform
