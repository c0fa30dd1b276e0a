// Philox-4x32 with ten rounds, by its paper's definition; the known answers are those published with the authors'
// library Random123 (kat_vectors).
#include <gtest/gtest.h>

#include "counter_based.hpp"

namespace qorl::test {
namespace {

Element encrypt(const std::uint32_t *key, Element c) {
    std::uint32_t k0 = key[0], k1 = key[1];
    for (int round = 0; round < 10; ++round) {
        const std::uint64_t p0 = std::uint64_t{0xD2511F53} * c[0], p1 = std::uint64_t{0xCD9E8D57} * c[2];
        c = {static_cast<std::uint32_t>(p1 >> 32) ^ c[1] ^ k0, static_cast<std::uint32_t>(p1),
             static_cast<std::uint32_t>(p0 >> 32) ^ c[3] ^ k1, static_cast<std::uint32_t>(p0)};
        k0 += 0x9E3779B9;
        k1 += 0xBB67AE85;
    }
    return c;
}

TEST(Philox4x32x10, GivesThePublishedAnswers) {
    const struct {
        std::uint32_t key[2];
        Element counter, block;
    } answers[] = {
        {{0, 0}, {0, 0, 0, 0}, {0x6627e8d5, 0xe169c58d, 0xbc57ac4c, 0x9b00dbd8}},
        {{0xffffffff, 0xffffffff},
         {0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff},
         {0x408f276d, 0x41c83b0e, 0xa20bc7c6, 0x6d5451fd}},
        {{0xa4093822, 0x299f31d0},
         {0x243f6a88, 0x85a308d3, 0x13198a2e, 0x03707344},
         {0xd16cfe09, 0x94fdcceb, 0x5001e420, 0x24126ea1}},
    };
    for (const auto &answer : answers) {
        Seed seed(answer.key, answer.key + 2);
        seed.insert(seed.end(), answer.counter.begin(), answer.counter.end());
        for (const int count : {4, 100})  // one block is computed by itself, many in vectors
            EXPECT_EQ(first_block(row_PHILOX4X32X10, seed, count), answer.block);
        EXPECT_EQ(encrypt(answer.key, answer.counter), answer.block);
    }
}

}  // namespace

Generator philox4x32x10() {
    return counter_based("PHILOX4X32X10", row_PHILOX4X32X10, 2, encrypt);
}

}  // namespace qorl::test
