// e^x - 1, single precision.
//
// Method   x = N ln2 + r, |r| <= ln2/2; e^x - 1 = 2^N (e^r - 1) + (2^N - 1), e^r - 1 = r + r^2 q(r). No table: 2^N - 1
//          is exact or its rounding is the only one at its size, and for N = 0 nothing is added to the polynomial.
//          LA: ln2 in two words, q of degree 4. EP: ln2 in one word, q of degree 2. HA: r in two words, the higher of
//          them exact, q of degree 5; 2^N r is added to 2^N - 1 with the errors of both sums kept, and all the rest is
//          an eighth of the result or less.
//          e^x - 1 has the sign of x: the sign bit is put in last, for the sake of -0.
// Range    x below -26 ln2 counts as this, whose result rounds to -1. The bodies take x up to where 2^N ends;
//          above it and for NaN the scalar function is called. Overflow (3) above 88.722832.
// Error    HA 0.5 ulp of the last step; next to x = ln2/2, where the result is least against 2^N q, 0.22 more from the
//          roundings of q and of the sum with it. LA 0.5 ulp of the last step, and the roundings of r and of r + r^2 q,
//          which next to x = ln2/2, where 2 (e^r - 1) + 1 cancels, can make 2 ulp more. EP 2^-15.5 of q, twice that at
//          the same place. Measured: docs/accuracy.md.
// Source   P. T. P. Tang, Table-driven implementation of the expm1 function, ACM TOMS 18(2), 1992, without the table;
//          the error of a sum: D. E. Knuth, The Art of Computer Programming, vol. 2, section 4.2.2.
#include "frame/entry_points.hpp"
#include "frame/poly.hpp"
#include "kernels/exp_scalar_s.hpp"

namespace qorl {
namespace {

// For lanes above the range of a body and NaN; there the 1 is far below the last place.
[[gnu::noinline]] int expm1_scalar(float x, float *y) {
    int status;
    if (!exp_limits(x, exp_s_bounds, y, &status)) *y = exp_by_double(static_cast<double>(x));
    return status;
}

template <Level L>
struct Expm1 : OneResult<float> {
    static constexpr int packs = 2;

    template <int N>
    QORL_INLINE static Pack<float, N> body(Pack<float, N> x) {
        using P = Pack<float, N>;
        using namespace tables;
        const P least_x = max(P(expm1_s_least), x);
        P y;
        if constexpr (L == Level::HA) {
            const P shifted = fma(least_x, P(exp_s_per_ln2), P(expm1_s_ha_shift)), n = shifted - P(expm1_s_ha_shift);
            const P r_high = fnma(n, P(exp_s_ln2_hi), least_x);  // exact
            const P r_low = n * P(exp_s_ln2_lo), r = r_high - r_low;
            const P s = real(shift_left(bits(shifted), 23));
            // 1 - s, and its error where s is above 2^24 or below 2^-24
            const P one_minus_s = P(1) - s, error = P(1) - (s + one_minus_s);
            // s r_high - (1 - s) and its error; s r_high is exact, and smaller than 1 - s but where that is zero
            const P sum = fms(s, r_high, one_minus_s), sum_error = fms(s, r_high, sum + one_minus_s);
            // e^r - 1 = r_high + q; the square is fused, so that its rounding does not count
            const P q = fma(r, P(0.5) * r, fms(r * r * r, horner(r, expm1_s_ha_poly), r_low));
            y = sum - (error - fma(s, q, sum_error));
        } else {
            const P shift(exp_s_shift), shifted = fma(least_x, P(exp_s_per_ln2), shift), n = shifted - shift;
            P r = fnma(n, P(exp_s_ln2_hi), least_x), q;
            if constexpr (L == Level::LA) {
                r = fnma(n, P(exp_s_ln2_lo), r);
                q = horner(r, expm1_s_la_poly);
            } else {
                q = horner(r, expm1_s_ep_poly);
            }
            const P p = fma(r * r, q, r);
            const P s = real(shift_left(bits(shifted), 23) + bits(P(1)));
            y = fma(s, p, s - P(1));
        }
        return y | (x & P(-0.0f));
    }

    template <int N>
    QORL_INLINE static Mask<float, N> special(Pack<float, N> x) {
        return not_less_equal(x, tables::expm1_s_fast_bound);
    }

    static int scalar(float x, float *y) { return expm1_scalar(x, y); }
};

}  // namespace
}  // namespace qorl

QORL_UNARY(s, Expm1, LA, qorl::Expm1<qorl::Level::LA>);
QORL_UNARY(s, Expm1, HA, qorl::Expm1<qorl::Level::HA>);
QORL_UNARY(s, Expm1, EP, qorl::Expm1<qorl::Level::EP>);
