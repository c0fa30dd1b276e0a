#include "mersenne.hpp"

#include <NTL/GF2X.h>
#include <NTL/ZZ.h>

#include <algorithm>
#include <cmath>

#include "stream.hpp"
#include "tests/streams/allocator.hpp"

namespace qorl::test {

Seed key_of(std::size_t words) {
    Seed key;
    std::uint32_t word = 3;
    for (std::size_t k = 0; k < words; ++k) key.push_back(word = word * 1664525 + 1013904223);
    return key;
}

Words32 seeded_by_array(std::size_t size, const Seed &seed) {
    const Seed key = seed.empty() ? Seed{1} : seed;
    Words32 mt = {19650218};
    while (mt.size() < size)
        mt.push_back(1812433253 * (mt.back() ^ mt.back() >> 30) + static_cast<std::uint32_t>(mt.size()));
    std::size_t i = 1;
    const auto pass = [&](std::size_t steps, std::uint32_t factor, auto addend) {
        for (std::size_t step = 0; step < steps; ++step) {
            mt[i] = (mt[i] ^ (mt[i - 1] ^ mt[i - 1] >> 30) * factor) + addend(step);
            if (++i == size) mt[0] = mt[size - 1], i = 1;
        }
    };
    pass(std::max(size, key.size()), 1664525, [&](std::size_t step) {
        const std::size_t j = step % key.size();
        return key[j] + static_cast<std::uint32_t>(j);
    });
    pass(size - 1, 1566083941, [&](std::size_t) { return -static_cast<std::uint32_t>(i); });
    mt[0] = 0x80000000;
    return mt;
}

void extend(Words32 &x, std::size_t size, std::size_t far, std::uint32_t upper, std::uint32_t matrix) {
    const std::size_t k = x.size() - size;
    const std::uint32_t y = (x[k] & upper) | (x[k + 1] & ~upper);
    x.push_back(x[k + far] ^ y >> 1 ^ (y % 2 != 0 ? matrix : 0));
}

Words32 far_ahead(Count n, std::span<const std::uint32_t> exponents, const Words32 &rows, std::size_t width,
                  std::size_t count) {
    NTL::GF2X p, g;
    for (const std::uint32_t exponent : exponents) NTL::SetCoeff(p, exponent);
    NTL::ZZ power;
    for (int bit = 0; bit < 128; ++bit)
        if ((n >> bit & 1) != 0) NTL::SetBit(power, bit);
    NTL::PowerXMod(g, power, NTL::GF2XModulus(p));
    Words32 sums(width * count);
    for (long j = 0; j <= NTL::deg(g); ++j)
        if (NTL::coeff(g, j) == 1)
            for (std::size_t k = 0; k < sums.size(); ++k) sums[k] ^= rows[static_cast<std::size_t>(j) * width + k];
    return sums;
}

double unsigned_real_d(const Element &e, double a, double b) {
    return std::fma(static_cast<double>(e[0]), (b - a) * 0x1p-32, a);
}

float unsigned_real_s(const Element &e, float a, float b) {
    return std::fma(static_cast<float>(e[0]), (b - a) * 0x1p-32f, a);
}

void expect_exact_positions(const Generator &generator, int block) {
    const Seed &seed = generator.seeds.back();
    const Elements all = generator.elements(seed, 0, 3 * block + 100);
    for (int at = 0; at <= 2 * block; ++at) {
        const Stream stream(generator.ids[0], seed);
        Stream loaded, copy;
        Elements drawn = stream.integers(at);
        ASSERT_EQ(__huxLoadStreamM(&loaded.state, stream.image().data()), HuxStatusOk);
        ASSERT_EQ(__huxCopyStream(&copy.state, stream.state), HuxStatusOk);
        const int rest = at % 3 == 0 ? block + 5 : 37;
        for (const Element &e : loaded.integers(rest)) drawn.push_back(e);
        const auto end = all.begin() + static_cast<std::ptrdiff_t>(drawn.size());
        ASSERT_TRUE(std::equal(drawn.begin(), drawn.end(), all.begin(), end)) << at;
        const std::vector<double> numbers = copy.doubles(rest, -1, 2);
        for (std::size_t k = 0; k < numbers.size(); ++k)
            ASSERT_EQ(numbers[k], generator.real_d(drawn[static_cast<std::size_t>(at) + k], -1, 2)) << at << " " << k;
    }
}

void expect_skips_as_drawing(const Generator &generator, std::initializer_list<std::uint64_t> skips) {
    const Seed &seed = generator.seeds.back();
    for (const std::uint64_t skip : skips)
        for (const int before : {0, 1, 2, 3, 311, 622, 623, 624, 625, 1000}) {
            const Stream skipping(generator.ids[0], seed), drawing(generator.ids[0], seed);
            skipping.integers(before);
            drawing.integers(before);
            ASSERT_EQ(__huxSkipAheadStream(skipping.state, skip), HuxStatusOk);
            drawing.integers(static_cast<int>(skip));
            ASSERT_EQ(skipping.integers(1301), drawing.integers(1301)) << skip << " behind " << before;
        }
}

void expect_skip_without_memory_changes_nothing(const Generator &generator, std::uint64_t skip) {
    const Stream stream(generator.ids[0], generator.seeds.back());
    stream.integers(5);
    const auto before = stream.image();
    for (long n = 1; n < 20; ++n) {
        fail_allocation(n);
        const std::int32_t status = __huxSkipAheadStream(stream.state, skip);
        const bool failed = allocation_failed();
        fail_allocation(0);
        if (!failed) {
            EXPECT_GT(n, 3) << "no allocation of the jump was tried";
            EXPECT_EQ(status, HuxStatusOk);
            EXPECT_NE(stream.image(), before);
            return;
        }
        ASSERT_EQ(status, HuxStatusOutOfMemory) << n;
        ASSERT_EQ(stream.image(), before) << n;
    }
    FAIL() << "never enough";
}

}  // namespace qorl::test
