// MT19937 word by word, its published answers, and the standard library's generator on the same words.
#include <gtest/gtest.h>

#include <map>
#include <random>
#include <sstream>
#include <utility>

#include "generators/tables/mt19937_poly.hpp"
#include "mersenne.hpp"
#include "stream.hpp"
#include "tests/streams/allocator.hpp"

namespace qorl::test {
namespace {

constexpr std::size_t size = 624, degree = 19937;

struct State {
    std::uint32_t mt[size], pos, unset;
};

Words32 words(const Seed &seed, std::size_t count) {
    Words32 x = seeded_by_array(size, seed);
    while (x.size() < size + count) extend(x, size, 397, 0x80000000, 0x9908B0DF);
    x.erase(x.begin(), x.begin() + size);
    return x;
}

std::uint32_t tempered(std::uint32_t y) {
    y ^= y >> 11;
    y ^= y << 7 & 0x9D2C5680;
    y ^= y << 15 & 0xEFC60000;
    return y ^ y >> 18;
}

Elements elements(const Seed &seed, Count skip, int count) {
    constexpr std::size_t span = 4096;  // of the words that are computed together far ahead
    const auto begin = static_cast<std::size_t>(skip % span), end = begin + static_cast<std::size_t>(count);
    Words32 x;
    if (skip < span) {
        x = words(seed, end);
    } else {
        static std::map<std::pair<Seed, Count>, Words32> known;
        Words32 &there = known[{seed, skip - begin}];
        if (there.size() < end)
            there = far_ahead(skip - begin, tables::mt19937_poly, words(seed, degree + end), 1, end);
        x = there;
    }
    Elements result;
    for (std::size_t n = begin; n < end; ++n) result.push_back(element_of(tempered(x[n])));
    return result;
}

class MT19937 : public Balanced {};

TEST_F(MT19937, GivesThePublishedAnswers) {
    const std::uint32_t published[] = {1067595299, 955945823,  477289528, 4107218783, 4228976476,
                                       3344332714, 3355579695, 227628506, 810200273,  2591290167};
    const Elements drawn = Stream(family_id(row_MT19937), {0x123, 0x234, 0x345, 0x456}).integers(10);
    for (std::size_t k = 0; k < 10; ++k) EXPECT_EQ(drawn[k][0], published[k]);
}

TEST_F(MT19937, AgreesWithTheStandardLibrary) {
    const Stream stream(family_id(row_MT19937), {2, 71, 828});
    std::stringstream text;
    for (const std::uint32_t word : state_of<State>(stream.state).mt) text << word << ' ';
    text << size;
    std::mt19937 generator;
    text >> generator;
    for (int part = 0; part < 100; ++part) {
        const Elements drawn = stream.integers(100000);
        for (const Element &e : drawn) ASSERT_EQ(e[0], generator()) << part;
    }
}

TEST_F(MT19937, HasExactPositions) {
    expect_exact_positions(mt19937(), size);
}

// The key's length enters with the last word, unless all behind the first sums up to the same: 1 + 0 = 0 + 1.
TEST_F(MT19937, SeedsDifferByTheirLength) {
    const auto first = [](const Seed &seed) { return Stream(family_id(row_MT19937), seed).integers(1); };
    EXPECT_NE(first({5}), first({5, 0}));
    EXPECT_EQ(first({1}), first({1, 0}));
}

TEST_F(MT19937, SkipsAsDrawing) {
    expect_skips_as_drawing(mt19937(), {0, 1, 2, 311, 623, 624, 625, 1247, 1248, 1249, 19967, 19968, 2097151});
}

// The first word of a block keeps bits that no later one depends on; a jump does not compute them.
TEST_F(MT19937, JumpsAsDrawing) {
    for (const int before : {0, 1, 300, 623, 624, 625}) {
        const Stream jumping(family_id(row_MT19937), {9, 8}), drawing(family_id(row_MT19937), {9, 8});
        jumping.integers(before);
        drawing.integers(before + 2097152);
        ASSERT_EQ(__huxSkipAheadStream(jumping.state, 2097152), HuxStatusOk);
        EXPECT_EQ(state_of<State>(jumping.state).pos, size);
        EXPECT_EQ(jumping.integers(1301), drawing.integers(1301));
        EXPECT_EQ(__huxSkipAheadStream(jumping.state, 100), HuxStatusOk);
        EXPECT_EQ(__huxSkipAheadStream(drawing.state, 100), HuxStatusOk);
        EXPECT_EQ(jumping.integers(1301), drawing.integers(1301));
    }
}

TEST_F(MT19937, ASkipToTheEndOfTheBlockComputesNothing) {
    const Stream stream(family_id(row_MT19937), {1});
    stream.integers(7);
    const State before = state_of<State>(stream.state);
    ASSERT_EQ(__huxSkipAheadStream(stream.state, size - 7), HuxStatusOk);
    EXPECT_EQ(state_of<State>(stream.state).pos, size);
    EXPECT_TRUE(std::equal(before.mt, before.mt + size, state_of<State>(stream.state).mt));
}

TEST_F(MT19937, AJumpWithoutMemoryChangesNothing) {
    expect_skip_without_memory_changes_nothing(mt19937(), std::uint64_t{1} << 40);
}

// A position behind the block, as a file may bring it, is that of a block used up.
TEST_F(MT19937, TakesAnyPosition) {
    for (const std::uint32_t pos : {625u, 0x80000000u, 0xFFFFFFFFu})
        for (const std::uint64_t skip : {0u, 1u, 700u, 3000000u}) {
            const Stream stream(family_id(row_MT19937), {1}), plain(family_id(row_MT19937), {1});
            state_of<State>(stream.state).pos = pos;
            ASSERT_EQ(__huxSkipAheadStream(stream.state, skip), HuxStatusOk);
            ASSERT_EQ(__huxSkipAheadStream(plain.state, skip), HuxStatusOk);
            EXPECT_EQ(stream.integers(700), plain.integers(700)) << pos << " " << skip;
        }
}

}  // namespace

Generator mt19937() {
    return {"MT19937",
            {family_id(row_MT19937)},
            {{}, {0}, {5}, {5, 0}, key_of(623), key_of(624), key_of(700), {0x123, 0x234, 0x345, 0x456}},
            elements,
            unsigned_real_d,
            unsigned_real_s,
            false,
            true,
            false};
}

}  // namespace qorl::test
