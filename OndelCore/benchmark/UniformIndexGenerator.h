#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>

namespace OndelCore::benchmark {

/// Draws uniformly distributed numbers, without modulo bias. The system's generator is asked for 512 draws at
/// a time, so that its call is not what the random tests measure.
class UniformIndexGenerator {
public:
    /// `fillRandom`: the source of random bytes.
    explicit UniformIndexGenerator(std::function<void(void*, std::size_t)> fillRandom);

    /// From 0 to `count` less one. `count` is above 0.
    std::uint64_t below(std::uint64_t count);

private:
    std::uint64_t nextBits();

    std::function<void(void*, std::size_t)> m_fillRandom;
    std::array<std::uint64_t, 512> m_bits{};
    std::size_t m_used = m_bits.size();
};

} // namespace OndelCore::benchmark
