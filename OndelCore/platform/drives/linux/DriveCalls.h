#pragma once

#include "OndelCore/platform/drives/BlockDevices.h"
#include "OndelCore/platform/storage/FileDescriptor.h"

#include <chrono>

namespace OndelCore::platform {

/// The time limit of one command to a drive. It is long on purpose: the kernel resets the drive's link at its
/// end, and a drive that is busy with a bad sector needs many seconds.
constexpr std::chrono::milliseconds driveCommandLimit{20000};

/// The system calls for commands to a drive. Tests override them.
class DriveCalls {
public:
    virtual ~DriveCalls() = default;

    /// Opens a disk's node for reading, without waiting for a medium. Fails: no descriptor, errno set; ENXIO
    /// if the node now belongs to another device.
    virtual FileDescriptor open(const BlockDevice& disk);

    /// ioctl(2), repeated if a signal interrupts it. Fails: the negative errno.
    virtual int control(const FileDescriptor& drive, unsigned long request, void* argument);
};

} // namespace OndelCore::platform
