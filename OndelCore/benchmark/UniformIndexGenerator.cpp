#include "OndelCore/benchmark/UniformIndexGenerator.h"

#include <array>

namespace OndelCore::benchmark {

UniformIndexGenerator::UniformIndexGenerator(const std::function<void(void*, std::size_t)>& fillRandom) {
    std::array<std::uint32_t, 16> seed{};
    fillRandom(seed.data(), sizeof seed);
    std::seed_seq sequence(seed.begin(), seed.end());
    m_bits.seed(sequence);
}

} // namespace OndelCore::benchmark
