// a^b, single precision: the vector bodies that Pow, Powr and Powx share.
//
// Method   a^b = 2^w, w = b log2 a, a = 2^e m with m around 1.
//          HA, LA: |w| goes up to 128, so that the logarithm needs some ten bits more than the result; it is computed
//          in double precision. Vector permutes by the leading bits of m read the row of one of eight cells: 1/c, of so
//          few bits that r = m/c - 1 is exact as a float, and log2 c. r is widened, log2 a = (e + log2 c) + r P(r), |r|
//          <= 0.061, P of degree 6 (HA) or 5. The cell of 1 has c = 1, which keeps the logarithm relatively exact.
//          (Steps of 2^-10 by an estimate of 1/m would save four terms of P, but a table in memory is read lane by
//          lane, which costs more than the terms.)
//          A shift, fused with the product by b, rounds w to a multiple of 2^-32. The upper words of the doubles then
//          hold its integer part, the lower ones its fraction, and the rest is in single precision.
//          HA: 2^fraction = T (1 + r ln2 + (r^2 q(r) + Tlo)), T + T Tlo = 2^(j/8), as in kernels/exp2_s.cpp. LA: w is
//          cut to the nearest integer, 2^f is one polynomial of degree 5.
//          EP: single precision throughout, log2 m and 2^f by polynomials of degree 7 and 3.
// Range    a positive, normal and finite, and |w| below 125 at least, so that the result is normal; the rest goes to
//          the scalar functions. Infinite and NaN b show in w: for a = 1 it is NaN.
// Error    HA 0.5 ulp of the last step and 0.03 of the sum before it; 0.015 from the logarithm, whose 2^-37 grow by a
//          factor of 1.7 beside the cell of 1; 0.002 from the rounding of w. Powers that are floats come out exact. LA
//          0.5 ulp of the last step and 0.4 of the one before, 1.8 from the 2^-23.1 of 2^f just below a power of two,
//          and 0.6 from the logarithm. EP 2^-13.3 each from 2^f and from 2^-19.8 of the logarithm, which counts 87
//          times. Measured: docs/accuracy.md.
// Source   P. T. P. Tang, Table-driven implementation of the logarithm function, ACM TOMS 16(4), 1990, and of the
//          exponential function, ACM TOMS 15(2), 1989.
#ifndef QORL_KERNELS_POW_S_HPP
#define QORL_KERNELS_POW_S_HPP

#include <bit>
#include <limits>

#include "frame/kernel.hpp"
#include "frame/poly.hpp"
#include "kernels/pow_scalar.hpp"
#include "kernels/tables/exp_s.hpp"
#include "kernels/tables/pow_s.hpp"

namespace qorl {

template <Level L>
struct PowBodyS : TwoInputs<float> {
    static constexpr int packs = L == Level::EP ? 2 : 4;

    template <int N>
    QORL_INLINE static Pack<float, N> body(Pack<float, N> a, Pack<float, N> b) {
        using P = Pack<float, N>;
        using namespace tables;
        if constexpr (L == Level::EP) {
            const P w = power(a, b), shift(pow_s_ep_shift), shifted = w + shift, f = w - (shifted - shift);
            return real(bits(horner(f, pow_s_ep_exp2)) + shift_left(bits(shifted), 23));
        } else {
            const auto w = power(a, b);
            const auto fraction = low_words(w), exponent = shift_left(high_words(w), 23);
            if constexpr (L == Level::HA) {
                // the fraction is j/8 + r + 1/16, to which power() has added the 1/16
                const auto j = shift_right(fraction, 29);
                const P r = to_float((fraction & eighth_mask) - half_eighth) * P(pow_s_fraction_unit);
                const P s = real(bits(lookup8(pow_s_eighths, j)) + exponent), low = lookup8(exp2_eighths_lo, j);
                const P p = fma(r, P(exp2_s_slope), fma(r * r, horner(r, exp2_s_poly), low));
                return fma(s, p, s);
            } else {
                // f + 1/2, less the half by a change of the highest bit's meaning
                const P f = to_float(fraction ^ sign_bit) * P(pow_s_fraction_unit);
                return real(bits(horner(f, pow_s_la_exp2)) + exponent);
            }
        }
    }

