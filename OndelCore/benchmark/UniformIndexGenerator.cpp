#include "OndelCore/benchmark/UniformIndexGenerator.h"

namespace OndelCore::benchmark {

namespace {

std::uint64_t startFrom(const std::function<void(void*, std::size_t)>& fillRandom) {
    std::uint64_t start = 0;
    fillRandom(&start, sizeof start);
    return start;
}

} // namespace

UniformIndexGenerator::UniformIndexGenerator(const std::function<void(void*, std::size_t)>& fillRandom)
    : m_bits(startFrom(fillRandom)) {}

} // namespace OndelCore::benchmark
