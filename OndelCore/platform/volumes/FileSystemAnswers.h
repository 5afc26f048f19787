#pragma once

#include "OndelCore/platform/drives/SystemSources.h"
#include "OndelCore/platform/volumes/FileSystemFacts.h"
#include "OndelCore/platform/volumes/Mounts.h"
#include "OndelCore/platform/volumes/PathFacts.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

namespace OndelCore::platform {

/// Facts that the file system of a path reports.
struct FileSystemAnswers {
    std::string type;                    ///< in the fixed vocabulary (see FileSystemFacts.h)
    std::int64_t blockSizeBytes = 0;     ///< the unit of allocation
    std::int64_t optimalIOSizeBytes = 0; ///< the best transfer size for the medium; 0: unknown
    std::optional<std::int64_t> maxNameLength;
    std::optional<std::int64_t> maxPathLength;
    std::optional<std::int64_t> maxLinkCount;
    std::optional<CapabilityWords> capabilities; ///< absent: the mount is unknown

    bool operator==(const FileSystemAnswers&) const = default;
};

/// Threads: any; blocks until the file system answers, for `sources.patience` at most. Fails: absent if the
/// path cannot be asked at all.
std::optional<FileSystemAnswers> askFileSystem(const std::filesystem::path& path,
                                               const SystemSources& sources = {});

/// The same from the facts of a path and its mount. Threads: any.
FileSystemAnswers fileSystemAnswers(const PathFacts& told, const std::optional<Mount>& mount,
                                    const SystemSources& sources = {});

} // namespace OndelCore::platform
