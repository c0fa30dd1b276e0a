// Numbers next to 1/x and 1/sqrt(x), from the processor's single-precision estimates, and the test of the range of x.
//
// Method   Of floats, the estimates are the instructions. They know nothing of the exponents of doubles. So a float is
//          made of the leading 20 bits of the fraction of x and, for the square root, of the lowest bit of its
//          exponent, which leaves an even one; the rest of the exponent is added to that of the estimate in integers.
//          This is done on the high words alone, those of two registers in one: conversions between the types would
//          cost more than all of it.
// Range    positive normal x (1/sqrt(x)); normal |x| below 2^126 or 2^1021 (1/x). Others give garbage.
// Error    below 1.5 2^-12 for the instruction, whatever the processor. Of doubles 2^-20 (1/x) or 2^-21 (1/sqrt(x)) for
//          the cut of the argument and 2^-20 for the cut of the estimate to 21 bits; its square is exact.
#ifndef QORL_KERNELS_ESTIMATE_HPP
#define QORL_KERNELS_ESTIMATE_HPP

#include <bit>
#include <cstdint>
#include <limits>

#include "frame/vec.hpp"

namespace qorl {

template <int N>
QORL_INLINE Pack<double, N> wide_reciprocal_sqrt_estimate(Pack<double, N> x) {
    constexpr std::int32_t kept = 0x00FFFFFF, half = std::bit_cast<std::int32_t>(0.5f), exponent_bits = 0x7FF00000;
    // x = 4^(q - 511) m, m in [1/2, 2); q is the exponent without its lowest bit, halved
    const auto high = high_words(x);
    const auto m = real((shift_left(high, 3) & kept) | half);
    const auto q = shift_right(high, 1) & exponent_bits;
    constexpr std::int32_t bias = (1023 - 127 + 511) << 20;
    return from_high_words<N>((shift_right(bits(reciprocal_sqrt_estimate(m)), 3) + bias) - q);
}

template <int N>
QORL_INLINE Pack<float, N> wide_reciprocal_estimate(Pack<float, N> x) {
    return reciprocal_estimate(x);
}
template <int N>
QORL_INLINE Pack<double, N> wide_reciprocal_estimate(Pack<double, N> x) {
    constexpr std::int32_t kept = 0x007FFFFF, one = std::bit_cast<std::int32_t>(1.0f);
    constexpr auto sign_and_exponent = std::int32_t(0xFFF00000);
    // x = +-2^(E - 1023) m, m in [1, 2); the sign stands above E and comes through the subtraction
    const auto high = high_words(x);
    const auto m = real((shift_left(high, 3) & kept) | one);
    constexpr std::int32_t bias = (1023 - 127 + 1023) << 20;
    return from_high_words<N>((shift_right(bits(reciprocal_estimate(m)), 3) + bias) - (high & sign_and_exponent));
}

// True where a word is not in [least, end), as unsigned integers: moved so that the range ends where signed ones do.
template <int N>
QORL_INLINE Mask<float, N> outside_words(Pack<std::int32_t, N> word, std::uint32_t least, std::uint32_t end) {
    constexpr std::uint32_t past_top = 0x80000000;
    return int_greater(Pack<std::int32_t, N>(static_cast<std::int32_t>(past_top - (end - least))),
                       word + static_cast<std::int32_t>(past_top - end));
}

// True where x is not in [2^low, 2^high); NaN and what has a sign are not.
template <int N>
QORL_INLINE Mask<float, N> outside(Pack<float, N> x, int low, int high) {
    const auto word = [](int exponent) { return static_cast<std::uint32_t>(127 + exponent) << 23; };
    return outside_words(bits(x), word(low), word(high));
}
template <int N>
QORL_INLINE HighWordMask<N> outside(Pack<double, N> x, int low, int high) {
    const auto word = [](int exponent) { return static_cast<std::uint32_t>(1023 + exponent) << 20; };
    return {outside_words(high_words(x), word(low), word(high))};
}

// The same of |x|: a word plus itself is without the sign.
template <int N>
QORL_INLINE Mask<float, N> magnitude_outside(Pack<float, N> x, int low, int high) {
    const auto word = [](int exponent) { return static_cast<std::uint32_t>(127 + exponent) << 24; };
    return outside_words(bits(x) + bits(x), word(low), word(high));
}
template <int N>
QORL_INLINE HighWordMask<N> magnitude_outside(Pack<double, N> x, int low, int high) {
    const auto word = [](int exponent) { return static_cast<std::uint32_t>(1023 + exponent) << 21; };
    return {outside_words(high_words(x) + high_words(x), word(low), word(high))};
}

// The first lane of a register: what the body of a kernel gives for one number.
template <class T>
QORL_INLINE T first_lane(Pack<T, 1> x) {
    alignas(32) T lanes[Lane<T>::count];
    store(lanes, x);
    return lanes[0];
}

}  // namespace qorl

#endif
