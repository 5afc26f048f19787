#pragma once

#include "OndelCore/Export.h"
#include "OndelCore/platform/storage/FileDescriptor.h"

#include <chrono>
#include <filesystem>

namespace OndelCore::platform {

/// An exclusive lock on a file, for processes that change the same data. It is released with the object or
/// with the process. A missing file is made, for the user alone, and stays. Threads: any; two locks on one
/// file exclude each other inside a process as well.
class ONDEL_KIT FileLock {
public:
    /// Waits at most `patience`. Fails: the lock is not held; without waiting if the file cannot be made or
    /// its file system has no locks.
    FileLock(const std::filesystem::path& path, std::chrono::milliseconds patience);

    bool isHeld() const { return m_isHeld; }

private:
    FileDescriptor m_file;
    bool m_isHeld = false;
};

} // namespace OndelCore::platform
