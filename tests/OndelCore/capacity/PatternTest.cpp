#include "OndelCore/capacity/BlockPattern.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <functional>
#include <set>
#include <string>
#include <vector>

namespace OndelCore::capacity {
namespace {

constexpr auto block = static_cast<std::size_t>(blockBytes);

std::vector<std::byte> contentOf(const BlockPattern& pattern, std::int64_t first, std::size_t blocks) {
    std::vector<std::byte> bytes(blocks * block);
    pattern.fill(bytes, first);
    return bytes;
}

TEST(BlockPattern, isTheSameHoweverItIsCut) {
    const BlockPattern pattern;
    const auto whole = contentOf(pattern, 1000, 64);
    for (std::size_t i = 0; i < 64; ++i) {
        const auto one = contentOf(pattern, 1000 + static_cast<std::int64_t>(i), 1);
        ASSERT_TRUE(
            std::equal(one.begin(), one.end(), whole.begin() + static_cast<std::ptrdiff_t>(i * block)));
    }
    EXPECT_EQ(pattern.countRight(whole, 1000), 64);
    EXPECT_EQ(pattern.countRight(whole, 1001), 0);
    EXPECT_EQ(BlockPattern().countRight(whole, 1000), 0) << "the same for every check";
}

TEST(BlockPattern, repeatsNowhereAndLooksRandom) {
    const BlockPattern pattern;
    std::set<std::uint64_t> words;
    std::array<std::int64_t, 256> counts{};
    constexpr std::array<std::int64_t, 4> places{0, 262144, 1 << 28, std::int64_t{1} << 40};
    for (const std::int64_t place : places)
        for (const std::byte byte : contentOf(pattern, place, 256))
            ++counts.at(static_cast<std::size_t>(byte));
    for (const std::int64_t place : places) {
        const auto bytes = contentOf(pattern, place, 256);
        for (std::size_t at = 0; at < bytes.size(); at += sizeof(std::uint64_t)) {
            std::uint64_t word = 0;
            std::memcpy(&word, bytes.data() + at, sizeof word);
            words.insert(word);
        }
    }
    EXPECT_EQ(words.size(), 4U * 256 * block / sizeof(std::uint64_t));
    // 16384 of each are expected, with a deviation of 128.
    EXPECT_GT(std::ranges::min(counts), 16384 - 1000);
    EXPECT_LT(std::ranges::max(counts), 16384 + 1000);
}

struct Damage {
    const char* name;
    std::function<void(std::vector<std::byte>&, const BlockPattern&)> apply;
    const char* said;
};

void flip(std::vector<std::byte>& bytes, std::size_t at, unsigned bits) {
    bytes[at] ^= static_cast<std::byte>(bits);
}

class Judgement : public testing::TestWithParam<Damage> {};

TEST_P(Judgement, namesTheDamage) {
    const BlockPattern pattern;
    auto bytes = contentOf(pattern, 40, 1);
    GetParam().apply(bytes, pattern);
    ASSERT_EQ(pattern.countRight(bytes, 40), 0);
    const BlockVerdict verdict = pattern.judge(bytes, 40, 100);
    std::string said(rawValue(verdict.kind));
    if (verdict.holds)
        said += ' ' + std::to_string(*verdict.holds);
    if (verdict.flippedBits > 0)
        said += ' ' + std::to_string(verdict.flippedBits);
    EXPECT_EQ(said, GetParam().said);
}

INSTANTIATE_TEST_SUITE_P(
    All, Judgement,
    testing::Values(
        Damage{"oneBit", [](auto& bytes, auto&) { flip(bytes, 4095, 0x80); }, "bitFlips 1"},
        Damage{"bitsInTheFirstWords",
               [](auto& bytes, auto&) {
                   flip(bytes, 0, 0x11);
                   flip(bytes, 512, 1);
               },
               "bitFlips 3"},
        Damage{"zeros", [](auto& bytes, auto&) { std::ranges::fill(bytes, std::byte{0}); }, "zeros"},
        Damage{"oneSectorOfZeros",
               [](auto& bytes, auto&) { std::fill_n(bytes.begin() + 1024, 512, std::byte{0}); }, "zeros"},
        Damage{"anotherBlock", [](auto& bytes, const auto& pattern) { pattern.fill(bytes, 99); },
               "otherBlock 99"},
        Damage{"anotherBlockWithAFlippedBit",
               [](auto& bytes, const auto& pattern) {
                   pattern.fill(bytes, 7);
                   flip(bytes, 4000, 2);
               },
               "otherBlock 7"},
        Damage{"oneSectorOfAnotherBlock",
               [](auto& bytes, const auto& pattern) {
                   const auto other = contentOf(pattern, 3, 1);
                   std::copy_n(other.begin() + 3584, 512, bytes.begin() + 3584);
               },
               "otherBlock 3"},
        Damage{"aBlockBeyondTheCheck", [](auto& bytes, const auto& pattern) { pattern.fill(bytes, 100); },
               "foreign"},
        Damage{"aBlockOfAnotherCheck", [](auto& bytes, auto&) { BlockPattern().fill(bytes, 40); }, "foreign"},
        Damage{"aConstant", [](auto& bytes, auto&) { std::ranges::fill(bytes, std::byte{0xff}); }, "foreign"},
        Damage{"itsNumberBeforeForeignBytes",
               [](auto& bytes, const auto& pattern) {
                   pattern.fill(bytes, 5);
                   for (std::size_t at = 0; at < bytes.size(); ++at)
                       if (at % 512 >= 8)
                           bytes[at] = std::byte{0x5a};
               },
               "foreign"}),
    [](const auto& damage) { return std::string(damage.param.name); });

} // namespace
} // namespace OndelCore::capacity
