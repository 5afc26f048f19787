#include "OndelCore/benchmark/UniformIndexGenerator.h"

#include <utility>

namespace OndelCore::benchmark {

UniformIndexGenerator::UniformIndexGenerator(std::function<void(void*, std::size_t)> fillRandom)
    : m_fillRandom(std::move(fillRandom)) {}

std::uint64_t UniformIndexGenerator::nextBits() {
    if (m_used == m_bits.size()) {
        m_fillRandom(m_bits.data(), sizeof m_bits);
        m_used = 0;
    }
    return m_bits[m_used++];
}

// Multiply and reject: D. Lemire, "Fast Random Integer Generation in an Interval", 2019. The high half of the
// product is the answer; the low half tells the few draws that would favour some answers.
std::uint64_t UniformIndexGenerator::below(std::uint64_t count) {
    __extension__ using Product = unsigned __int128;
    Product product = Product{nextBits()} * count;
    if (static_cast<std::uint64_t>(product) < count) {
        const std::uint64_t threshold = -count % count; // 2^64 modulo count
        while (static_cast<std::uint64_t>(product) < threshold)
            product = Product{nextBits()} * count;
    }
    return static_cast<std::uint64_t>(product >> 64);
}

} // namespace OndelCore::benchmark
