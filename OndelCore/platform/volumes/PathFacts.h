#pragma once

#include "OndelCore/platform/process/ChildQuestion.h"
#include "OndelCore/platform/volumes/Mounts.h"

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace OndelCore::platform {

/// Whether the file system of a mount may take a request and never answer it: a server, another program or an
/// automounter stands behind it. Unknown types count as such.
bool mayHang(const Mount& mount);

/// The same of a path: whether looking it up comes to such a mount, through symbolic links as well. Only what
/// lies before the first such mount is touched. Threads: any.
bool mayHang(const std::filesystem::path& path, const std::vector<Mount>& mounts);

/// Whether names that differ only in upper and lower case are one. Found out by looking up an existing name
/// in swapped case; nothing is made.
enum class LetterCase : std::uint8_t {
    unknown,    ///< no name with letters is there, or the answers make no sense
    sensitive,  ///< two names
    preserving, ///< one name, kept as it was written
    ignored,    ///< one name; whether it is kept as written cannot be seen
};

/// What is asked about a path. Each includes those before it.
enum class PathQuestion : std::uint8_t { place, sizes, abilities };

/// What the system calls that take a path answer.
/// Units: bytes.
struct PathFacts {
    int error = 0; ///< errno of the failed look-up; nothing else is told then
    // place
    bool isFolder = false;
    bool mayWrite = false;          ///< as far as the permissions say
    std::uint64_t mountId = 0;      ///< Mount::id; 0: not told
    std::filesystem::path resolved; ///< without symbolic links; as given where that cannot be told
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
    bool hasCapitals = false; ///< a name with an upper-case letter is there
};

/// Asks where `path` lies on this machine's own file systems, and through a child process where it may hang.
/// Threads: any. Fails: absent where there was no answer in time; a path that cannot be looked up has an
/// `error`.
std::optional<PathFacts> pathFacts(const std::filesystem::path& path, PathQuestion question,
                                   const std::vector<Mount>& mounts, const Waiting& waiting);
std::optional<PathFacts> pathFacts(const std::filesystem::path& path,
                                   PathQuestion question = PathQuestion::place,
                                   const Waiting& waiting = {.patience = defaultPatience});

/// The capacities of the volumes mounted at these places, all asked at once. Units: bytes. Fails: absent
/// each.
std::vector<std::optional<std::int64_t>> totalSizes(const std::vector<Mount>& mounts, const Waiting& waiting);

/// The mount that facts of a path name. Fails: absent if it is none of these.
std::optional<Mount> mountOf(const PathFacts& facts, const std::vector<Mount>& mounts);

} // namespace OndelCore::platform
