// e^x - 1, double precision.
//
// Method   x = N ln2/M + r, |r| <= ln2/(2 M), S = 2^(N/M) from a table and the exponent; e^x - 1 = (S - 1) + S (e^r -
// 1),
//          e^r - 1 = r + r^2 p(r). With N = 0 the first term is zero and the second x + x^2 p(x), so that small and
//          denormal x and the sign of zero need no care but one: zeros are subtracted, never added.
//          LA, HA: M = 64, S in two words. (The step is wider and the polynomial one degree higher than with 128
//          entries, so that the table is that of Exp.) Next to 0, where S - 1 cancels, HA keeps every rounding error
//          that is not small against the result: r = rh - rl, the errors of 1 - S, S rh and their sum.
//          EP: M = 128, S in one word, ln2/M in one word.
// Range    the bodies take |x| <= 707.703; the rest goes to the scalar function. Overflow raises 3 above 709.7827.
// Error    HA 0.5 ulp of the last subtraction + 2^-7 for its second term. LA in units next to 0: 0.5 each of r, e^r -
// 1,
//          1 - S and the result. EP next to 0 2^-32 from the polynomial. Measured: docs/accuracy.md.
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
    static Pack<double, N> body(Pack<double, N> x) {
        using P = Pack<double, N>;
        using namespace tables;
        if constexpr (L == Level::EP) {
            // The low bits of shifted hold n and the exponent bias, so that they become 2^(n div 128) by a shift.
            const P shifted = fma(x, P(exp_128_per_ln2), P(expm1_ep_shift));
            const P r = fnma(shifted - P(expm1_ep_shift), P(exp_ln2_128), x);
            const P s = lookup(exp2_128, bits(shifted) & 0x7F) * real(shift_left(bits(shifted), 45) & exponent_field);
            const P q = r * fma(r, horner(r, expm1_ep_poly), P(1));
            return fms(s, q, P(1) - s);
        } else {
            const P shifted = fma(x, P(exp_64_per_ln2), P(expm1_shift));
            const P n = shifted - P(expm1_shift);
            const P r_high = fnma(n, P(exp_ln2_64_hi), x);  // exact
            P t, t_low;
            lookup_pair(exp2_pairs_64, shift_left(bits(shifted), 4) & 0x3F0, t, t_low);
            const P scale = real(shift_left(bits(shifted), 46) & exponent_field);
            const P s = t * scale, one_minus_s = P(1) - s;
            if constexpr (L == Level::LA) {
                const P r = fnma(n, P(exp_ln2_64_lo), r_high);
                const P q = r * fma(r, horner(r, expm1_poly), P(1));
                return fms(s, q, fnma(t_low, scale, one_minus_s));
            } else {
                // e^r - 1 = r_high + q
                const P r_low = n * P(exp_ln2_64_lo), r = r_high - r_low;
                const P q = fms(r * r, horner(r, expm1_poly), r_low);
                // 1 - s = one_minus_s + error, s r_high = product - product_error
                const P minus_s = one_minus_s - P(1);
                const P error = (P(1) - (one_minus_s - minus_s)) - (s + minus_s);
                const P product = s * r_high, product_error = fnma(s, r_high, product);
                // The result is product - one_minus_s with all that was left out subtracted last.
                const P sum = product - one_minus_s, sum_error = (sum + one_minus_s) - product;
                const P s_low = t_low * scale, rest = fma(s, q, fma(s_low, r, s_low));
                return sum - (sum_error + (product_error + (error - rest)));
            }
        }
    }

    template <int N>
    static Mask<double, N> special(Pack<double, N> x) {
        return not_less_equal(abs(x), fast_bound);
    }

    static int scalar(double x, double *y) { return expm1_scalar(x, y); }
};

}  // namespace
}  // namespace qorl

QORL_UNARY(d, Expm1, LA, qorl::Expm1<qorl::Level::LA>);
QORL_UNARY(d, Expm1, HA, qorl::Expm1<qorl::Level::HA>);
QORL_UNARY(d, Expm1, EP, qorl::Expm1<qorl::Level::EP>);
