// SFMT19937 element by element, with 128-bit integers, and its published answers.
#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <utility>

#include "generators/tables/sfmt19937_poly.hpp"
#include "mersenne.hpp"
#include "stream.hpp"
#include "tests/streams/allocator.hpp"

namespace qorl::test {
namespace {

constexpr std::size_t size = 624, degree = 19968;

struct State {
    std::uint32_t sfmt[size], pos, pending[3], pending_read, pending_end;
};

Words32 seeded(const Seed &seed) {
    const Seed key = seed.empty() ? Seed{1} : seed;
    Words32 w(size, 0x8B8B8B8B);
    const auto place = [&w](std::size_t k) -> std::uint32_t & { return w[k % size]; };
    const auto mixed = [](std::uint32_t x) { return x ^ x >> 27; };
    const std::size_t steps = std::max(key.size() + 1, size);
    for (std::size_t step = 0; step < steps; ++step) {  // the first takes the key's length, the next ones its words
        const auto length = static_cast<std::uint32_t>(key.size());
        const std::uint32_t r = 1664525 * mixed(place(step) ^ place(step + 306) ^ place(step + 623));
        const std::uint32_t more =
            r + (step == 0 ? length : static_cast<std::uint32_t>(step % size) + word_of(key, step - 1));
        place(step + 306) += r;
        place(step + 317) += more;
        place(step) = more;
    }
    for (std::size_t step = steps; step < steps + size; ++step) {
        std::uint32_t r = 1566083941 * mixed(place(step) + place(step + 306) + place(step + 623));
        place(step + 306) ^= r;
        r -= static_cast<std::uint32_t>(step % size);
        place(step + 317) ^= r;
        place(step) = r;
    }
    const std::uint32_t certified = (w[0] & 1) ^ (w[3] & 0x13C9E684);
    if (__builtin_popcount(certified) % 2 == 0) w[0] ^= 1;
    return w;
}

// The words behind the seeded ones.
Words32 words(const Seed &seed, std::size_t count) {
    Words32 w = seeded(seed);
    const auto number = [&w](std::size_t k) {
        Count value;
        std::memcpy(&value, &w[k], sizeof value);
        return value;
    };
    while (w.size() < size + count) {
        const std::size_t k = w.size() - size;
        const Count a = number(k) ^ number(k) << 8 ^ number(k + 4 * 154) >> 8;
        constexpr std::uint32_t mask[] = {0xDFFFFFEF, 0xDDFECB7F, 0xBFFAFFFF, 0xBFFFFFF6};
        for (std::size_t i = 0; i < 4; ++i)
            w.push_back(static_cast<std::uint32_t>(a >> 32 * i) ^ (w[k + 4 * 122 + i] >> 11 & mask[i]) ^
                        w[k + 4 * 155 + i] << 18);
    }
    w.erase(w.begin(), w.begin() + size);
    return w;
}

Elements elements(const Seed &seed, Count skip, int count) {
    constexpr std::size_t span = 4096;  // of the words that are computed together far ahead
    const auto begin = static_cast<std::size_t>(skip % span), end = begin + static_cast<std::size_t>(count);
    Words32 w;
    if (skip < span) {
        w = words(seed, end);
    } else {
        static std::map<std::pair<Seed, Count>, Words32> known;
        Words32 &there = known[{seed, skip - begin}];
        const std::size_t rows = end / 4 + 1;
        if (there.size() < end)
            there = far_ahead((skip - begin) / 4, tables::sfmt19937_poly, words(seed, 4 * (degree + rows)), 4, rows);
        w = there;
    }
    Elements result;
    for (std::size_t n = begin; n < end; ++n) result.push_back(element_of(w[n]));
    return result;
}

class SFMT19937 : public Balanced {};

TEST_F(SFMT19937, GivesThePublishedAnswers) {
    const std::uint32_t published[] = {2920711183, 3885745737, 3501893680, 856470934,  1421864068,
                                       277361036,  1518638004, 2328404353, 3355513634, 64329189};
    const Elements drawn = Stream(family_id(row_SFMT19937), {0x1234, 0x5678, 0x9abc, 0xdef0}).integers(10);
    for (std::size_t k = 0; k < 10; ++k) EXPECT_EQ(drawn[k][0], published[k]);
}

TEST_F(SFMT19937, HasExactPositions) {
    expect_exact_positions(sfmt19937(), size);
}

TEST_F(SFMT19937, KeepsTheWordsOfAnElementThatARequestLeaves) {
    const Stream stream(family_id(row_SFMT19937), {1});
    const auto &state = state_of<State>(stream.state);
    stream.integers(3);
    EXPECT_EQ(state.pos, 4u);
    EXPECT_EQ(state.pending_end - state.pending_read, 1u);
    EXPECT_EQ(state.pending[state.pending_read], state.sfmt[3]);
    ASSERT_EQ(__huxSkipAheadStream(stream.state, 620), HuxStatusOk);  // the one that is kept, and all but one behind
    EXPECT_EQ(state.pos, size);
    EXPECT_EQ(state.pending_end - state.pending_read, 1u);
}

TEST_F(SFMT19937, SkipsAsDrawing) {
    expect_skips_as_drawing(sfmt19937(), {0, 1, 2, 3, 5, 311, 623, 624, 625, 1249, 19967, 19968, 2097151, 2097152});
}

TEST_F(SFMT19937, JumpsWithoutMemoryChangeNothing) {
    expect_skip_without_memory_changes_nothing(sfmt19937(), 10000);
    expect_skip_without_memory_changes_nothing(sfmt19937(), std::uint64_t{1} << 40);
}

// A file may bring any places: the block ends at 624, elements begin at multiples of four, three words may wait.
TEST_F(SFMT19937, TakesAnyPlaces) {
    const Stream start(family_id(row_SFMT19937), {1});
    start.integers(100);
    const struct {
        std::uint32_t pos, read, end, same_pos, same_read, same_end;
    } places[] = {
        {625, 0, 0, 624, 0, 0},          {0xFFFFFFFF, 0, 0, 624, 0, 0}, {103, 0, 0, 100, 0, 0},
        {100, 0, 4, 100, 0, 3},          {100, 3, 2, 100, 2, 2},        {100, 0xFFFFFFFF, 0xFFFFFFFE, 100, 3, 3},
        {100, 1, 0x80000000, 100, 1, 3},
    };
    for (const auto &place : places)
        for (const std::uint64_t skip : {0u, 1u, 3u, 600u, 30000u}) {
            Stream hostile, plain;
            __huxCopyStream(&hostile.state, start.state);
            __huxCopyStream(&plain.state, start.state);
            auto &there = state_of<State>(hostile.state), &same = state_of<State>(plain.state);
            there.pos = place.pos, there.pending_read = place.read, there.pending_end = place.end;
            same.pos = place.same_pos, same.pending_read = place.same_read, same.pending_end = place.same_end;
            ASSERT_EQ(__huxSkipAheadStream(hostile.state, skip), HuxStatusOk);
            ASSERT_EQ(__huxSkipAheadStream(plain.state, skip), HuxStatusOk);
            EXPECT_EQ(hostile.integers(700), plain.integers(700)) << place.pos << " " << skip;
        }
}

}  // namespace

Generator sfmt19937() {
    return {
        "SFMT19937",
        {family_id(row_SFMT19937)},
        {{}, {0}, {5}, {5, 0}, key_of(622), key_of(623), key_of(624), key_of(1300), {0x1234, 0x5678, 0x9abc, 0xdef0}},
        elements,
        [](const Element &e, double a, double b) {
            return std::fma(static_cast<double>(static_cast<std::int32_t>(e[0])), (b - a) * 0x1p-32, (a + b) * 0.5);
        },
        [](const Element &e, float a, float b) {
            const double from = a, to = b;
            return std::fma(static_cast<float>(static_cast<std::int32_t>(e[0])),
                            static_cast<float>((to - from) * 0x1p-32), static_cast<float>((from + to) * 0.5));
        },
        false,
        true,
        false};
}

}  // namespace qorl::test
