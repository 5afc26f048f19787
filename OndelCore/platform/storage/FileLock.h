#pragma once

#include "OndelCore/platform/storage/FileDescriptor.h"

#include <chrono>
#include <filesystem>

namespace OndelCore::platform {

/// An exclusive lock on a file that programs agree on, for those that change something together. It goes with
/// the object and with the process. The file is made if it is missing, for the user alone, and stays.
/// Threads: any; two locks on one file exclude each other inside a process as well.
class FileLock {
public:
    /// Waits at most `patience`. Fails: the lock is not held, at once where the file cannot be made or its
    /// file system has no locks.
    FileLock(const std::filesystem::path& path, std::chrono::milliseconds patience);

    bool isHeld() const { return m_isHeld; }

private:
    FileDescriptor m_file;
    bool m_isHeld = false;
};

} // namespace OndelCore::platform
