// What the tests of the Mersenne family share.
#ifndef QORL_TESTS_GENERATORS_MERSENNE_HPP
#define QORL_TESTS_GENERATORS_MERSENNE_HPP

#include <span>

#include "generator.hpp"

namespace qorl::test {

using Words32 = std::vector<std::uint32_t>;

// A key of as many words.
Seed key_of(std::size_t words);

// The array seeding of MT19937 for `size` words, in the words of its publication.
Words32 seeded_by_array(std::size_t size, const Seed &seed);

// One more word of a recurrence on all words so far, of which those from the last `size` on count.
void extend(Words32 &x, std::size_t size, std::size_t far, std::uint32_t upper, std::uint32_t matrix);

// Rows n to n + count - 1 of a sequence of rows of `width` words whose bits follow the characteristic polynomial: with
// g = t^n modulo it, the sums of g(j) row(k + j). `rows` holds degree + count of them. NTL computes g.
Words32 far_ahead(Count n, std::span<const std::uint32_t> exponents, const Words32 &rows, std::size_t width,
                  std::size_t count);

// u = y 2^-32 for unsigned words.
double unsigned_real_d(const Element &e, double a, double b);
float unsigned_real_s(const Element &e, float a, float b);

// Requests end at every position of two blocks; streams are saved and loaded there.
void expect_exact_positions(const Generator &generator, int block);

// Skips of those lengths lead where drawing leads, from positions all over a block.
void expect_skips_as_drawing(const Generator &generator, std::initializer_list<std::uint64_t> skips);

// A skip that an allocation fails leaves the stream as it was, whichever it is.
void expect_skip_without_memory_changes_nothing(const Generator &generator, std::uint64_t skip);

}  // namespace qorl::test

#endif
