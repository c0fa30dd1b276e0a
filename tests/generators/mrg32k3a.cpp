// MRG32K3A by its two recurrences in 128 bits; jumps by powers of t modulo their characteristic polynomials.
#include <gtest/gtest.h>

#include <cmath>
#include <iterator>

#include "stream.hpp"
#include "tests/streams/allocator.hpp"

namespace qorl::test {
namespace {

using Triple = std::array<std::uint64_t, 3>;  // of numbers, the oldest first; of a polynomial, the constant first

using Words = std::vector<std::uint64_t>;

struct Recurrence {
    std::uint64_t m;
    Triple c;  // of the oldest number, the middle one and the newest

    std::uint64_t next(const Triple &v) const {
        Count sum = 0;
        for (std::size_t k = 0; k < 3; ++k) sum += static_cast<Count>(c[k]) * v[k];
        return static_cast<std::uint64_t>(sum % m);
    }
    Triple stepped(const Triple &v) const { return {v[1], v[2], next(v)}; }

    // p t and p q modulo t^3 = c[2] t^2 + c[1] t + c[0].
    Triple times_t(const Triple &p) const {
        Triple r;
        for (std::size_t k = 0; k < 3; ++k)
            r[k] = static_cast<std::uint64_t>((static_cast<Count>(p[2]) * c[k] + (k > 0 ? p[k - 1] : 0)) % m);
        return r;
    }
    Triple product(Triple p, const Triple &q) const {
        Triple r{};
        for (std::size_t k = 0; k < 3; ++k, p = times_t(p))
            for (std::size_t j = 0; j < 3; ++j)
                r[j] = static_cast<std::uint64_t>((r[j] + static_cast<Count>(q[k]) * p[j]) % m);
        return r;
    }
    Triple jumped(Triple v, const Words &n) const {
        Triple power{1}, square{0, 1};
        for (const std::uint64_t word : n)
            for (int bit = 0; bit < 64; ++bit, square = product(square, square))
                if ((word >> bit & 1) != 0) power = product(power, square);
        Triple result;
        for (std::uint64_t &number : result) {
            Count sum = 0;
            for (std::size_t k = 0; k < 3; ++k) sum += static_cast<Count>(power[k]) * v[k];
            number = static_cast<std::uint64_t>(sum % m);
            v = stepped(v);
        }
        return result;
    }
    // The number ahead of three, by division.
    std::uint64_t previous(const Triple &v) const {
        const std::uint64_t without = next({0, v[0], v[1]});
        Count inverse = 1, square = c[0];
        for (std::uint64_t n = m - 2; n != 0; n >>= 1, square = square * square % m)
            if ((n & 1) != 0) inverse = inverse * square % m;
        return static_cast<std::uint64_t>((m + v[2] - without) * inverse % m);
    }
};

constexpr Recurrence x_recurrence{4294967087, {4294967087 - 810728, 1403580, 0}};
constexpr Recurrence y_recurrence{4294944443, {4294944443 - 1370589, 0, 527612}};

Triple start(const Seed &seed, std::size_t from, std::uint64_t m) {
    Triple v;
    for (std::size_t k = 0; k < 3; ++k) v[k] = word_of(seed, from + k, 1) % m;
    if (v == Triple{}) v[0] = 1;
    return v;
}

Elements elements_at(const Seed &seed, const Words &skip, int count) {
    Triple x = x_recurrence.jumped(start(seed, 0, x_recurrence.m), skip);
    Triple y = y_recurrence.jumped(start(seed, 3, y_recurrence.m), skip);
    Elements result;
    for (int k = 0; k < count; ++k) {
        x = x_recurrence.stepped(x);
        y = y_recurrence.stepped(y);
        result.push_back(element_of(x[2] > y[2] ? x[2] - y[2] : x[2] + x_recurrence.m - y[2]));
    }
    return result;
}

Elements elements(const Seed &seed, Count skip, int count) {
    return elements_at(seed, {static_cast<std::uint64_t>(skip), static_cast<std::uint64_t>(skip >> 64)}, count);
}

// The program of the paper, in floating point: it divides by m1 + 1.
TEST(Mrg32k3a, IsThePublishedProgram) {
    double s10 = 12345, s11 = 12345, s12 = 12345, s20 = 12345, s21 = 12345, s22 = 12345;
    constexpr double m1 = 4294967087, m2 = 4294944443;
    const auto modulo = [](double p, double m) {
        p -= std::trunc(p / m) * m;
        return p < 0 ? p + m : p;
    };
    const Stream stream(family_id(row_MRG32K3A), Seed(6, 12345));
    const Elements drawn = stream.integers(10000);
    constexpr double published[] = {0.12701112204657714, 0.3185275653967945, 0.3091860155832701, 0.8258468629271136,
                                    0.2216299157820229};
    for (std::size_t k = 0; k < drawn.size(); ++k) {
        const double p1 = modulo(1403580.0 * s11 - 810728.0 * s10, m1);
        s10 = s11, s11 = s12, s12 = p1;
        const double p2 = modulo(527612.0 * s22 - 1370589.0 * s20, m2);
        s20 = s21, s21 = s22, s22 = p2;
        const double z = p1 <= p2 ? p1 - p2 + m1 : p1 - p2;
        ASSERT_EQ(drawn[k][0], z) << k;
        if (k >= std::size(published)) continue;
        EXPECT_DOUBLE_EQ(z / (m1 + 1), published[k]) << k;
    }
}

// A tie gives m1, in plain steps and wherever in a pass it falls. The seed is found by going back from it.
TEST(Mrg32k3a, GivesTheModulusForATie) {
    for (int before = 0; before < 60; ++before) {
        Triple x{0, 0, 4294967086}, y{0, 777, 0};  // 0 comes next in both
        for (int k = 0; k < before; ++k) {
            x = {x_recurrence.previous(x), x[0], x[1]};
            y = {y_recurrence.previous(y), y[0], y[1]};
        }
        Seed seed;
        for (const Triple &v : {x, y})
            for (const std::uint64_t word : v) seed.push_back(static_cast<std::uint32_t>(word));
        const Stream stream(family_id(row_MRG32K3A), seed);
        ASSERT_EQ(stream.integers(before + 1).back()[0], 4294967087u) << before;
        const Stream real(family_id(row_MRG32K3A), seed);
        ASSERT_EQ(real.doubles(before + 1, 0, 1).back(), 1.0) << "the end of the interval";
    }
}

constexpr std::uint64_t ones = UINT64_MAX;

// Up to three words that count are one way, more another.
TEST(Mrg32k3a, SkipsByCountsOfAnyLength) {
    const Seed seed{1, 2, 3, 4, 5, 6};
    for (const Words &count : {Words{0, 0, 7},
                               {1, 2, 3},
                               {ones, ones, ones},
                               {9, 8, 7, 0},
                               {9, 8, ones, 0, 0},
                               {1, 0, 0, 1},
                               {0, 0, 0, 0, 3},
                               {ones, ones, ones, ones, ones},
                               {5, 6, 7, std::uint64_t{1} << 63},
                               {0, 0, 0, 0, 0}}) {
        const Stream stream(family_id(row_MRG32K3A), seed);
        EXPECT_EQ(__huxSkipAheadStreamEx(stream.state, static_cast<std::int32_t>(count.size()), count.data()),
                  HuxStatusOk);
        EXPECT_EQ(stream.integers(5), elements_at(seed, count, 5)) << count.size() << " words";
    }
    const Stream stream(family_id(row_MRG32K3A), seed);
    EXPECT_EQ(__huxSkipAheadStreamEx(stream.state, -1, nullptr), HuxStatusOk);
    EXPECT_EQ(stream.integers(5), elements(seed, 0, 5));
}

TEST(Mrg32k3a, StaysWhenALongSkipHasNoMemory) {
    const Stream stream(family_id(row_MRG32K3A), {});
    const Words long_count{1, 2, 3, 4}, short_count{1, 2, 3, 0};
    const auto before = stream.image();
    for (const long n : {1, 2}) {
        fail_allocation(n);
        EXPECT_EQ(__huxSkipAheadStreamEx(stream.state, 4, long_count.data()), HuxStatusOutOfMemory);
        EXPECT_TRUE(allocation_failed());
        EXPECT_EQ(stream.image(), before);
    }
    fail_allocation(1);
    EXPECT_EQ(__huxSkipAheadStreamEx(stream.state, 4, short_count.data()), HuxStatusOk) << "by the tables";
    fail_allocation(0);
}

}  // namespace

Generator mrg32k3a() {
    return {"MRG32K3A",
            {family_id(row_MRG32K3A), 2},
            {{},
             {0, 0, 0, 0, 0, 0},
             {4294967087, 4294967088, 0xFFFFFFFF, 4294944443, 4294944444, 0xFFFFFFFF},
             {0, 0},
             {1, 2, 3, 4},
             {12345, 12345, 12345, 12345, 12345, 12345, 999}},
            elements,
            [](const Element &e, double a, double b) { return std::fma(e[0], (b - a) * (1.0 / 4294967087), a); },
            [](const Element &e, float a, float b) {
                const double from = a, to = b;
                return std::fma(static_cast<float>(e[0]), static_cast<float>((to - from) * (1.0 / 4294967087)), a);
            },
            false,
            true,
            true};
}

}  // namespace qorl::test
