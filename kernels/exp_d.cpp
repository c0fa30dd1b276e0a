// e^x, double precision.
//
// Method   x = N ln2/M + r, |r| <= ln2/(2 M); e^x = 2^(N div M) T (1 + q(r)), T = 2^((N mod M)/M) from a table.
//          HA: M = 64, T in two words, ln2/M in two words, q of degree 5. LA: M = 1024, ln2/M in two words, degree 3.
//          EP: M = 128, ln2/M in one word, degree 2. The exponent is added as an integer into the bits of the result.
// Range    the bodies take |x| <= 708.396, where the result is normal; the rest goes to the scalar function.
//          e^-inf = 0, e^inf = inf; overflow (3) above 709.7827128933840, denormal or zero results raise underflow (4).
// Error    HA 0.5 ulp of the last addition + 2^-8 for the sum before it; LA the roundings of T, 1 + q and the product;
//          EP |x| 2^-53 from the one-word reduction, 2^-28 from the polynomial. Measured: docs/accuracy.md.
// Source   P. T. P. Tang, Table-driven implementation of the exponential function, ACM TOMS 15(2), 1989; the shift that
//          rounds and leaves N in the low bits: J.-M. Muller, Elementary Functions, 3rd ed., section 11.
#include "frame/entry_points.hpp"
#include "frame/poly.hpp"
#include "kernels/exp_scalar.hpp"

namespace qorl {
namespace {

constexpr double fast_bound = 0x1.6232affffffffp+9;        // 708.396; false alarms above it are harmless
constexpr double overflow_bound = 0x1.62e42fefa39efp+9;    // the largest x with a finite result
constexpr double underflow_bound = -0x1.74910d52d3051p+9;  // the least x with a result above zero
constexpr double denormal_bound = -0x1.6232bdd7abcd2p+9;   // below it the result is denormal

[[gnu::noinline]] int exp_scalar(double x, double *y) {
    const std::int64_t exponent = (std::bit_cast<std::int64_t>(x) >> 52) & 0x7FF;
    if (exponent == 0x7FF) {
        *y = x == -std::numeric_limits<double>::infinity() ? 0.0 : x * x;
        return 0;
    }
    if (exponent < 1023 - 52) {
        *y = x + 1.0;
        return 0;
    }
    if (x > overflow_bound) {
        *y = std::numeric_limits<double>::infinity();
        return 3;
    }
    if (x < underflow_bound) {
        *y = 0.0;
        return 4;
    }
    const ExpParts e = exp_parts(x);
    if (x < denormal_bound) {
        *y = assemble_denormal(e);
        return 4;
    }
    *y = assemble(e);
    return 0;
}

template <Level L>
struct Exp : OneResult<double> {
    static constexpr int packs = 2;

    template <int N>
    QORL_INLINE static Pack<double, N> body(Pack<double, N> x) {
        using P = Pack<double, N>;
        using namespace tables;
        const P shift(round_shift);
        if constexpr (L == Level::HA) {
            const P n = fma(x, P(exp_64_per_ln2), shift) - shift;
            // r = x - n ln2/64, the first product exact
            const P r = fnma(n, P(exp_ln2_64_lo), fnma(n, P(exp_ln2_64_hi), x));
            // 16 n stands in the low bits of u: the byte offset of a pair, and the exponent ten bits up
            const auto u = bits(n + P(0x1.8p48));
            P t, t_lo;
            lookup_pair(exp2_pairs_64, u & 0x3F0, t, t_lo);
            const P q = fma(r * r, horner(r, exp_ha_poly), r);
            const P result = t + fma(q, t, t_lo);
            return real(bits(result) + (shift_left(u, 42) & std::int64_t(0xFFF0000000000000)));
        } else if constexpr (L == Level::LA) {
            const P shifted = fma(x, P(exp_1024_per_ln2), shift);
            const P n = shifted - shift;
            const P r = fnma(n, P(exp_ln2_1024_lo), fnma(n, P(exp_ln2_1024_hi), x));
            const P t = lookup(exp2_1024, bits(shifted) & 0x3FF);
            const P result = t * horner(r, exp_la_poly);
            return real(bits(result) + (shift_left(bits(shifted), 42) & std::int64_t(0xFFF0000000000000)));
        } else {
            const P shifted = fma(x, P(exp_128_per_ln2), shift);
            const P r = fnma(shifted - shift, P(exp_ln2_128), x);
            const P t = lookup(exp2_128, bits(shifted) & 0x7F);
            const P result = t * horner(r, exp_ep_poly);
            return real(bits(result) + (shift_left(bits(shifted), 45) & std::int64_t(0xFFF0000000000000)));
        }
    }

    template <int N>
    QORL_INLINE static Mask<double, N> special(Pack<double, N> x) {
        return not_less_equal(abs(x), fast_bound);
    }

    static int scalar(double x, double *y) { return exp_scalar(x, y); }

    template <int N>
    static Mask<double, N> saturate(Pack<double, N> x, Pack<double, N> &y) {
        return saturate_exp(x, y, overflow_bound, underflow_bound);
    }
};

}  // namespace
}  // namespace qorl

QORL_UNARY(d, Exp, LA, qorl::Exp<qorl::Level::LA>);
QORL_UNARY(d, Exp, HA, qorl::Exp<qorl::Level::HA>);
QORL_UNARY(d, Exp, EP, qorl::Exp<qorl::Level::EP>);
