#pragma once

#include "OndelCore/capacity/CapacityResult.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace OndelCore::capacity {

/// The unit in which content is made, compared and judged. Units: bytes.
inline constexpr std::int64_t blockBytes = 4096;

/// What one wrong block holds.
struct BlockVerdict {
    DefectKind kind = DefectKind::foreign;
    std::optional<std::int64_t> holds{}; ///< otherBlock: the number of the block that it holds
    std::int64_t flippedBits = 0;        ///< bitFlips
};

/// The content of a check's blocks. It depends on the check's secret and the block's number alone, cannot be
/// compressed, and repeats nowhere.
///
/// Each sector of 512 bytes begins with its own number in the check, encrypted by the secret; what follows is
/// made of that word by a generator that works on eight words at a time. So a sector that was found in a
/// wrong place tells where it belongs, and the rest of it proves that. Threads: any; the object is constant.
class BlockPattern {
public:
    using Secret = std::array<std::uint64_t, 20>;

    /// With a secret from the system's random generator.
    BlockPattern();
    explicit BlockPattern(const Secret& secret);

    /// Writes the content of the blocks from number `first` on; `bytes` is a whole number of blocks.
    void fill(std::span<std::byte> bytes, std::int64_t first) const;

    /// How many blocks at the beginning of `bytes` are right.
    std::int64_t countRight(std::span<const std::byte> bytes, std::int64_t first) const;

    /// Says what a wrong block is. `count`: how many blocks the check has.
    BlockVerdict judge(std::span<const std::byte> block, std::int64_t number, std::int64_t count) const;

private:
    static constexpr std::size_t lanes = 8;
    static constexpr std::size_t sectorBytes = 512;
    static constexpr std::int64_t sectorsPerBlock = blockBytes / static_cast<std::int64_t>(sectorBytes);
    using Lanes [[gnu::vector_size(lanes * sizeof(std::uint64_t))]] = std::uint64_t;
    struct SectorVerdict;

    std::uint64_t encrypted(std::uint64_t sector) const;
    std::uint64_t decrypted(std::uint64_t word) const;
    template <class Taker>
    void makeSector(std::uint64_t sector, Taker take) const;
    std::int64_t differingBits(const std::byte* bytes, std::uint64_t sector) const;
    SectorVerdict judgeSector(const std::byte* bytes, std::uint64_t sector, std::uint64_t count) const;

    Lanes m_low{};
    Lanes m_high{}; ///< its first lane is 0, so that the first word of a sector is the encrypted number
    std::array<std::uint64_t, 4> m_keys{};
};

} // namespace OndelCore::capacity
