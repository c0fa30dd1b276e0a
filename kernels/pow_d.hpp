// a^b, double precision: the vector bodies that Pow, Powr and Powx share.
//
// Method   a^b = 2^(b log2 a). HA, LA: log2 a = e + log2 c + log2(1 + u) in two words, m = c (1 + u) the mantissa of a;
//          b log2 a = n + f by fused steps, n a multiple of 1/128 (HA) or 1/256 (LA); 2^n from a table and by adding
//          its integer part to the exponent of the result, 2^f by a short polynomial. The logarithm by an estimate of
//          1/m and the rows of log2(1024/R) (HA), or by rows of 1/c and log2 c (LA), 512 of them, so that 1/c is short
//          enough for an exact u = m/c - 1 and one term of the polynomial is saved. EP: b ln a in one word, 2048 steps
//          for e^x.
// Range    positive normal a (LA: below 2^1023 sqrt 2), and b with |n| <= 1021.5 (|b ln a| <= 708 at EP), so that the
//          result is normal. Every other pair, NaN and infinities among them, goes to the scalar function.
// Error    next to 1 too the logarithm must be relatively exact, as b may be as large as 1022 / log2 a: its error comes
//          back 708 times in the result. c = 1 on both sides of 1 (HA, EP: R = 512 with e = -1, R = 1024 with e = 0),
//          so that its words cancel or are zeros. HA: 2^-68 of roundings and fit in the logarithm, that is 0.02 ulp,
//          2^-8 ulp for the words of 2^n 2^f, 0.5 for the last sum, for any estimate that log_reduce.hpp admits. LA:
//          the second word may be 2^-10 of the first, its roundings 0.4 ulp each, the fit 0.4; 0.35 for f, which is up
//          to 1/2 away from 0 before the second word is added, 0.5 each for 2^n and the sum. EP: 2^-30.5 from
//          roundings and the fit at the poorest estimate. Measured: docs/accuracy.md.
// Source   P. T. P. Tang, ACM TOMS 15(2), 1989, and 16(4), 1990; S. Gal and B. Bachelis, ACM TOMS 17(1), 1991; the sums
//          and products of two words: T. J. Dekker, Numer. Math. 18, 1971.
#ifndef QORL_KERNELS_POW_D_HPP
#define QORL_KERNELS_POW_D_HPP

#include "frame/kernel.hpp"
#include "frame/poly.hpp"
#include "kernels/log_reduce.hpp"
#include "kernels/pow_scalar.hpp"
#include "kernels/tables/pow_d.hpp"

namespace qorl {

template <Level L>
struct PowBody : TwoInputs<double> {
    static constexpr int packs = L == Level::LA ? 2 : 4;

    template <int N>
    QORL_INLINE static Pack<double, N> body(Pack<double, N> a, Pack<double, N> b) {
        using P = Pack<double, N>;
        using namespace tables;
        constexpr std::int64_t whole = 0xFFF0000000000000;  // where the integer part of n comes to stand
        if constexpr (L == Level::HA) {
            const Split<P> w = split(a, b);
            P t, t_low;
            lookup_pair(pow_exp2_pairs, shift_left(bits(w.shifted), 4) & 0x7F0, t, t_low);
            const P q = w.f * horner(w.f, pow_exp2_poly);
            return real(bits(t + fma(q, t, t_low)) + (shift_left(bits(w.shifted), 45) & whole));
        } else if constexpr (L == Level::LA) {
            const Split<P> w = split(a, b);
            const P t = lookup(pow_exp2_256, bits(w.shifted) & 0xFF);
            const P q = w.f * horner(w.f, pow_la_exp2_poly);
            return real(bits(fma(q, t, t)) + (shift_left(bits(w.shifted), 44) & whole));
        } else {
            const P w = product(a, b);
            const P shifted = fma(w, P(pow_2048_per_ln2), P(round_shift));
            const P r = fnma(shifted - P(round_shift), P(pow_ln2_2048), w);
            const P t = lookup(pow_exp2_2048, bits(shifted) & 0x7FF);
            return real(bits(t * horner(r, pow_ep_exp_poly)) + (shift_left(bits(shifted), 41) & whole));
        }
    }

