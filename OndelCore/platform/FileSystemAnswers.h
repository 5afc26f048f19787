#pragma once

#include "OndelCore/platform/FileSystemFacts.h"
#include "OndelCore/platform/SystemSources.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

namespace OndelCore::platform {

/// What the file system of a path says of itself.
struct FileSystemAnswers {
    std::string type;                    ///< in the fixed vocabulary (see FileSystemFacts.h)
    std::int64_t blockSizeBytes = 0;     ///< the unit of allocation
    std::int64_t optimalIOSizeBytes = 0; ///< the transfer that suits the medium best; 0: nothing to tell
    std::optional<std::int64_t> maxNameLength;
    std::optional<std::int64_t> maxPathLength;
    std::optional<std::int64_t> maxLinkCount;
    std::optional<CapabilityWords> capabilities; ///< absent: the type is unknown

    bool operator==(const FileSystemAnswers&) const = default;
};

/// Threads: any; blocks as long as the file system does. Fails: absent if the path cannot be asked at all.
std::optional<FileSystemAnswers> askFileSystem(const std::filesystem::path& path,
                                               const SystemSources& sources = {});

} // namespace OndelCore::platform
