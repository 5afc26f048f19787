#pragma once

#include "OndelCore/platform/drives/BlockDevices.h"
#include "OndelCore/platform/storage/FileDescriptor.h"

#include <chrono>

namespace OndelCore::platform {

/// How long the kernel waits for one command to a drive. Generous on purpose: when it runs out the kernel
/// resets the drive's link, and a drive that is busy with a bad sector needs many seconds to answer.
constexpr std::chrono::milliseconds driveCommandLimit{20000};

/// The system calls with which a drive is asked. This class makes them; tests hand in their own drives.
class DriveCalls {
public:
    virtual ~DriveCalls() = default;

    /// Opens a disk's node for reading, without waiting for a medium. Fails: no descriptor, errno set; ENXIO
    /// when the node belongs to another device by now.
    virtual FileDescriptor open(const BlockDevice& disk);

    /// ioctl(2), repeated when a signal interrupts it. Fails: the negative errno.
    virtual int control(const FileDescriptor& drive, unsigned long request, void* argument);
};

} // namespace OndelCore::platform
