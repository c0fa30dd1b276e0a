// e^x - 1, double precision.
//
// Method   e^x - 1 = (S - 1) + S (e^r - 1), S a power of two or of its root. With S = 1 the first term is zero and the
//          second r + r^2 p(r) with r = x, so that small and denormal x and the sign of zero need no care but one:
//          zeros are subtracted, never added. LA: x = N ln2/64 + r, S = 2^(N/64) in two words from the table of Exp.
//          EP: 128 steps, one word each. HA: whole octaves and no table, since the reads and the error of S - 1 cost
//          more than the longer polynomial: x = N ln2 + r, S - 1 is exact but for the 1 itself beyond 2^53, S r is
//          exact, and the error of their sum is kept. The ends of r are moved upwards, away from the cancellation of 1
//          and 2 r.
// Range    the bodies take |x| <= 707.703; the rest goes to the scalar function. Overflow raises 3 above 709.7827.
// Error    HA 0.5 ulp of the last addition; at S = 2, r = -0.288, where it is worst, 0.26 more from the roundings of r
//          and q. LA in units next to 0: 0.5 each of r, e^r - 1, 1 - S and the result. EP next to 0 2^-32 from the
//          polynomial. Measured: docs/accuracy.md.
// Source   P. T. P. Tang, Table-driven implementation of the expm1 function, ACM TOMS 18(2), 1992; the error of a sum:
//          D. E. Knuth, The Art of Computer Programming, vol. 2, section 4.2.2.
#include "kernels/tables/expm1_d.hpp"
#include "frame/entry_points.hpp"
#include "frame/poly.hpp"
#include "kernels/exp_scalar.hpp"

namespace qorl {
namespace {

constexpr double fast_bound = 0x1.61da04cbafe43p+9;      // 707.703; false alarms above it are harmless
constexpr double overflow_bound = 0x1.62e42fefa39efp+9;  // the largest x with a finite result
constexpr std::int64_t exponent_field = 0x7FF0000000000000;

[[gnu::noinline]] int expm1_scalar(double x, double *y) {
    if (x < 0.0) {
        *y = -1.0;
        return 0;
    }
    if (!std::isfinite(x)) {
        *y = x * x;
        return 0;
    }
    if (x > overflow_bound) {
        *y = std::numeric_limits<double>::infinity();
        return 3;
    }
    *y = assemble(exp_parts(x));  // 1 is nothing against it
    return 0;
}

template <Level L>
struct Expm1 : OneResult<double> {
    static constexpr int packs = 2;

    template <int N>
    QORL_INLINE static Pack<double, N> body(Pack<double, N> x) {
        using P = Pack<double, N>;
        using namespace tables;
        if constexpr (L == Level::EP) {
            // The low bits of shifted hold n and the exponent bias, so that they become 2^(n div 128) by a shift.
            const P shifted = fma(x, P(exp_128_per_ln2), P(expm1_ep_shift));
            const P r = fnma(shifted - P(expm1_ep_shift), P(exp_ln2_128), x);
            const P s = lookup(exp2_128, bits(shifted) & 0x7F) * real(shift_left(bits(shifted), 45) & exponent_field);
            const P q = r * fma(r, horner(r, expm1_ep_poly), P(1));
            return fms(s, q, P(1) - s);
        } else if constexpr (L == Level::LA) {
            const P shifted = fma(x, P(exp_64_per_ln2), P(expm1_shift));
            const P n = shifted - P(expm1_shift);
            const P r = fnma(n, P(exp_ln2_64_lo), fnma(n, P(exp_ln2_64_hi), x));
            P t, t_low;
            lookup_pair(exp2_pairs_64, shift_left(bits(shifted), 4) & 0x3F0, t, t_low);
            const P scale = real(shift_left(bits(shifted), 46) & exponent_field);
            const P q = r * fma(r, horner(r, expm1_poly), P(1));
            return fms(t * scale, q, fnma(t_low, scale, fnma(t, scale, P(1))));
        } else {
            const P shifted = fma(x - P(expm1_offset), P(expm1_per_ln2), P(expm1_ha_shift));
            const P n = shifted - P(expm1_ha_shift);
            const P r_high = fnma(n, P(expm1_ln2_hi), x);  // exact
            const P r_low = n * P(expm1_ln2_lo), r = r_high - r_low;
            const P s = real(shift_left(bits(shifted), 52));
            // 1 - s, and its error where s is above 2^53
            const P one_minus_s = P(1) - s, error = P(1) - (s + one_minus_s);
            // s r_high - (1 - s) and its error; s r_high is exact, and smaller than 1 - s but where that is zero
            const P sum = fms(s, r_high, one_minus_s), sum_error = fms(s, r_high, sum + one_minus_s);
            // e^r - 1 = r_high + q; the square is fused, so that its rounding does not count
            const P q = fma(r, P(0.5) * r, fms(r * r * r, even_odd(r, expm1_ha_poly), r_low));
            return sum - (error - fma(s, q, sum_error));
        }
    }

    template <int N>
    QORL_INLINE static Mask<double, N> special(Pack<double, N> x) {
        return not_less_equal(abs(x), fast_bound);
    }

    static int scalar(double x, double *y) { return expm1_scalar(x, y); }
};

}  // namespace
}  // namespace qorl

QORL_UNARY(d, Expm1, LA, qorl::Expm1<qorl::Level::LA>);
QORL_UNARY(d, Expm1, HA, qorl::Expm1<qorl::Level::HA>);
QORL_UNARY(d, Expm1, EP, qorl::Expm1<qorl::Level::EP>);
