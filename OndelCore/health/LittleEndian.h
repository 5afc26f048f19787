#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace OndelCore::health {

/// An unsigned little-endian number of `size` bytes in a wire structure. It has no alignment.
template <std::size_t size>
struct LittleEndian {
    static_assert(size <= sizeof(std::uint64_t));
    std::array<std::uint8_t, size> bytes;

    constexpr std::uint64_t value() const {
        std::uint64_t result = 0;
        for (std::size_t index = size; index-- > 0;)
            result = result << 8U | bytes[index];
        return result;
    }
};

} // namespace OndelCore::health
