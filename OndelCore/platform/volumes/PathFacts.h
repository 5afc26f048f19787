#pragma once

#include "OndelCore/Export.h"
#include "OndelCore/platform/process/ChildQuestion.h"
#include "OndelCore/platform/volumes/Mounts.h"

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace OndelCore::platform {

/// Whether the file system of a mount may accept a request and never answer it, because it depends on a
/// server, a FUSE program or an automounter. Unknown types are included.
bool mayHang(const Mount& mount);

/// Whether the look-up of a path enters such a mount, also through symbolic links. Only the part before the
/// first such mount is accessed. Threads: any.
bool mayHang(const std::filesystem::path& path, const std::vector<Mount>& mounts);

/// How names that differ only in case are treated. Determined by looking up an existing name in swapped case;
/// nothing is created.
enum class LetterCase : std::uint8_t {
    unknown,    ///< no name has letters, or the answers contradict each other
    sensitive,  ///< they are two names
    preserving, ///< they are one name, stored as written
    ignored,    ///< they are one name; whether it is stored as written is unknown
};

/// Questions about a path. Each includes the previous ones.
enum class PathQuestion : std::uint8_t { place, sizes, abilities };

/// The answers of system calls on a path. Units: bytes.
struct PathFacts {
    int error = 0; ///< errno of a failed look-up; no other field is set then
    // place
    bool isFolder = false;
    bool mayWrite = false;          ///< according to the permissions
    std::uint64_t mountId = 0;      ///< Mount::id; 0: unknown
    std::filesystem::path resolved; ///< without symbolic links; unchanged if that is unknown
    // sizes
    bool hasSizes = false;
    std::int64_t total = 0;
    std::int64_t available = 0; ///< to an unprivileged user
    std::int64_t blockSize = 0; ///< the unit of allocation
    // abilities
    std::int64_t preferredTransfer = 0; ///< st_blksize
    std::optional<std::int64_t> maxNameLength;
    std::optional<std::int64_t> maxPathLength;
    std::optional<std::int64_t> maxLinkCount;
    std::optional<bool> keepsUserAttributes;
    std::optional<bool> keepsAccessLists;
    std::optional<std::int64_t> folderFlags;       ///< FS_IOC_GETFLAGS
    std::optional<std::uint32_t> xfsGeometryFlags; ///< XFS_IOC_FSGEOMETRY
    LetterCase letterCase = LetterCase::unknown;
    bool hasCapitals = false; ///< there is a name with an upper-case letter
};

/// Asks directly on local file systems, and through a child process where the path may hang. Threads: any.
/// Fails: absent without an answer in time; `error` is set if the look-up fails.
ONDEL_KIT std::optional<PathFacts> pathFacts(const std::filesystem::path& path, PathQuestion question,
                                             const std::vector<Mount>& mounts, const Waiting& waiting);
ONDEL_KIT std::optional<PathFacts> pathFacts(const std::filesystem::path& path,
                                             PathQuestion question = PathQuestion::place,
                                             const Waiting& waiting = {.patience = defaultPatience});

/// The capacities of these mounts, asked in parallel. Units: bytes. Fails: each is absent by itself.
std::vector<std::optional<std::int64_t>> totalSizes(const std::vector<Mount>& mounts, const Waiting& waiting);

/// The mount of a path's facts. Fails: absent if it is none of these.
std::optional<Mount> mountOf(const PathFacts& facts, const std::vector<Mount>& mounts);

} // namespace OndelCore::platform
