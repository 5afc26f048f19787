#include "OndelCore/platform/storage/FileDescriptor.h"
#include "OndelCore/platform/volumes/Mounts.h"
#include "fuzz/Fuzz.h"

#include <sys/mman.h>
#include <unistd.h>

using namespace OndelCore::platform;

void fuzz::read(Bytes bytes) {
    const FileDescriptor table(memfd_create("mountinfo", MFD_CLOEXEC));
    require(write(table.get(), bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()));
    const std::filesystem::path path = "/proc/self/fd/" + std::to_string(table.get());
    for (const Mount& mount : mounts(path)) {
        hasMountOption(mount.options, "ro");
        mountOptionValue(mount.superOptions, "subvol");
    }
    mountOfPathIn(mounts(path), "/");
}
