// WH in closed form: component c is x a^n modulo m, in integers.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <set>

#include "generators/tables/wh.hpp"
#include "stream.hpp"

namespace qorl::test {
namespace {

constexpr int sets = 273;

std::uint64_t power(std::uint64_t a, Count n, std::uint64_t m) {
    std::uint64_t result = 1 % m;
    for (; n != 0; n >>= 1, a = a * a % m)
        if ((n & 1) != 0) result = result * a % m;
    return result;
}

struct Set {
    const std::uint32_t *m;
    const std::uint8_t *a;

    explicit Set(int member) : m(tables::wh_moduli + 4 * member), a(tables::wh_multipliers + 4 * member) {}

    Elements elements(const Seed &seed, Count skip, int count) const {
        Elements result(static_cast<std::size_t>(count));
        for (std::size_t c = 0; c < 4; ++c) {
            std::uint64_t x = word_of(seed, c) % m[c];
            if (x == 0) x = 1;
            x = x * power(a[c], skip, m[c]) % m[c];
            for (Element &element : result) {
                element[c] = static_cast<std::uint32_t>(x);
                x = x * a[c] % m[c];
            }
        }
        return result;
    }
    double real(const Element &e, double a_end, double b_end) const {
        double u = 0;
        for (std::size_t c = 0; c < 4; ++c) u += e[c] * (1.0 / m[c]);
        return std::fma(u - std::trunc(u), b_end - a_end, a_end);
    }
};

Elements drawn(const Seed &seed, std::int32_t words, std::int32_t id) {
    Stream stream;
    EXPECT_EQ(__huxNewStreamEx(&stream.state, id, words, seed.data()), HuxStatusOk);
    return stream.integers(20);
}

TEST(Wh, TakesANegativeCountOfSeedWordsForFour) {
    const Seed seed{11, 22, 33, 44};
    for (const std::int32_t words : {-1, INT32_MIN, 4, 5})
        EXPECT_EQ(drawn({11, 22, 33, 44, 55}, words, 4), Set(0).elements(seed, 0, 20)) << words;
}

TEST(Wh, MembersDiffer) {
    std::set<Elements> sequences;
    for (int member = 0; member < sets; ++member) {
        const Elements elements = drawn({}, 0, family_id(row_WH, member));
        EXPECT_EQ(elements, Set(member).elements({}, 0, 20)) << member;
        sequences.insert(elements);
    }
    EXPECT_EQ(sequences.size(), std::size_t{sets});
}

// All that the sets promise: different primes, and multipliers of the largest order that differ within a set.
TEST(Wh, SetsArePrimesWithPrimitiveRoots) {
    std::set<std::uint32_t> moduli;
    for (int member = 0; member < sets; ++member) {
        const Set set(member);
        EXPECT_EQ((std::set<int>{set.a[0], set.a[1], set.a[2], set.a[3]}).size(), 4u) << member;
        for (int c = 0; c < 4; ++c) {
            const std::uint32_t m = set.m[c];
            EXPECT_TRUE(moduli.insert(m).second) << m << " twice";
            EXPECT_EQ(tables::wh_inverse_moduli[4 * member + c], 1.0 / m);
            EXPECT_TRUE(112 <= set.a[c] && set.a[c] <= 127);
            // If a has the order m - 1, m is a prime (Lucas).
            EXPECT_EQ(power(set.a[c], m - 1, m), 1u) << m;
            std::uint32_t rest = m - 1;
            for (std::uint32_t f = 2; rest > 1; f = f * f > rest ? rest : f + 1) {
                if (rest % f != 0) continue;
                EXPECT_NE(power(set.a[c], (m - 1) / f, m), 1u) << m << ' ' << f;
                while (rest % f == 0) rest /= f;
            }
        }
    }
    EXPECT_EQ(*moduli.rbegin(), 16776971u);
    EXPECT_GE(*moduli.begin(), 16718909u);
}

TEST(Wh, SkipsAfterLeapfrogCountTheStreamsOwnSteps) {
    const Stream stream(4, {5, 6, 7, 8});
    ASSERT_EQ(__huxLeapfrogStream(stream.state, 2, 1000003), HuxStatusOk);
    ASSERT_EQ(__huxSkipAheadStream(stream.state, std::uint64_t{1} << 62), HuxStatusOk);
    const Elements elements = stream.integers(20);
    for (std::size_t k = 0; k < elements.size(); ++k)
        EXPECT_EQ(elements[k], Set(0).elements({5, 6, 7, 8}, 2 + 1000003 * ((Count{1} << 62) + k), 1)[0]);
    ASSERT_EQ(__huxLeapfrogStream(stream.state, 0, 0), HuxStatusOk);
    const Elements constant = stream.integers(9);
    EXPECT_EQ(constant, Elements(9, constant[0]));
}

// A state from outside may hold any words.
TEST(Wh, TakesAStateForItsRemainders) {
    const Stream stream(4, {}), reduced(4, {});
    const std::uint32_t words[8] = {0xFFFFFFFF, 16770643, 0, 5, 0xFFFFFFFF, 16770644, 7, 0};
    std::memcpy(&state_of(stream.state), words, sizeof words);
    for (int k = 0; k < 8; ++k) state_of<std::uint32_t[8]>(reduced.state)[k] = words[k] % Set(0).m[k % 4];
    EXPECT_EQ(stream.integers(20), reduced.integers(20));
    EXPECT_EQ(__huxSkipAheadStream(stream.state, 3), HuxStatusOk);
    EXPECT_EQ(__huxSkipAheadStream(reduced.state, 3), HuxStatusOk);
    EXPECT_EQ(stream.doubles(20, 0, 1), reduced.doubles(20, 0, 1));
}

}  // namespace

Generator wh(const char *name, int member) {
    const Set set(member);
    return {name,
            {family_id(row_WH, member), 4 + member},
            {{}, {1}, {set.m[0], 0}, {0xFFFFFFFF, 0xFFFFFFFF, 9}, {1, 2, 3, set.m[3]}, {9, 8, 7, 6, 5}},
            [set](const Seed &seed, Count skip, int count) { return set.elements(seed, skip, count); },
            [set](const Element &e, double a, double b) { return set.real(e, a, b); },
            [set](const Element &e, float a, float b) { return static_cast<float>(set.real(e, a, b)); },
            true,
            true,
            false};
}

}  // namespace qorl::test
