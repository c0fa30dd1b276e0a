// Powers of companion matrices against stepping the recurrence, and among each other.
#include "streams/matrix.hpp"

#include <gtest/gtest.h>

#include <array>
#include <random>

#include "allocator.hpp"
#include "qorl/hux.h"
#include "streams/tables/mrg32k3a_powers.hpp"

namespace qorl::test {
namespace {

using Vector = std::array<std::uint32_t, 3>;

Vector stepped(Vector v, const Vector &row, std::uint32_t m) {
    unsigned __int128 sum = 0;
    for (std::size_t k = 0; k < 3; ++k) sum += static_cast<unsigned __int128>(row[k]) * v[2 - k];
    return {v[1], v[2], static_cast<std::uint32_t>(sum % m)};
}

struct Drawn {
    Vector row, v;
    std::uint32_t m;
};

Drawn random_recurrence(std::mt19937_64 &random) {
    Drawn r{};
    r.m = static_cast<std::uint32_t>(random() >> (32 + random() % 31)) | 2;
    for (std::uint32_t &word : r.row) word = static_cast<std::uint32_t>(random() % r.m);
    for (std::uint32_t &word : r.v) word = static_cast<std::uint32_t>(random() % r.m);
    return r;
}

class MatrixPower : public Balanced {};

TEST_F(MatrixPower, IsSoManyStepsOfTheRecurrence) {
    std::mt19937_64 random(3);
    for (int i = 0; i < 200; ++i) {
        const auto [row, start, m] = random_recurrence(random);
        Vector expected = start;
        for (std::uint64_t n = 0; n < 100; ++n, expected = stepped(expected, row, m)) {
            Vector v = start;
            __huxiVect3PowMod(v.data(), row.data(), m, n);
            ASSERT_EQ(v, expected) << n << " steps modulo " << m;
        }
    }
}

TEST_F(MatrixPower, OfLongCountsIsMadeOfShortOnes) {
    std::mt19937_64 random(4);
    for (int i = 0; i < 200; ++i) {
        const auto [row, start, m] = random_recurrence(random);
        const std::uint64_t n[] = {random(), random() % 4, 0, 0};
        Vector expected = start, v = start;
        __huxiVect3PowMod(expected.data(), row.data(), m, n[0]);
        for (std::uint64_t half = 0; half < 2 * n[1]; ++half)
            __huxiVect3PowMod(expected.data(), row.data(), m, std::uint64_t{1} << 63);
        ASSERT_EQ(__huxiVect3PowArrayMod(v.data(), row.data(), m, 4, n), HuxStatusOk);
        ASSERT_EQ(v, expected);

        // Counts add up: a carry through all words, 2^128 - 1 and 1.
        Vector sum = start, parts = start;
        const std::uint64_t all_ones[] = {UINT64_MAX, UINT64_MAX, n[0] >> 1}, one[] = {1, 0, 0},
                            carried[] = {0, 0, (n[0] >> 1) + 1};
        EXPECT_EQ(__huxiVect3PowArrayMod(sum.data(), row.data(), m, 3, carried), HuxStatusOk);
        EXPECT_EQ(__huxiVect3PowArrayMod(parts.data(), row.data(), m, 3, all_ones), HuxStatusOk);
        EXPECT_EQ(__huxiVect3PowArrayMod(parts.data(), row.data(), m, 3, one), HuxStatusOk);
        ASSERT_EQ(parts, sum);
    }
}

TEST_F(MatrixPower, FromTheTablesIsThatOfSquaring) {
    const struct {
        const ThirdOrder &recurrence;
        void (*by_table)(std::uint32_t *, std::int32_t, const std::uint64_t *, const std::uint32_t *);
        const std::uint32_t *table;
    } cases[] = {{mrg32k3a_x, __huxiVect3PowArrayMod_M1, tables::mrg32k3a_m1_powers},
                 {mrg32k3a_y, __huxiVect3PowArrayMod_M2, tables::mrg32k3a_m2_powers}};
    std::mt19937_64 random(5);
    for (const auto &[recurrence, by_table, table] : cases) {
        for (int i = 0; i < 500; ++i) {
            const auto words = static_cast<std::int32_t>(i % 4);
            const std::uint64_t n[] = {random(), i < 4 ? UINT64_MAX : random() & random(), random()};
            Vector v;
            for (std::uint32_t &word : v) word = recurrence.m - 1 - static_cast<std::uint32_t>(random() % (i + 1));
            Vector squared = v;
            by_table(v.data(), words, n, table);
            EXPECT_EQ(__huxiVect3PowArrayMod(squared.data(), recurrence.row, recurrence.m, words, n), HuxStatusOk);
            ASSERT_EQ(v, squared) << words << " words";
        }
    }
}

TEST_F(MatrixPower, LeavesTheVectorWhenThereIsNoMemory) {
    Vector v{1, 2, 3};
    const std::uint64_t n = 5;
    fail_allocation(1);
    EXPECT_EQ(__huxiVect3PowArrayMod(v.data(), mrg32k3a_x.row, mrg32k3a_x.m, 1, &n), HuxStatusOutOfMemory);
    EXPECT_TRUE(allocation_failed());
    EXPECT_EQ(v, (Vector{1, 2, 3}));
}

}  // namespace
}  // namespace qorl::test
