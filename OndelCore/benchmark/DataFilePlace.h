#pragma once

#include "OndelCore/platform/storage/FileDescriptor.h"
#include "OndelCore/platform/storage/OpenFolders.h"

#include <optional>

namespace OndelCore::benchmark {

/// Where a run's data file lies: one name in the working folder, and one file for the whole run. Whatever
/// else somebody puts under that name meanwhile is neither written to nor read.
class DataFilePlace {
public:
    /// `folder`: open, and it outlives the object.
    explicit DataFilePlace(int folder)
        : m_folder(folder) {}

    /// Opens the file by the flags of open(2). With O_CREAT it is made, and must be new; to be called once.
    /// Fails: none, with errno set: ESTALE where another file has the name.
    platform::FileDescriptor open(int flags);

private:
    int m_folder;
    std::optional<platform::FileIdentity> m_identity;
    platform::FileDescriptor m_held; ///< without it some file systems would number the file anew
};

} // namespace OndelCore::benchmark
