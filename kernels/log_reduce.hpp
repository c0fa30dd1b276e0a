// The reduction that the double-precision bodies with a logarithm share: x = 2^(E - 1013) m, m = (1 + u) / R.
//
// Method   E is the raw exponent of x, m in [2^-10, 2^-9) its mantissa, R an integer next to 1/m from the processor's
//          reciprocal estimate. m R - 1 is exact, so log x = (E - 1013) log 2 - log R + log(1 + u) leaves a table with
//          a row for each R and a very short series. The bits of R are the index: no division, no branch.
// Range    x positive and normal; every other x gives some R of the table and a u that means nothing.
// Bounds   512 <= R <= 1024, R = 1024 at m = 2^-10 exactly, and |u| <= 1.376 2^-10 + 2^-23, for any estimate that is
//          within 1.5 2^-12 of 1/m: the half unit of the rounding is at most 2^-10 / m of 1/m, the estimate adds the
//          rest. At the ends 1/m is at least 512 and at most 1024 (1 + 2^-23), and the estimate is nearer to
//          them than to the next number of nine bits, below 512 a half away and above 1024 two.
// Source   W.-F. Wong and E. Goto, Fast hardware-based algorithms for elementary function computations using
// rectangular
//          multipliers, IEEE Trans. Computers 43(3), 1994; P. T. P. Tang, Table-driven implementation of the logarithm
//          function, ACM TOMS 16(4), 1990.
#ifndef QORL_KERNELS_LOG_REDUCE_HPP
#define QORL_KERNELS_LOG_REDUCE_HPP

#include <bit>
#include <cstdint>

#include "frame/vec.hpp"

namespace qorl {

// The number of the doubled mantissa's place: x = 2^(E - log_reduce_bias) m.
inline constexpr double log_reduce_bias = 1013;

// Tables have a row of two doubles for each R from 512 to 1024: byte 16 (R - 512). The offset below counts from
// log_row_bias bytes ahead of the table, as RowLookup takes it.
inline constexpr std::ptrdiff_t log_row_bias = 0x810000;

template <int N>
struct LogReduced {
    Pack<double, N> m, r, u;

    QORL_INLINE Pack<std::int64_t, N> row() const { return shift_right(bits(r), 39); }
};

// m of a positive normal x.
template <int N>
QORL_INLINE Pack<double, N> log_mantissa(Pack<double, N> x) {
    constexpr std::int64_t mantissa_bits = 0x000FFFFFFFFFFFFF;
    return real((bits(x) & mantissa_bits) | std::bit_cast<std::int64_t>(0x1p-10));
}

// R and u of m in [2^-10, 2^-9]. The change to single precision and back is two shifts, for the conversion
// instructions cost as much as the whole rest: the bits of m moved down by 29 places are those of -2^128 m, cut off
// to single precision (its sign and exponent are the low nine bits of that of m). The other half of the lane holds a
// denormal, its estimate is infinity, whose low bits are zeros. Moved back, the addition corrects sign and exponent and
// rounds to nine bits behind the leading one, halves away from zero.
template <int N>
QORL_INLINE LogReduced<N> log_reduce_mantissa(Pack<double, N> m) {
    constexpr std::int64_t half_unit = std::int64_t{1} << 42, above_half = -2 * half_unit;
    // 2^10 as a double less the single -2^-118 moved up
    constexpr std::int64_t correction =
        std::bit_cast<std::int64_t>(0x1p10) - (std::int64_t{std::bit_cast<std::uint32_t>(-0x1p-118f)} << 29);
    const auto estimate = reciprocal_estimate(float_halves(shift_right(bits(m), 29)));
    const auto r = real((shift_left(join_halves(estimate), 29) + (correction + half_unit)) & above_half);
    return {m, r, fms(m, r, 1)};
}

template <int N>
QORL_INLINE LogReduced<N> log_reduce(Pack<double, N> x) {
    return log_reduce_mantissa(log_mantissa(x));
}

// The raw exponent E of a positive x as a double.
template <int N>
QORL_INLINE Pack<double, N> log_exponent(Pack<double, N> x) {
    return real(shift_right(bits(x), 52) | std::bit_cast<std::int64_t>(0x1p52)) - Pack<double, N>(0x1p52);
}

}  // namespace qorl

#endif
