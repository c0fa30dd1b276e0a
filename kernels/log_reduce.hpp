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
//          rectangular multipliers, IEEE Trans. Computers 43(3), 1994; P. T. P. Tang, Table-driven implementation of
//          the logarithm function, ACM TOMS 16(4), 1990.
#ifndef QORL_KERNELS_LOG_REDUCE_HPP
#define QORL_KERNELS_LOG_REDUCE_HPP

#include <bit>
#include <cstdint>

#include "frame/vec.hpp"

namespace qorl {

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

// The rows of R in a table of pairs, R being the key: from byte 5 on its bits read 0x8000 + 8 (R - 512).
template <int N>
using LogRows = KeyedPairs<N, 5, 2 * 0x8000>;

// The raw exponent E of a positive x as a double.
template <int N>
QORL_INLINE Pack<double, N> log_exponent(Pack<double, N> x) {
    return real(shift_right(bits(x), 52) | std::bit_cast<std::int64_t>(0x1p52)) - Pack<double, N>(0x1p52);
}

// 2^(1013 - E) for positive x below 2^1013.
template <int N>
QORL_INLINE Pack<double, N> log_inverse_scale(Pack<double, N> x) {
    constexpr std::int64_t exponent_bits = 0x7FF0000000000000, sum = std::int64_t{1023 + 1013} << 52;
    return real(Pack<std::int64_t, N>(sum) - (bits(x) & exponent_bits));
}

// What is not positive, normal and below 2^Top: counted from 2^Top those bits begin at the negative numbers and come
// round behind them to 0, below the bits of the least normal number.
template <int Top = 1024, int N>
QORL_INLINE Mask<double, N> log_special(Pack<double, N> x) {
    constexpr std::int64_t one_exponent = std::int64_t{1} << 52, shift = (1025 - Top) * one_exponent;
    return int_greater(Pack<std::int64_t, N>(shift + one_exponent), bits(x) + shift);
}

// Another reduction, for bodies that need no table: x = 2^e m, sqrt(1/2) <= m < sqrt 2, so that logarithms next to 1 do
// not cancel. With z = (m - 1) / (m + 1), log m = 2 atanh z is a short odd series.
template <int N>
struct LogCentred {
    static constexpr std::int64_t least = std::bit_cast<std::int64_t>(0x1.6a09e667f3bcdp-1);  // sqrt(1/2)

    QORL_INLINE explicit LogCentred(Pack<double, N> x) : t(bits(x) - (least - (std::int64_t{1025} << 52))) {}

    QORL_INLINE Pack<double, N> mantissa() const {
        constexpr std::int64_t mantissa_bits = 0x000FFFFFFFFFFFFF;
        return real((t & mantissa_bits) + least);
    }
    QORL_INLINE Pack<double, N> exponent() const {
        return real(shift_right(t, 52) | std::bit_cast<std::int64_t>(0x1p52)) - Pack<double, N>(0x1p52 + 1025);
    }
    // 2^-e
    QORL_INLINE Pack<double, N> inverse_scale() const {
        constexpr auto exponent_bits = static_cast<std::int64_t>(0xFFF0000000000000);
        constexpr auto sum = static_cast<std::int64_t>(std::uint64_t{1023 + 1025} << 52);
        return real(Pack<std::int64_t, N>(sum) - (t & exponent_bits));
    }
    // What is not positive and normal, and the numbers with e = 1023: t as a signed number is below that of the least
    // normal number, for it passes the top at e = 1023 and comes round behind the negative numbers.
    QORL_INLINE Mask<double, N> special() const {
        constexpr std::int64_t normal = std::bit_cast<std::int64_t>(0x1p-1022) - (least - (std::int64_t{1025} << 52));
        return int_greater(Pack<std::int64_t, N>(normal), t);
    }

    Pack<std::int64_t, N> t;  // the bits of x counted from sqrt(1/2), with 1025 added to the exponent
};

}  // namespace qorl

#endif
