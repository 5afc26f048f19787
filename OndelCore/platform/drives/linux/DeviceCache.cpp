#include "OndelCore/platform/drives/DeviceCache.h"

#include "OndelCore/platform/drives/BlockDevices.h"
#include "OndelCore/platform/storage/FileDescriptor.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace OndelCore::platform {

void dropDeviceCache(int folder) {
    const SystemSources system;
    const auto mount = mountOfDescriptor(folder, system.mountTable.mounts());
    if (!mount || !mount->type.starts_with("fuseblk"))
        return;
    const auto device = blockDevice(mount->device, system.sysfs);
    if (!device)
        return;
    const FileDescriptor opened(open(device->node().c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat facts{};
    if (!opened || fstat(opened.get(), &facts) != 0 || facts.st_rdev != device->number)
        return;
    fsync(opened.get());
    posix_fadvise(opened.get(), 0, 0, POSIX_FADV_DONTNEED);
}

} // namespace OndelCore::platform
