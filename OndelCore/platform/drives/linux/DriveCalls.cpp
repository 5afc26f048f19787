#include "OndelCore/platform/drives/linux/DriveCalls.h"

#include <fcntl.h>
#include <sys/ioctl.h>
#include <sys/stat.h>

#include <cerrno>

namespace OndelCore::platform {

FileDescriptor DriveCalls::open(const BlockDevice& disk) {
    FileDescriptor drive(::open(disk.node().c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    struct stat facts{};
    if (!drive || fstat(drive.get(), &facts) != 0)
        return FileDescriptor();
    if (!S_ISBLK(facts.st_mode) || facts.st_rdev != disk.number) {
        errno = ENXIO;
        return FileDescriptor();
    }
    return drive;
}

int DriveCalls::control(const FileDescriptor& drive, unsigned long request, void* argument) {
    int result = 0;
    do
        result = ioctl(drive.get(), request, argument);
    while (result < 0 && errno == EINTR);
    return result < 0 ? -errno : result;
}

} // namespace OndelCore::platform
