#include "counter_based.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <utility>

#include "stream.hpp"

namespace qorl::test {
namespace {

// Positions from which a request of 1,000 words passes a carry out of the 32 and 64 low bits, and out of all 128.
std::vector<Seed> seeds(std::size_t key_words) {
    const std::uint32_t ones = 0xFFFFFFFF;
    std::vector<Seed> all = {{}, {7}};
    for (const Element &counter : {Element{0, 0, 0, 0}, Element{ones - 30, 5, 6, 7}, Element{ones - 15, ones, 1, 2},
                                   Element{ones, ones, ones, ones}}) {
        Seed seed(key_words);
        for (std::size_t k = 0; k < key_words; ++k) seed[k] = 0xA4093822 + 0x1F123BB5 * static_cast<std::uint32_t>(k);
        seed.insert(seed.end(), counter.begin(), counter.end());
        all.push_back(seed);
    }
    all.back().push_back(99);  // a word too many is ignored
    return all;
}

}  // namespace

Generator counter_based(const char *name, GeneratorRow row, std::size_t key_words, Encrypt encrypt) {
    const auto elements = [=](const Seed &seed, Count skip, int count) {
        std::vector<std::uint32_t> key;
        for (std::size_t k = 0; k < key_words; ++k) key.push_back(word_of(seed, k));
        Count counter = 0;
        for (std::size_t k = 4; k-- > 0;) counter = counter << 32 | word_of(seed, key_words + k);
        counter += skip / 4;
        Elements result;
        for (std::size_t word = static_cast<std::size_t>(skip % 4); result.size() < static_cast<std::size_t>(count);
             word = 0, ++counter) {
            Element block;
            std::memcpy(block.data(), &counter, sizeof block);
            block = encrypt(key.data(), block);
            for (; word < 4 && result.size() < static_cast<std::size_t>(count); ++word)
                result.push_back(element_of(block[word]));
        }
        return result;
    };
    const auto real_d = [](const Element &e, double a, double b) {
        return std::fma(static_cast<double>(static_cast<std::int32_t>(e[0])), (b - a) * 0x1p-32, (a + b) * 0.5);
    };
    const auto real_s = [](const Element &e, float a, float b) {
        return std::fma(static_cast<float>(static_cast<std::int32_t>(e[0])), (b - a) * 0x1p-32f, (a + b) * 0.5f);
    };
    return {name, {family_id(row)}, seeds(key_words), elements, real_d, real_s, false, true, true};
}

Element first_block(GeneratorRow row, const Seed &seed, int count) {
    const Stream stream(family_id(row), seed);
    const Elements words = stream.integers(count);
    return {words[0][0], words[1][0], words[2][0], words[3][0]};
}

namespace {

// The count of a long skip-ahead has up to 192 bits, of which the state takes 130; further words are not looked at.
TEST(CounterBased, LongSkipTakes192Bits) {
    const Seed seed = {1, 2, 3, 4, 5, 6, 7, 8};
    const std::uint64_t high = 0x8000000000000003, ones = ~std::uint64_t{0};
    for (const auto &[generator, key] : {std::pair(philox4x32x10(), 2), std::pair(ars5(), 4)}) {
        const struct {
            std::vector<std::uint64_t> count;
            Count blocks, words;  // the same by four words, modulo 2^128 blocks
        } moves[] = {
            {{0, 0, 1}, Count{1} << 126, 0},
            {{5, 0, 4, 77}, 1, 1},
            {{2, high, high}, (Count{3} << 126) | Count{high} << 62, 2},
            {{ones, ones, ones}, ~Count{0}, 3},
            {{0, 0, 0, 1}, 0, 0},
        };
        for (const auto &move : moves) {
            const Stream stream(generator.ids[0], seed);
            stream.integers(5);
            const auto words = static_cast<std::int32_t>(move.count.size());
            EXPECT_EQ(__huxSkipAheadStreamEx(stream.state, words, move.count.data()), HuxStatusOk);
            Seed moved = seed;
            Count counter;
            std::memcpy(&counter, &moved[key], sizeof counter);
            counter += move.blocks;
            std::memcpy(&moved[key], &counter, sizeof counter);
            EXPECT_EQ(stream.integers(9), generator.elements(moved, 5 + move.words, 9)) << generator.name;
        }
    }
}

// A state from outside may claim any number of words in its block: it has four.
TEST(CounterBased, ABlockHasFourWordsWhateverAStateClaims) {
    for (const std::uint32_t left : {4u, 5u, 0xFFFFFFFFu}) {
        const Stream stream(family_id(row_PHILOX4X32X10), {1, 2});
        stream.integers(1);
        state_of<std::array<std::uint32_t, 12>>(stream.state)[6] = left;
        Stream skipping;
        ASSERT_EQ(__huxCopyStream(&skipping.state, stream.state), HuxStatusOk);
        EXPECT_EQ(stream.integers(9), philox4x32x10().elements({1, 2}, 0, 9));
        ASSERT_EQ(__huxSkipAheadStream(skipping.state, 5), HuxStatusOk);
        EXPECT_EQ(skipping.integers(9), philox4x32x10().elements({1, 2}, 5, 9));
    }
}

// After a skip that ends a block, the whole next block waits to be delivered.
TEST(CounterBased, SkipsWithinABlockComputeNothing) {
    const Stream stream(family_id(row_PHILOX4X32X10), {1, 2});
    const auto left = [&] { return state_of<std::array<std::uint32_t, 12>>(stream.state)[6]; };
    const auto counter = [&] { return state_of<std::array<std::uint32_t, 12>>(stream.state)[2]; };
    stream.integers(1);
    EXPECT_EQ(left(), 3u);
    EXPECT_EQ(__huxSkipAheadStream(stream.state, 3), HuxStatusOk);
    EXPECT_EQ(left(), 0u);
    EXPECT_EQ(counter(), 1u);
    EXPECT_EQ(__huxSkipAheadStream(stream.state, 4), HuxStatusOk);
    EXPECT_EQ(left(), 4u);
    EXPECT_EQ(counter(), 3u);
}

}  // namespace
}  // namespace qorl::test
