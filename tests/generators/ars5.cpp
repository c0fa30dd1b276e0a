// ARS with five rounds by its paper's definition, on rounds of AES in software as FIPS 197 defines them: the S-box from
// the inverse in GF(2^8) and the affine map, no table of its own.
#include <gtest/gtest.h>

#include <array>
#include <cstring>

#include "counter_based.hpp"
#include "stream.hpp"

namespace qorl::test {
namespace {

using Byte = std::uint8_t;
using State = std::array<Byte, 16>;  // byte r + 4 c is row r of column c

constexpr Byte doubled(Byte x) {  // times x in GF(2^8) modulo x^8 + x^4 + x^3 + x + 1
    return static_cast<Byte>(x << 1 ^ (x >> 7) * 0x1B);
}

constexpr Byte product(Byte x, Byte y) {
    Byte sum = 0;
    for (; y != 0; y = static_cast<Byte>(y >> 1), x = doubled(x))
        if ((y & 1) != 0) sum ^= x;
    return sum;
}

constexpr Byte substitute(Byte x) {
    Byte inverse = 1;  // x^254
    for (int k = 0; k < 254; ++k) inverse = product(inverse, x);
    Byte result = 0x63;
    for (int k = 0; k < 5; ++k) result ^= static_cast<Byte>(inverse << k | inverse >> (8 - k));
    return result;
}
static_assert(substitute(0x53) == 0xED);  // the example of FIPS 197, 5.1.1

State aes_round(const State &state, const State &key, bool last) {
    static const auto box = [] {
        std::array<Byte, 256> values{};
        for (std::size_t x = 0; x < 256; ++x) values[x] = substitute(static_cast<Byte>(x));
        return values;
    }();
    State result{};
    for (std::size_t c = 0; c < 4; ++c) {
        Byte column[4];
        for (std::size_t r = 0; r < 4; ++r) column[r] = box[state[r + 4 * ((c + r) % 4)]];  // SubBytes, ShiftRows
        for (std::size_t r = 0; r < 4; ++r) {
            const Byte a = column[r], b = column[(r + 1) % 4], rest = column[(r + 2) % 4] ^ column[(r + 3) % 4];
            result[r + 4 * c] = static_cast<Byte>((last ? a : doubled(a) ^ doubled(b) ^ b ^ rest) ^ key[r + 4 * c]);
        }
    }
    return result;
}

// FIPS 197, appendix B: the rounds 1 and 10 of the example.
TEST(Ars5, TheRoundsItIsTestedWithAreThoseOfTheStandard) {
    EXPECT_EQ(
        aes_round({0x19, 0x3d, 0xe3, 0xbe, 0xa0, 0xf4, 0xe2, 0x2b, 0x9a, 0xc6, 0x8d, 0x2a, 0xe9, 0xf8, 0x48, 0x08},
                  {0xa0, 0xfa, 0xfe, 0x17, 0x88, 0x54, 0x2c, 0xb1, 0x23, 0xa3, 0x39, 0x39, 0x2a, 0x6c, 0x76, 0x05},
                  false),
        (State{0xa4, 0x9c, 0x7f, 0xf2, 0x68, 0x9f, 0x35, 0x2b, 0x6b, 0x5b, 0xea, 0x43, 0x02, 0x6a, 0x50, 0x49}));
    EXPECT_EQ(
        aes_round({0xeb, 0x40, 0xf2, 0x1e, 0x59, 0x2e, 0x38, 0x84, 0x8b, 0xa1, 0x13, 0xe7, 0x1b, 0xc3, 0x42, 0xd2},
                  {0xd0, 0x14, 0xf9, 0xa8, 0xc9, 0xee, 0x25, 0x89, 0xe1, 0x3f, 0x0c, 0xc8, 0xb6, 0x63, 0x0c, 0xa6},
                  true),
        (State{0x39, 0x25, 0x84, 0x1d, 0x02, 0xdc, 0x09, 0xfb, 0xdc, 0x11, 0x85, 0x97, 0x19, 0x6a, 0x0b, 0x32}));
}

Element encrypt(const std::uint32_t *key, Element counter) {
    std::uint64_t weyl[2];
    std::memcpy(weyl, key, sizeof weyl);
    State state, round_key;
    for (std::size_t k = 0; k < 4; ++k) counter[k] ^= key[k];
    std::memcpy(state.data(), counter.data(), sizeof state);
    for (int round = 1; round <= 5; ++round) {
        weyl[0] += 0x9E3779B97F4A7C15;
        weyl[1] += 0xBB67AE8584CAA73B;
        std::memcpy(round_key.data(), weyl, sizeof round_key);
        state = aes_round(state, round_key, round == 5);
    }
    std::memcpy(counter.data(), state.data(), sizeof state);
    return counter;
}

TEST(Ars5, TellsThatTheProcessorHasNoAes) {
    const Stream stream(family_id(row_ARS5), {1});
    const auto image = stream.image();
    std::uint64_t r[2] = {1, 2}, count = 5;
    {
        const NoAes no_aes;
        EXPECT_EQ(Stream(family_id(row_ARS5), {1}).status, HuxStatusOk) << "seeding needs none";
        const BrngProperties &row = stream.row();
        EXPECT_EQ(row.i(stream.state, 1, r), HuxStatusNoAesInstruction);
        EXPECT_EQ(row.d(stream.state, 1, reinterpret_cast<double *>(r), 0, 1), HuxStatusNoAesInstruction);
        EXPECT_EQ(row.s(stream.state, 0, reinterpret_cast<float *>(r), 0, 1), HuxStatusNoAesInstruction);
        EXPECT_EQ(__huxSkipAheadStream(stream.state, count), HuxStatusNoAesInstruction);
        EXPECT_EQ(__huxSkipAheadStreamEx(stream.state, 1, &count), HuxStatusNoAesInstruction);
        StreamState *loaded = nullptr;
        EXPECT_EQ(__huxLoadStreamM(&loaded, image.data()), HuxStatusNoAesInstruction);
        EXPECT_EQ(loaded, nullptr);
        EXPECT_EQ(__huxCPUisAES(), 0);
    }
    EXPECT_EQ(r[0], 1u);
    EXPECT_EQ(stream.image(), image);
    EXPECT_EQ(__huxCPUisAES(), 1);
}

}  // namespace

Generator ars5() {
    return counter_based("ARS5", row_ARS5, 4, encrypt);
}

}  // namespace qorl::test
