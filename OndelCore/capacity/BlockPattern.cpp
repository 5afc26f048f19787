#include "OndelCore/capacity/BlockPattern.h"

#include "OndelCore/platform/process/SystemCalls.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace OndelCore::capacity {

namespace {

BlockPattern::Secret randomSecret() {
    BlockPattern::Secret secret;
    platform::fillRandom(secret.data(), sizeof secret);
    return secret;
}

/// The inverse of an odd number modulo 2^64, by Newton's method: each step doubles the right bits.
constexpr std::uint64_t inverseOf(std::uint64_t odd) {
    std::uint64_t inverse = odd;
    for (int i = 0; i < 5; ++i)
        inverse *= 2 - odd * inverse;
    return inverse;
}

} // namespace

struct BlockPattern::SectorVerdict {
    enum class State { right, zeros, flipped, other, foreign };
    State state = State::foreign;
    std::uint64_t other = 0;
    std::int64_t flippedBits = 0;
};

BlockPattern::BlockPattern()
    : BlockPattern(randomSecret()) {}

BlockPattern::BlockPattern(const Secret& secret) {
    std::memcpy(&m_low, secret.data(), sizeof m_low);
    std::memcpy(&m_high, secret.data() + lanes, sizeof m_high);
    m_high[0] = 0;
    std::copy_n(secret.begin() + 2 * lanes, m_keys.size(), m_keys.begin());
    m_keys[1] |= 1U; // only odd factors can be undone
    m_keys[2] |= 1U;
}

std::uint64_t BlockPattern::encrypted(std::uint64_t sector) const {
    std::uint64_t word = (sector ^ m_keys[0]) * m_keys[1];
    word ^= word >> 32U;
    word *= m_keys[2];
    word ^= word >> 32U;
    return word ^ m_keys[3];
}

std::uint64_t BlockPattern::decrypted(std::uint64_t word) const {
    word ^= m_keys[3];
    word ^= word >> 32U;
    word *= inverseOf(m_keys[2]);
    word ^= word >> 32U;
    return (word * inverseOf(m_keys[1])) ^ m_keys[0];
}

/// Makes a sector eight words at a time; `take` gets their position in bytes and the words. The steps are
/// those of xorshift128+ (S. Vigna, 2014), one generator in each lane.
template <class Taker>
[[gnu::always_inline]] inline void BlockPattern::makeSector(std::uint64_t sector, Taker take) const {
    const std::uint64_t word = encrypted(sector);
    Lanes older = m_low + std::rotl(word, 32);
    Lanes newer = m_high ^ word;
    take(0, newer);
    for (std::size_t at = sizeof(Lanes); at < sectorBytes; at += sizeof(Lanes)) {
        const Lanes kept = newer;
        older ^= older << 23U;
        newer = older ^ kept ^ (older >> 18U) ^ (kept >> 5U);
        older = kept;
        const Lanes sum = newer + kept;
        take(at, sum);
    }
}

void BlockPattern::fill(std::span<std::byte> bytes, std::int64_t first) const {
    auto sector = static_cast<std::uint64_t>(first * sectorsPerBlock);
    std::byte* const end = bytes.data() + bytes.size();
    for (std::byte* to = bytes.data(); to != end; to += sectorBytes, ++sector)
        makeSector(sector,
                   [to](std::size_t at, const Lanes& words) { std::memcpy(to + at, &words, sizeof words); });
}

std::int64_t BlockPattern::countRight(std::span<const std::byte> bytes, std::int64_t first) const {
    auto sector = static_cast<std::uint64_t>(first * sectorsPerBlock);
    const std::byte* from = bytes.data();
    const auto count = static_cast<std::int64_t>(bytes.size()) / blockBytes;
    for (std::int64_t block = 0; block < count; ++block) {
        Lanes differences{};
        for (std::int64_t i = 0; i < sectorsPerBlock; ++i, ++sector, from += sectorBytes)
            makeSector(sector, [from, &differences](std::size_t at, const Lanes& words) {
                Lanes found;
                std::memcpy(&found, from + at, sizeof found);
                differences |= found ^ words;
            });
        std::uint64_t any = 0;
        for (std::size_t lane = 0; lane < lanes; ++lane)
            any |= differences[lane];
        if (any != 0)
            return block;
    }
    return count;
}

std::int64_t BlockPattern::differingBits(const std::byte* bytes, std::uint64_t sector) const {
    std::int64_t bits = 0;
    makeSector(sector, [bytes, &bits](std::size_t at, const Lanes& words) {
        Lanes found;
        std::memcpy(&found, bytes + at, sizeof found);
        const Lanes differences = found ^ words;
        for (std::size_t lane = 0; lane < lanes; ++lane)
            bits += std::popcount(differences[lane]);
    });
    return bits;
}

/// Contents that have nothing to do with one another differ in half of their 4096 bits, give or take 200 at
/// the very most.
BlockPattern::SectorVerdict BlockPattern::judgeSector(const std::byte* bytes, std::uint64_t sector,
                                                      std::uint64_t count) const {
    constexpr std::int64_t related = 1024;
    using State = SectorVerdict::State;
    const std::int64_t bits = differingBits(bytes, sector);
    if (bits == 0)
        return {State::right};
    if (std::all_of(bytes, bytes + sectorBytes, [](std::byte byte) { return byte == std::byte{0}; }))
        return {State::zeros};
    if (bits < related)
        return {State::flipped, 0, bits};
    std::uint64_t word = 0;
    std::memcpy(&word, bytes, sizeof word);
    const std::uint64_t other = decrypted(word);
    if (other < count && differingBits(bytes, other) < related)
        return {State::other, other};
    return {State::foreign};
}

BlockVerdict BlockPattern::judge(std::span<const std::byte> block, std::int64_t number,
                                 std::int64_t count) const {
    using State = SectorVerdict::State;
    State worst = State::right;
    BlockVerdict verdict;
    for (std::int64_t i = 0; i < sectorsPerBlock; ++i) {
        const SectorVerdict sector = judgeSector(block.data() + static_cast<std::size_t>(i) * sectorBytes,
                                                 static_cast<std::uint64_t>(number * sectorsPerBlock + i),
                                                 static_cast<std::uint64_t>(count * sectorsPerBlock));
        verdict.flippedBits += sector.flippedBits;
        if (sector.state == State::other && !verdict.holds)
            verdict.holds = static_cast<std::int64_t>(sector.other) / sectorsPerBlock;
        worst = std::max(worst, sector.state);
    }
    if (verdict.holds)
        verdict.kind = DefectKind::otherBlock;
    else if (worst == State::foreign)
        verdict.kind = DefectKind::foreign;
    else
        verdict.kind =
            verdict.flippedBits > 0 && worst == State::flipped ? DefectKind::bitFlips : DefectKind::zeros;
    if (verdict.kind != DefectKind::bitFlips)
        verdict.flippedBits = 0;
    return verdict;
}

} // namespace OndelCore::capacity
