#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>

namespace TarnwickKit::model {

/// A count for a translation, which chooses its plural by it.
inline int plural(std::int64_t count) {
    return static_cast<int>(std::clamp<std::int64_t>(count, 0, std::numeric_limits<int>::max()));
}

} // namespace TarnwickKit::model