    template <int N>
    QORL_INLINE static Mask<float, N> special(Pack<float, N> a, Pack<float, N> b) {
        using I = Pack<std::int32_t, N>;
        // Ranges of integers are moved to the upper end of all: the bits of positive normal numbers,
        const auto not_normal = int_greater(I(top - (infinity - 1 - least)), bits(a) + I(top - (infinity - 1)));
        if constexpr (L == Level::EP) {
            return not_normal | not_less_equal(abs(power(a, b)), tables::pow_s_ep_bound);
        } else {
            // and the upper words whose integer part is between these ends.
            constexpr std::int32_t zero = high_word(tables::pow_s_shift), lowest = zero - 125, highest = zero + 127;
            return not_normal | int_greater(I(top - (highest - lowest)), high_words(power(a, b)) + I(top - highest));
        }
    }

    // Pow's; Powr has its own.
    static int scalar(float a, float b, float *y) { return pow_scalar(a, b, y); }

  private:
    static constexpr std::int32_t top = std::numeric_limits<std::int32_t>::max();
    static constexpr std::int32_t sign_bit = std::numeric_limits<std::int32_t>::min();
    static constexpr std::int32_t least = std::bit_cast<std::int32_t>(std::numeric_limits<float>::min());
    static constexpr std::int32_t infinity = std::bit_cast<std::int32_t>(std::numeric_limits<float>::infinity());
    static constexpr std::int32_t exponent_mask = infinity | sign_bit;
    static constexpr std::int32_t eighth_mask = 0x1FFFFFFF, half_eighth = 0x10000000;

    static constexpr std::int32_t high_word(double x) {
        return static_cast<std::int32_t>(std::bit_cast<std::int64_t>(x) >> 32);
    }
    template <int Shift>
    static constexpr std::array<std::int32_t, 8> words_of(const std::array<double, 8> &table) {
        std::array<std::int32_t, 8> words{};
        for (std::size_t j = 0; j < 8; ++j)
            words[j] = static_cast<std::int32_t>(std::bit_cast<std::int64_t>(table[j]) >> Shift);
        return words;
    }
    static constexpr auto logarithms_low = words_of<0>(tables::pow_s_logarithms);
    static constexpr auto logarithms_high = words_of<32>(tables::pow_s_logarithms);

    // w = b log2 a; at HA and LA the shift and the rounding offset are added to it, and it stands in the order of
    // join_words.
    template <int N>
    QORL_INLINE static auto power(Pack<float, N> a, Pack<float, N> b) {
        using P = Pack<float, N>;
        using I = Pack<std::int32_t, N>;
        using namespace tables;
        constexpr float first = L == Level::EP ? pow_s_ep_first : pow_s_first;
        const I i = bits(a) - bits(P(first)), e = i & exponent_mask;  // e 2^23
        const P m = real(bits(a) - e);
        if constexpr (L == Level::EP) {
            const P f = m - P(1);
            return b * fma(f, horner(f, pow_s_ep_log2), to_float(shift_right_signed(e, 23)));
        } else {
            using D = Pack<double, 2 * N>;
            const I cell = shift_right(i, 20);
            const P r = fms(m, lookup8(pow_s_reciprocals, cell), P(1));
            // e + log2 c + bias, which stays in [256, 512): there 1 is bit 12 of the upper word
            const I high = lookup8(logarithms_high, cell) + shift_right_signed(e, 23 - 12);
            const D biased = join_words(lookup8(logarithms_low, cell), high), x = widen_as_joined(r);
            D ratio;
            if constexpr (L == Level::HA)
                ratio = horner(x, pow_s_ha_log2);
            else
                ratio = horner(x, pow_s_la_log2);
            const D log2_a = fma(x, ratio, biased - D(pow_s_bias));
            return fma(widen_as_joined(b), log2_a, D(pow_s_shift + (L == Level::HA ? pow_s_ha_round : pow_s_la_round)));
        }
    }
};

}  // namespace qorl

#endif
