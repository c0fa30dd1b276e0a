// x^n mod p against arithmetic on single bits. Every comparison is made with both kinds of products.
#include "streams/gf2.hpp"

#include <gtest/gtest.h>

#include <bitset>
#include <random>
#include <vector>

#include "allocator.hpp"
#include "qorl/core.h"
#include "qorl/hux.h"

namespace qorl::test {
namespace {

using Bits = std::bitset<20032>;

struct Polynomial {
    std::uint32_t degree;
    std::vector<std::uint32_t> exponents;

    Bits bits() const {  // without the leading term
        Bits p;
        for (const std::uint32_t e : exponents) p.flip(e);
        return p.reset(degree);
    }
};

Polynomial random_polynomial(std::mt19937_64 &random, std::uint32_t degree, std::uint32_t chance_percent) {
    Polynomial p{degree, {degree}};
    for (std::uint32_t e = 0; e < degree; ++e)
        if (random() % 100 < chance_percent) p.exponents.push_back(e);
    return p;
}

// Arithmetic modulo p, by moving single places.
struct Field {
    std::uint32_t degree;
    Bits p;

    explicit Field(const Polynomial &polynomial) : degree(polynomial.degree), p(polynomial.bits()) {}

    void times_x(Bits &value) const {
        const bool carry = value[degree - 1];
        value.reset(degree - 1);
        value <<= 1;
        if (carry) value ^= p;
    }
    Bits square(const Bits &value) const {
        Bits result;
        for (std::uint32_t i = degree; i-- > 0;) {  // Horner's rule in x^2
            times_x(result);
            times_x(result);
            result[0] = result[0] ^ value[i];
        }
        return result;
    }
    Bits power(std::uint64_t n) const {
        Bits value(1);
        for (int bit = 63; bit >= 0; --bit) {
            value = square(value);
            if ((n >> bit & 1) != 0) times_x(value);
        }
        return value;
    }
};

void expect_power(std::uint64_t n, const Polynomial &p, const Bits &expected) {
    // Words behind the degree are to be zero, further memory is not to be touched.
    const auto words = static_cast<std::int32_t>(p.degree / 32 + 3);
    for (const Carryless kind : {Carryless::portable, Carryless::hardware}) {
        if (kind == Carryless::hardware && qorl_serv_processor_has(QORL_PROCESSOR_CLMUL) == 0) continue;
        std::vector<std::uint32_t> out(static_cast<std::size_t>(words) + 1, 0xA5A5A5A5);
        ASSERT_EQ(power_of_x(kind, n, p.degree, static_cast<std::int32_t>(p.exponents.size()), p.exponents.data(),
                             words, out.data()),
                  HuxStatusOk);
        ASSERT_EQ(out.back(), 0xA5A5A5A5);
        for (std::size_t i = 0; i < 32 * static_cast<std::size_t>(words); ++i) {
            const bool bit = i < p.degree && expected[i];
            ASSERT_EQ(out[i / 32] >> i % 32 & 1, static_cast<std::uint32_t>(bit))
                << "x^" << n << ", degree " << p.degree << ", bit " << i << ", kind " << static_cast<int>(kind);
        }
    }
}

class PolyRem : public Balanced {};

TEST_F(PolyRem, IsRepeatedShiftingForSmallPowers) {
    std::mt19937_64 random(2);
    for (const std::uint32_t degree : {1, 2, 31, 32, 63, 64, 65, 128, 521, 1280}) {
        const Polynomial p = random_polynomial(random, degree, 50);
        const Field field(p);
        Bits value(1);
        for (std::uint64_t n = 0; n < 3000; ++n, field.times_x(value)) {
            // All powers below 200 and about the degree, every seventh of the others.
            if (n >= 200 && n % 7 != 0 && (n + 3 < degree || n > degree + 70)) continue;
            expect_power(n, p, value);
            if (HasFatalFailure()) return;
        }
    }
}

TEST_F(PolyRem, IsSquaringOfBitsForLargePowers) {
    std::mt19937_64 random(3);
    for (int i = 0; i < 53; ++i) {
        const auto degree = static_cast<std::uint32_t>(1 + random() % (i < 50 ? 150 : 2000));
        const Polynomial p = random_polynomial(random, degree, 1 + static_cast<std::uint32_t>(i) % 50);
        const std::uint64_t n = i == 0 ? UINT64_MAX : random() >> random() % 60;
        expect_power(n, p, Field(p).power(n));
        if (HasFatalFailure()) return;
    }
}

TEST_F(PolyRem, KnowsTheOrderOfAPrimitivePolynomial) {
    const Polynomial p{63, {0, 1, 63}};  // Zierler and Brillhart 1968
    constexpr std::uint64_t order = (std::uint64_t{1} << 63) - 1;
    expect_power(order, p, Bits(1));
    expect_power(order + 1, p, Bits(2));
    for (const std::uint64_t factor : {7, 73, 127, 337, 92737, 649657}) {
        ASSERT_EQ(order % factor, 0u);
        std::uint32_t out[2];
        ASSERT_EQ(__huxPolyRem(order / factor, 63, 3, p.exponents.data(), 2, out), HuxStatusOk);
        EXPECT_FALSE(out[0] == 1 && out[1] == 0) << factor;
    }
}

TEST_F(PolyRem, HoldsAtTheDegreesOfTheMersenneFamily) {
    std::mt19937_64 random(4);
    for (const std::uint32_t degree : {2203, 19937, 19968}) {
        const Polynomial p = random_polynomial(random, degree, degree == 19968 ? 34 : 1);
        const Field field(p);
        const std::uint64_t n = (std::uint64_t{3} << 16) + random() % 65536;
        Bits value(1);
        for (std::uint64_t k = 0; k < n >> 3; ++k) field.times_x(value);
        for (int bit = 2; bit >= 0; --bit) {
            value = field.square(value);
            if ((n >> bit & 1) != 0) field.times_x(value);
        }
        expect_power(n, p, value);
        if (HasFatalFailure()) return;
    }
}

TEST_F(PolyRem, CountsExponentsThatStandTwiceAsNone) {
    const Polynomial p{5, {0, 2, 3, 5, 3}};
    expect_power(5, p, Bits(0b101));
}

TEST_F(PolyRem, NeedsMemoryFromTheDegreeOn) {
    const std::uint32_t exponents[] = {0, 3, 7};
    std::uint32_t out = 0;
    fail_allocation(1);
    EXPECT_EQ(__huxPolyRem(6, 7, 3, exponents, 1, &out), HuxStatusOk);
    EXPECT_EQ(out, 0x40u);
    EXPECT_EQ(__huxPolyRem(7, 7, 3, exponents, 1, &out), HuxStatusOutOfMemory);
    EXPECT_TRUE(allocation_failed());
    EXPECT_EQ(__huxPolyRem(7, 7, 3, exponents, 1, &out), HuxStatusOk);
    EXPECT_EQ(out, 0x9u);
}

}  // namespace
}  // namespace qorl::test
