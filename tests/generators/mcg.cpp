// MCG31M1 and MCG59 in closed form: value n is a^n x modulo m, by 128-bit products and division.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>

#include "generators/mcg_lanes.hpp"
#include "stream.hpp"

namespace qorl::test {
namespace {

constexpr std::uint64_t m31 = 2147483647, m59 = std::uint64_t{1} << 59;

Elements values(std::uint64_t x, std::uint64_t a, std::uint64_t m, Count skip, int count) {
    Count value = x, square = a;
    for (; skip != 0; skip >>= 1, square = square * square % m)
        if ((skip & 1) != 0) value = value * square % m;
    Elements result;
    for (int k = 0; k < count; ++k, value = value * a % m)
        result.push_back(element_of(static_cast<std::uint64_t>(value)));
    return result;
}

std::uint64_t first(std::uint64_t seed, std::uint64_t m) {
    return seed % m == 0 ? 1 : seed % m;
}

std::uint64_t seed_59(const Seed &seed) {
    return seed.empty() ? 1 : word_of(seed, 0) | static_cast<std::uint64_t>(word_of(seed, 1)) << 32;
}

double to_double(const Element &e) {
    return static_cast<double>(static_cast<std::uint64_t>(e[1]) << 32 | e[0]);
}

// The numbers of leapfrog k of n are every n-th; lanes and skips go on from there in steps of n.
TEST(Mcg, SkipsAfterLeapfrogCountTheStreamsOwnSteps) {
    for (const Generator &generator : {mcg31m1(), mcg59()}) {
        const Stream stream(generator.ids[0], {12345});
        stream.doubles(3, 0, 1);
        ASSERT_EQ(__huxLeapfrogStream(stream.state, 2, 5), HuxStatusOk);
        ASSERT_EQ(__huxSkipAheadStream(stream.state, std::uint64_t{1} << 50), HuxStatusOk);
        const auto numbers = stream.doubles(40, 0, 1);
        for (int k = 0; k < 40; ++k) {
            const Count at = 5 + 5 * ((Count{1} << 50) + static_cast<Count>(k));
            EXPECT_EQ(numbers[static_cast<std::size_t>(k)],
                      generator.real_d(generator.elements({12345}, at, 1)[0], 0, 1));
        }
        ASSERT_EQ(__huxLeapfrogStream(stream.state, 0, 0), HuxStatusOk);
        const auto constant = stream.doubles(3, 0, 1);
        EXPECT_EQ(constant[0], constant[2]);
    }
}

// i moves x alone; d and s go on from the lanes and put the next of them into x.
TEST(Mcg, IntegersHaveAPositionOfTheirOwn) {
    for (const Generator &generator : {mcg31m1(), mcg59()}) {
        const Seed seed = {98765};
        const auto real = [&](Count at) { return generator.real_d(generator.elements(seed, at, 1)[0], 0, 1); };
        const Stream stream(generator.ids[0], seed);
        EXPECT_EQ(stream.integers(70), generator.elements(seed, 0, 70));
        EXPECT_EQ(stream.doubles(1, 0, 1)[0], real(0)) << generator.name;
        EXPECT_EQ(stream.integers(3), generator.elements(seed, 1, 3)) << "from where d stopped";
        EXPECT_EQ(stream.doubles(50, 0, 1)[49], real(50));
        EXPECT_EQ(stream.integers(1), generator.elements(seed, 51, 1));
        EXPECT_EQ(__huxSkipAheadStream(stream.state, 0), HuxStatusOk);
        EXPECT_EQ(stream.doubles(1, 0, 1)[0], real(52)) << "moving joins the two";
    }
}

TEST(Mcg, NumbersNeedTheLanesInTheirSize) {
    for (const Generator &generator : {mcg31m1(), mcg59()}) {
        const Stream stream(generator.ids[0], {5});
        const auto *const record = static_cast<const McgLanes *>(__huxSearchChunk(stream.state, 14));
        ASSERT_NE(record, nullptr);
        for (const std::uint8_t byte : record->unset_end) EXPECT_EQ(byte, 0);
        const auto fails = [&] {
            const Elements before = generator.elements({5}, 0, 3);
            double r;
            EXPECT_EQ(stream.row().d(stream.state, 1, &r, 0, 1), HuxStatusOutOfMemory);
            EXPECT_EQ(stream.row().s(stream.state, 1, reinterpret_cast<float *>(&r), 0, 1), HuxStatusOutOfMemory);
            EXPECT_EQ(__huxSkipAheadStream(stream.state, 5), HuxStatusOutOfMemory);
            EXPECT_EQ(__huxLeapfrogStream(stream.state, 1, 2), HuxStatusOutOfMemory);
            EXPECT_EQ(stream.row().d(stream.state, 0, &r, 0, 1), HuxStatusOk);
        };
        __huxDeleteChunksById(stream.state, 14);
        fails();
        void *const small = qorl_serv_allocate(320, 128);
        ASSERT_NE(small, nullptr);
        std::memset(small, 0, 320);
        ASSERT_EQ(__huxAddChunk(stream.state, 14, nullptr, small, 320), HuxStatusOk);
        fails();
        EXPECT_EQ(stream.integers(40), generator.elements({5}, 0, 40)) << "which integers do not need, nor were moved";
    }
}

}  // namespace

Generator mcg31m1() {
    return {"MCG31M1",
            {family_id(row_MCG31M1), 0},
            {{}, {1}, {0}, {2147483647}, {2147483648}, {2147483646}, {0xFFFFFFFF}, {123456789, 5}},
            [](const Seed &seed, Count skip, int count) {
                return values(first(word_of(seed, 0, 1), m31), 1132489760, m31, skip, count);
            },
            [](const Element &e, double a, double b) { return std::fma(to_double(e), (b - a) * (1.0 / m31), a); },
            [](const Element &e, float a, float b) {
                return std::fma(static_cast<float>(to_double(e)), (b - a) * 0x1p-31f, a);
            },
            true,
            true,
            false,
            true};
}

Generator mcg59() {
    return {"MCG59",
            {family_id(row_MCG59), 3},
            {{}, {1}, {0}, {0, 2147483648}, {0xFFFFFFFF, 0xFFFFFFFF}, {7, 1, 9}, {0xFFFFFFFF}},
            [](const Seed &seed, Count skip, int count) {
                return values(first(seed_59(seed), m59), 302875106592253, m59, skip, count);
            },
            [](const Element &e, double a, double b) { return std::fma(to_double(e), (b - a) * 0x1p-59, a); },
            [](const Element &e, float a, float b) {
                return std::fma(static_cast<float>(to_double(e)), (b - a) * 0x1p-59f, a);
            },
            true,
            true,
            false,
            true};
}

}  // namespace qorl::test
