#include "OndelCore/platform/Storage.h"

#include <sys/statvfs.h>
#include <unistd.h>

#include <limits>

namespace OndelCore::platform {

std::optional<std::int64_t> freeBytes(const std::filesystem::path& path) {
    struct statvfs facts {};
    if (statvfs(path.c_str(), &facts) != 0)
        return std::nullopt;
    // Linux counts in fragments; f_bsize is larger on some FUSE and network file systems.
    std::int64_t bytes = 0;
    if (__builtin_mul_overflow(facts.f_bavail, facts.f_frsize, &bytes))
        return std::numeric_limits<std::int64_t>::max();
    return bytes;
}

// fsync(2) on Linux sends the drive's cache flush after the data.
void flushToMedium(int descriptor) { fsync(descriptor); }

} // namespace OndelCore::platform
