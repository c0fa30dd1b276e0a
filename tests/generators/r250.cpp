// R250 by its recurrence, on a ring kept as one long row.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>

#include "stream.hpp"

namespace qorl::test {
namespace {

std::vector<std::uint32_t> start(const Seed &seed) {
    if (seed.size() >= 250) return {seed.begin(), seed.begin() + 250};
    std::vector<std::uint32_t> row;
    std::uint32_t power = word_of(seed, 0, 1) == 0 ? 1 : word_of(seed, 0, 1);
    for (std::size_t k = 0; k < 250; ++k) row.push_back(power *= 69069);
    for (std::size_t k = 0; k < 32; ++k) {
        row[3 + 7 * k] &= static_cast<std::uint32_t>((std::uint64_t{1} << (32 - k)) - 1);
        row[3 + 7 * k] |= 1u << (31 - k);
    }
    return row;
}

Elements elements(const Seed &seed, Count skip, int count) {
    std::vector<std::uint32_t> row = start(seed);
    const auto begin = static_cast<std::size_t>(skip), end = begin + static_cast<std::size_t>(count);
    for (std::size_t n = 250; n < 250 + end; ++n) row.push_back(row[n - 250] ^ row[n - 147]);
    Elements result;
    for (std::size_t n = begin; n < end; ++n) result.push_back(element_of(row[250 + n]));
    return result;
}

Seed long_seed(std::size_t words) {
    Seed seed;
    std::uint32_t word = 3;
    for (std::size_t k = 0; k < words; ++k) seed.push_back(word = word * 1664525 + 1013904223);
    return seed;
}

struct State {
    std::uint32_t ring[250], i, j;
};

TEST(R250, KeepsThePlacesOfItsTwoWords) {
    const Stream stream(family_id(row_R250), {1});
    auto &state = state_of<State>(stream.state);
    EXPECT_EQ(state.ring[3] >> 31, 1u);
    EXPECT_EQ(state.ring[10] >> 30, 1u);
    EXPECT_EQ(state.ring[220], 1u);
    EXPECT_EQ(state.j, 103u);
    stream.integers(147);
    EXPECT_EQ(state.i, 147u);
    EXPECT_EQ(state.j, 0u);
}

// A state from outside may hold any places: those within the ring are taken as they are, others are brought there.
TEST(R250, TakesAnyPlacesInTheRing) {
    for (const std::uint32_t i : {0u, 7u, 249u, 250u, 0xFFFFFFFFu})
        for (const std::uint32_t j : {0u, 6u, 8u, 248u, 103u, 0x80000000u}) {
            const Stream stream(family_id(row_R250), {1});
            auto &state = state_of<State>(stream.state);
            State plain = state;
            plain.i = (state.i = i) % 250;
            plain.j = (state.j = j) % 250;
            for (const Element &word : stream.integers(1000)) {
                plain.ring[plain.i] ^= plain.ring[plain.j];
                ASSERT_EQ(word[0], plain.ring[plain.i]) << i << " " << j;
                plain.i = (plain.i + 1) % 250;
                plain.j = (plain.j + 1) % 250;
            }
            EXPECT_EQ(std::memcmp(&state, &plain, sizeof plain), 0);
        }
}

}  // namespace

Generator r250() {
    return {
        "R250",
        {family_id(row_R250), 1},
        {{}, {0}, {1}, {0xDEADBEEF}, long_seed(249), long_seed(250), long_seed(300)},
        elements,
        [](const Element &e, double a, double b) { return std::fma(static_cast<double>(e[0]), (b - a) * 0x1p-32, a); },
        [](const Element &e, float a, float b) {
            const double from = a, to = b;
            return static_cast<float>(std::fma(static_cast<double>(e[0]), (to - from) * 0x1p-32, from));
        },
        false,
        false,
        false};
}

}  // namespace qorl::test
