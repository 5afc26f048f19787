#pragma once

#include <cstddef>
#include <functional>
#include <optional>

namespace OndelCore::platform {

/// What a file system did when it was tried. Absent: the trial tells nothing.
struct TriedAbilities {
    std::optional<bool> sparseFiles; ///< a hole in a file takes no space
    std::optional<bool> cloning;     ///< a file can share another one's blocks

    bool operator==(const TriedAbilities&) const = default;
    std::size_t hash() const {
        return std::hash<std::optional<bool>>()(sparseFiles) * 31 + std::hash<std::optional<bool>>()(cloning);
    }
};

/// Tries with files of its own in `folder`, an open one, and removes them again. Writes and flushes less than
/// 100 KiB. Threads: any; blocks as long as the file system does. Fails: absent each.
TriedAbilities tryAbilities(int folder);

} // namespace OndelCore::platform
