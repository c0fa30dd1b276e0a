#include <gtest/gtest.h>

#include <cstring>
#include <tuple>

#include "toy_generator.hpp"

namespace qorl::test {
namespace {

TEST(Registry, RecordsHaveTheLayoutThatGeneratorsOfOthersRelyOn) {
    static_assert(sizeof(BrngProperties) == 56 && offsetof(BrngProperties, init) == 24);
    static_assert(sizeof(StreamState) == 16 && offsetof(StreamState, chunks) == 8);
    static_assert(sizeof(StreamChunk) == 40 && offsetof(StreamChunk, key) == 24);
    static_assert(offsetof(GlobRODataTableEntry, references) == 16 && offsetof(GlobRODataTableEntry, data) == 24);
    EXPECT_EQ(std::size(__RegBrngs), 512u);
    EXPECT_EQ(std::size(__RegBrngsNew), 512u);
}

TEST(Registry, ResolvesNumbersOfBothNumberings) {
    struct Case {
        std::int32_t id, row, member;
        bool flat, valid;
    };
    const Case cases[] = {
        {0, 0, 0, true, true},
        {3, 3, 0, true, true},
        {4, 4, 0, true, true},
        {5, 4, 1, true, true},
        {276, 4, 272, true, true},
        {277, 277, 0, true, true},
        {280, 280, 0, true, true},
        {281, 281, 0, true, false},
        {1048575, 1048575, 0, true, false},
        {1048576, 0, 0, false, true},
        {1048577, 0, 1, false, false},
        {5242880, 4, 0, false, true},
        {5243152, 4, 272, false, true},
        {5243153, 4, 273, false, false},
        {9437184 + 6023, 8, 6023, false, true},
        {9437184 + 6024, 8, 6024, false, false},
        {16777216, 15, 0, false, true},
        {INT32_MAX, 2046, 1048575, false, false},
        {-1, -1, 0, true, true},
        {INT32_MIN, INT32_MIN, 0, true, true},
    };
    for (const Case &expected : cases) {
        const Place place = place_of(expected.id);
        EXPECT_EQ(place.table, expected.flat ? __RegBrngs : __RegBrngsNew) << expected.id;
        EXPECT_EQ(place.row, expected.row) << expected.id;
        EXPECT_EQ(place.member, expected.member) << expected.id;
        EXPECT_EQ(__huxIsBrngValid(place.table, place.row, place.member),
                  expected.valid ? HuxStatusOk : HuxStatusBadBrngId)
            << expected.id;
        BrngProperties properties;
        std::memset(&properties, 0x77, sizeof properties);
        const bool has_row = expected.valid && expected.id >= 0;
        EXPECT_EQ(__huxGetBrngProperties(expected.id, &properties), has_row ? HuxStatusOk : HuxStatusBadBrngId);
        EXPECT_EQ(properties.state_size, has_row ? place.table[place.row].state_size : 0x77777777) << expected.id;
    }
}

auto members(const BrngProperties &p) {
    return std::tie(p.state_size, p.seed_words, p.includes_zero, p.word_size, p.bits, p.init, p.s, p.d, p.i);
}

TEST(Registry, FlatRowsAreThoseOfTheFamilies) {
    const auto row_of = [](std::int32_t flat) {
        if (flat < 4) return flat;
        return flat < 277 ? std::int32_t{row_WH} : flat == 277 ? std::int32_t{row_Sobol} : std::int32_t{row_Niederr};
    };
    for (std::int32_t flat = 0; flat < 279; ++flat)
        EXPECT_TRUE(members(__RegBrngs[flat]) == members(__RegBrngsNew[row_of(flat)])) << flat;
    const BrngProperties zero{};
    for (std::int32_t flat = 279; flat < 512; ++flat) EXPECT_TRUE(members(__RegBrngs[flat]) == members(zero)) << flat;
    // A few rows as published.
    const BrngProperties &mcg59 = __RegBrngs[3], &sobol = __RegBrngs[277], &philox = __RegBrngsNew[15];
    EXPECT_TRUE(mcg59.state_size == 32 && mcg59.seed_words == 1 && mcg59.word_size == 8 && mcg59.bits == 59);
    EXPECT_TRUE(sobol.state_size == 11712 && sobol.seed_words == 2604 && sobol.includes_zero == 0);
    EXPECT_TRUE(philox.state_size == 64 && philox.seed_words == 8 && philox.includes_zero == 1 && philox.bits == 32);
}

TEST(Registry, ARowHasAllItsFunctionsOrNone) {
    for (const BrngProperties &row : __RegBrngsNew) {
        const bool stands = row.init != nullptr;
        EXPECT_TRUE((row.s != nullptr) == stands && (row.d != nullptr) == stands && (row.i != nullptr) == stands);
    }
}

// Fills the table for good, so it stands last in the program's order of need: the toys are registered first.
TEST(Registry, RegistersUntilTheTableIsFullAndJudgesInOrder) {
    const BrngProperties good = toy_properties();
    const std::int32_t toy = toy_id();
    long_seed_id();
    EXPECT_GE(toy, 17825792);
    struct Case {
        std::int32_t status;
        void (*spoil)(BrngProperties &);
    };
    const Case cases[] = {
        {HuxStatusNullPointer, [](BrngProperties &p) { p.init = nullptr; }},
        {HuxStatusNullPointer, [](BrngProperties &p) { p.s = nullptr; }},
        {HuxStatusNullPointer, [](BrngProperties &p) { p.d = nullptr; }},
        {HuxStatusNullPointer, [](BrngProperties &p) { p.i = nullptr; }},
        {HuxStatusBadBits, [](BrngProperties &p) { p.bits = 0; }},
        {HuxStatusBadSeedWords, [](BrngProperties &p) { p.seed_words = 0; }},
        {HuxStatusBadWordSize, [](BrngProperties &p) { p.word_size = 12; }},
        {HuxStatusBadStateSize, [](BrngProperties &p) { p.state_size = -1; }},
    };
    BrngProperties all_faults = good;  // gathers them: the one tested first is told
    const std::int32_t count = __huxGetNumRegBrngs();
    for (const Case &expected : cases) {
        BrngProperties one_fault = good;
        expected.spoil(one_fault);
        expected.spoil(all_faults);
        EXPECT_EQ(__huxRegisterBrng(&one_fault), expected.status);
        EXPECT_EQ(__huxRegisterBrng(&all_faults), expected.status);
    }
    EXPECT_EQ(__huxGetNumRegBrngs(), count);

    BrngProperties found;
    for (std::int32_t row = count; row < 512; ++row) {
        const std::int32_t id = family_id(row);
        EXPECT_EQ(__huxGetBrngProperties(id, &found), HuxStatusBadBrngId);
        ASSERT_EQ(__huxRegisterBrng(&good), id);
        EXPECT_EQ(__huxGetNumRegBrngs(), row + 1);
        EXPECT_EQ(__huxGetBrngProperties(id, &found), HuxStatusOk);
        EXPECT_EQ(__huxGetBrngProperties(id + 1, &found), HuxStatusBadBrngId);
    }
    EXPECT_EQ(__huxRegisterBrng(&good), HuxStatusRegistryFull);
    EXPECT_EQ(__huxGetNumRegBrngs(), 512);
    const std::uint32_t seed = 9;
    StreamState *last = nullptr;
    ASSERT_EQ(__huxNewStreamEx(&last, family_id(511), 1, &seed), HuxStatusOk);
    __huxDeleteStream(&last);
}

}  // namespace
}  // namespace qorl::test
