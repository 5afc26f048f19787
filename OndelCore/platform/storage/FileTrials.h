#pragma once

#include "OndelCore/Hashing.h"

#include <cstddef>
#include <optional>

namespace OndelCore::platform {

/// What a file system did in a trial. Absent: the trial was inconclusive.
struct TriedAbilities {
    std::optional<bool> sparseFiles; ///< a hole in a file takes no space
    std::optional<bool> cloning;     ///< a file can share another one's blocks

    bool operator==(const TriedAbilities&) const = default;
    std::size_t hash() const { return hashFields(sparseFiles, cloning); }
};

/// Tries the abilities with temporary files in the open folder `folder`. Writes and flushes less than 100
/// KiB. Threads: any; blocks as long as the file system does. Fails: each ability is absent by itself.
TriedAbilities tryAbilities(int folder);

} // namespace OndelCore::platform