    template <int N>
    QORL_INLINE static Mask<double, N> special(Pack<double, N> a, Pack<double, N> b) {
        if constexpr (L == Level::LA) {
            // Places are those of the normal numbers up to 2^1023 sqrt 2 or so, then negative ones, and behind the
            // negative numbers they have come round to places below the least normal number.
            const Pack<std::int64_t, N> least(std::bit_cast<std::int64_t>(0x1p-1022) - la_first);
            return int_greater(least, la_place(a)) | not_less_equal(abs(split(a, b).n), pow_bound);
        } else {
            // The bits of a less those of the least normal number, in the order of unsigned numbers by 2^63.
            constexpr std::int64_t shift = 0x7FF0000000000000, last = std::bit_cast<std::int64_t>(0xFFDFFFFFFFFFFFFF);
            const auto not_normal = int_greater(bits(a) + shift, last);
            if constexpr (L == Level::HA)
                return not_normal | not_less_equal(abs(split(a, b).n), pow_bound);
            else
                return not_normal | not_less_equal(abs(product(a, b)), pow_ep_bound);
        }
    }

    // Pow's; Powr has its own.
    static int scalar(double a, double b, double *y) { return pow_scalar(a, b, y); }

  private:
    static constexpr double pow_bound = 1021.5, pow_ep_bound = 708;

    // The exponent field less its bias.
    template <int N>
    QORL_INLINE static Pack<double, N> exponent(Pack<std::int64_t, N> x, int bias) {
        return real(shift_right(x, 52) | std::bit_cast<std::int64_t>(0x1p52)) - Pack<double, N>(0x1p52 + bias);
    }

    // The bits of a counted from pow_la_least, with 1024 added to the exponent so that they are positive.
    template <int N>
    QORL_INLINE static Pack<std::int64_t, N> la_place(Pack<double, N> a) {
        return bits(a) - la_first;
    }
    static constexpr std::int64_t la_first =
        std::bit_cast<std::int64_t>(tables::pow_la_least) - (std::int64_t{1024} << 52);

    // log2 a at HA and LA.
    template <int N>
    QORL_INLINE static TwoWords<Pack<double, N>> log2(Pack<double, N> a) {
        using P = Pack<double, N>;
        using namespace tables;
        P t, t_low;
        if constexpr (L == Level::HA) {
            const LogReduced<N> x = log_reduce(a);
            RowLookup<N, log_row_bias>(pow_log2_pairs, x.row()).pair(0, t, t_low);
            return add_log2(exponent(bits(a), 1023) + t, t_low, x.u);
        } else {
            constexpr std::int64_t mantissa_bits = 0x000FFFFFFFFFFFFF;
            const auto place = la_place(a);
            const RowLookup<N, 0> row(pow_la_rows, shift_right(place, 38) & 0x3FE0);
            P inverse, zero;
            row.pair(0, inverse, t);
            row.pair(2, t_low, zero);
            const P m = real((place & mantissa_bits) + std::bit_cast<std::int64_t>(pow_la_least));
            const P u = fms(m, inverse, P(1)), s = exponent(place, 1024) + t;
            // s - sum is exact for every row, as the program that writes them makes sure: the fused step leaves the
            // error of the sum.
            const P sum = fma(u, P(pow_log2_e), s);
            const P error = fma(u, P(pow_log2_e), s - sum) + t_low;
            return {sum, fma(u, horner(u, pow_la_log2_poly), error)};
        }
    }

    // b log2 a at HA and LA.
    template <int N>
    QORL_INLINE static Split<Pack<double, N>> split(Pack<double, N> a, Pack<double, N> b) {
        using P = Pack<double, N>;
        const TwoWords<P> log = log2(a);
        if constexpr (L == Level::HA)
            return multiply(log, b, log.high, P(pow_shift));
        else
            return multiply(log, b, log.high + log.low, P(pow_la_shift));
    }

    // b ln a at EP.
    template <int N>
    QORL_INLINE static Pack<double, N> product(Pack<double, N> a, Pack<double, N> b) {
        using P = Pack<double, N>;
        using namespace tables;
        const LogReduced<N> x = log_reduce(a);
        // One word will do without centring the mantissa on 1: at R = 512 and e = -1 the two terms cancel exactly, and
        // beside it the result is 2^-11 of them.
        const P s = fma(exponent(bits(a), 1023), P(pow_ln2), lookup(pow_logs, shift_right(bits(x.r), 43) & 0x3FF));
        return b * fma(x.u, horner(x.u, pow_ep_ln_poly), s);
    }
};

}  // namespace qorl

#endif
