#pragma once

#include "OndelCore/Export.h"

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <optional>

namespace OndelCore::capacity {

/// What a check is asked to do. Units: bytes.
struct ONDEL_PUBLIC CapacityPlan {
    static constexpr std::int64_t defaultLeaveFree = std::int64_t{64} * 1048576;

    /// A folder on the volume. The check makes a hidden folder inside of it, and nothing elsewhere.
    std::filesystem::path folder{};
    /// How much to write, rounded up to whole blocks of 4096. Absent: all free space less `leaveFree`.
    std::optional<std::int64_t> size{};
    /// Kept free on the volume, whatever `size` is. A volume that holds the running system needs more than
    /// the default; a stick needs none, and every byte left free is one that is not checked.
    std::int64_t leaveFree = defaultLeaveFree;
    /// Writes and reads samples across the range instead of all of it: seconds instead of hours. It finds a
    /// false capacity where the file system lets samples be spread (see CapacityResult::quick), and proves
    /// nothing when it finds none.
    bool isQuick = false;
    /// Reads everything a second time after this pause, for media that lose their content soon.
    std::optional<std::chrono::seconds> again{};

    bool operator==(const CapacityPlan&) const = default;
};

} // namespace OndelCore::capacity
