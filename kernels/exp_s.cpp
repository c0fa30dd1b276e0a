// e^x, single precision.
//
// Method   x = N ln2/M + r, |r| <= ln2/(2 M); e^x = 2^(N div M) T p(r), T = 2^((N mod M)/M), p a polynomial.
//          N times the first word of ln2/M and the difference from x are exact in one fused step, as every x with
//          N /= 0 is a multiple of the last place that r can have. The exponent is added as an integer: the shifted N
//          moves to the left as it is, since the bits of the shift itself leave the word.
//          HA: M = 8, T in two words that vector permutes select, the bits of the high ones less j 2^20, so that the
//          index needs no mask; p of degree 4. r is never rounded: N times the second word of ln2/8 joins the low word
//          of T in one small relative correction w, and p(r) (1 + w) - 1 = r + (r^2 q(r) + (w + w r)). M = 8 rather
//          than 4: below a power of two the roundings at the size of r count double, 0.06 ulp each with M = 4.
//          LA: M = 1, no table, ln2 in two words, p of degree 5. EP: ln2 in one word, p of degree 3.
// Range    the bodies take |x| <= 87.33654, where the result is normal; the rest goes to the scalar function.
//          e^-inf = 0, e^inf = inf; overflow (3) above 88.722832, denormal or zero results raise underflow (4).
// Error    HA 0.5 ulp of the last step and 0.03 of the sum with r before it. LA 2^-23.3 of p, doubled below a power of
//          two, and the roundings of r and of the last two steps. EP 2^-13.2 of p. Measured: docs/accuracy.md.
// Source   P. T. P. Tang, Table-driven implementation of the exponential function, ACM TOMS 15(2), 1989; the shift that
//          rounds and leaves N in the low bits: J.-M. Muller, Elementary Functions, 3rd ed., section 11.
#include "frame/entry_points.hpp"
#include "frame/poly.hpp"
#include "kernels/exp_scalar_s.hpp"

namespace qorl {
namespace {

[[gnu::noinline]] int exp_scalar_ha(float x, float *y) {
    return exp_scalar_by_double(x, 1.0, exp_s_bounds, y);
}

inline float power_of_two_s(int k) {  // for a normal result
    return std::bit_cast<float>((k + 127) << 23);
}

// For LA and EP: the LA body for one float, the power of two multiplied where it could not be added.
[[gnu::noinline]] int exp_scalar_la(float x, float *y) {
    using namespace tables;
    int status;
    if (exp_limits(x, exp_s_bounds, y, &status)) return status;
    const float n = std::fma(x, exp_s_per_ln2, exp_s_shift) - exp_s_shift;
    const float r = std::fma(-n, exp_s_ln2_lo, std::fma(-n, exp_s_ln2_hi, x));
    const float p = horner(r, exp_s_la_poly);
    const int k = static_cast<int>(n);
    if (x < exp_s_denormal_bound) {
        *y = p * power_of_two_s(k + 60) * power_of_two_s(-60);
        return 4;
    }
    *y = k <= 127 ? p * power_of_two_s(k) : p * power_of_two_s(k - 1) * 2;
    return 0;
}

template <Level L>
struct Exp : OneResult<float> {
    static constexpr int packs = 2;

    template <int N>
    QORL_INLINE static Pack<float, N> body(Pack<float, N> x) {
        using P = Pack<float, N>;
        using namespace tables;
        const P shift(exp_s_shift);
        if constexpr (L == Level::HA) {
            const P shifted = fma(x, P(exp_s_per_ln2_8), shift);
            const P n = shifted - shift;
            const P r = fnma(n, P(exp_s_ln2_8_hi), x);
            const P w = fnma(n, P(exp_s_ln2_8_lo), lookup8(exp2_eighths_lo, bits(shifted)));
            const P s = real(bits(lookup8(exp2_eighths, bits(shifted))) + shift_left(bits(shifted), 20));
            const P p = r + fma(r * r, horner(r, exp_s_ha_poly), fma(w, r, w));
            return fma(p, s, s);
        } else {
            const P shifted = fma(x, P(exp_s_per_ln2), shift);
            const P n = shifted - shift;
            P r = fnma(n, P(exp_s_ln2_hi), x), p;
            if constexpr (L == Level::LA) {
                r = fnma(n, P(exp_s_ln2_lo), r);
                p = horner(r, exp_s_la_poly);
            } else {
                p = horner(r, exp_s_ep_poly);
            }
            return real(bits(p) + shift_left(bits(shifted), 23));
        }
    }

    template <int N>
    QORL_INLINE static Mask<float, N> special(Pack<float, N> x) {
        return not_less_equal(abs(x), tables::exp_s_fast_bound);
    }

    static int scalar(float x, float *y) { return L == Level::HA ? exp_scalar_ha(x, y) : exp_scalar_la(x, y); }

    template <int N>
    static Mask<float, N> saturate(Pack<float, N> x, Pack<float, N> &y) {
        return saturate_exp(x, y, exp_s_bounds.overflow, exp_s_bounds.underflow);
    }
};

}  // namespace
}  // namespace qorl

QORL_UNARY(s, Exp, LA, qorl::Exp<qorl::Level::LA>);
QORL_UNARY(s, Exp, HA, qorl::Exp<qorl::Level::HA>);
QORL_UNARY(s, Exp, EP, qorl::Exp<qorl::Level::EP>);
