#pragma once

#include "OndelCore/Hashing.h"

#include <cstddef>
#include <optional>

namespace OndelCore::platform {

/// What a file system did when it was tried. Absent: the trial tells nothing.
struct TriedAbilities {
    std::optional<bool> sparseFiles; ///< a hole in a file takes no space
    std::optional<bool> cloning;     ///< a file can share another one's blocks

    bool operator==(const TriedAbilities&) const = default;
    std::size_t hash() const { return hashFields(sparseFiles, cloning); }
};

/// Tries with files of its own in `folder`, an open one, and removes them again. Writes and flushes less than
/// 100 KiB. Threads: any; blocks as long as the file system does. Fails: absent each.
TriedAbilities tryAbilities(int folder);

} // namespace OndelCore::platform
