#pragma once

#include "OndelCore/platform/FileDescriptor.h"

#include <filesystem>
#include <string_view>

namespace OndelCore::benchmark {

/// The hidden folder that holds everything a run writes.
///
/// While it is there, a shared lock (flock) on its parent says so: who sweeps only where nothing goes on asks
/// for an exclusive one. Where folders cannot be locked there is none.
/// Owner: the object removes it with all that is in it, and never complains about that.
class WorkingFolder {
public:
    /// The mark by which one that a killed run left behind is known.
    static constexpr std::string_view namePrefix = ".ondel-analyzer-";

    /// Makes a new one inside `parent`. Fails: throws std::filesystem::filesystem_error.
    explicit WorkingFolder(const std::filesystem::path& parent);
    ~WorkingFolder();
    WorkingFolder(const WorkingFolder&) = delete;
    WorkingFolder& operator=(const WorkingFolder&) = delete;

    const std::filesystem::path& path() const { return m_path; }

    /// Removes every working folder in `parent`, in use or not. Fails: silently, name by name.
    static void removeAllIn(const std::filesystem::path& parent);

private:
    platform::FileDescriptor m_lock;
    std::filesystem::path m_path;
};

} // namespace OndelCore::benchmark
