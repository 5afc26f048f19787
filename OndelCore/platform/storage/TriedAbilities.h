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

} // namespace OndelCore::platform
