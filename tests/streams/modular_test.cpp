// Powers against products of 128 bits and division.
#include <gtest/gtest.h>

#include <cstdint>
#include <random>

#include "qorl/hux.h"

namespace qorl::test {
namespace {

std::uint64_t power(std::uint64_t a, std::uint64_t n, std::uint64_t m) {
    unsigned __int128 result = 1 % m;
    for (int bit = 63; bit >= 0; --bit) {
        result = result * result % m;
        if ((n >> bit & 1) != 0) result = result * (a % m) % m;
    }
    return static_cast<std::uint64_t>(result);
}

constexpr std::uint32_t mersenne = 2147483647;
constexpr std::uint64_t two59 = std::uint64_t{1} << 59;

TEST(Powers, AreThoseOfWideArithmetic) {
    std::mt19937_64 random(59);
    for (int i = 0; i < 20000; ++i) {
        // Of all lengths, so that small moduli and exponents are met.
        const auto a = static_cast<std::uint32_t>(random() >> (32 + random() % 32));
        const std::uint64_t n = random() >> random() % 64, wide = random();
        const auto m = static_cast<std::uint32_t>(random() >> (32 + random() % 31)) | 2;
        ASSERT_EQ(__huxiPowMod(a, n, m), power(a, n, m)) << a << '^' << n << " mod " << m;
        ASSERT_EQ(__huxiPowMod2P31M1(a, n), power(a, n, mersenne)) << a << '^' << n;
        ASSERT_EQ(__huxiPowMod2P59(wide, n), power(wide, n, two59)) << wide << '^' << n;
    }
}

TEST(Powers, HoldAtTheEndsOfTheirRanges) {
    for (const std::uint32_t a : {0u, 1u, 2u, mersenne - 1, mersenne, mersenne + 1, UINT32_MAX - 1, UINT32_MAX}) {
        for (const std::uint64_t n :
             {std::uint64_t{0}, std::uint64_t{1}, std::uint64_t{2}, std::uint64_t{1} << 63, UINT64_MAX}) {
            for (const std::uint32_t m : {2u, 3u, mersenne, UINT32_MAX})
                EXPECT_EQ(__huxiPowMod(a, n, m), power(a, n, m)) << a << '^' << n << " mod " << m;
            EXPECT_EQ(__huxiPowMod2P31M1(a, n), power(a, n, mersenne)) << a << '^' << n;
            EXPECT_EQ(__huxiPowMod2P59(a, n), power(a, n, two59)) << a << '^' << n;
        }
        EXPECT_EQ(__huxiPowMod(a, 0, 0), 1u) << "the modulus does not count for an exponent of 0";
    }
    EXPECT_EQ(__huxiPowMod2P59(two59, 1), 0u);
}

}  // namespace
}  // namespace qorl::test
