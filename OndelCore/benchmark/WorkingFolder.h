#pragma once

#include "OndelCore/platform/storage/FileDescriptor.h"

#include <sys/types.h>

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace OndelCore::benchmark {

/// The hidden folder that holds everything a run writes.
///
/// While the object lives, the folder is locked (flock, exclusive): who sweeps takes the same lock first, and
/// leaves a folder alone that it does not get. Where folders cannot be locked, every one counts as a
/// leftover.
/// Owner: the object removes the folder with all that is in it, wherever it was moved meanwhile, and never
/// complains about that.
class WorkingFolder {
public:
    /// The mark by which one that a killed run left behind is known.
    static constexpr std::string_view namePrefix = ".ondel-analyzer-";

    /// Makes a new one inside `parent`, which is open and outlives the object. `owner`: who owns what this
    /// process makes there; on file systems that keep no owners that is not this user. Fails: throws
    /// std::system_error.
    WorkingFolder(int parent, uid_t owner);
    ~WorkingFolder();
    WorkingFolder(const WorkingFolder&) = delete;
    WorkingFolder& operator=(const WorkingFolder&) = delete;

    int descriptor() const { return m_folder.get(); }

    /// Removes every working folder in `parent` that is not in use; answers how many are. Fails: silently,
    /// name by name.
    static std::size_t removeOrphansIn(const std::filesystem::path& parent);

private:
    bool isTaken(uid_t owner) const;

    int m_parent;
    std::string m_name;
    platform::FileDescriptor m_folder;
};

} // namespace OndelCore::benchmark
