// 2^x and 10^x, single precision, each one kernel for all levels.
//
// Method   x = N/8 log_b 2 + r; b^x = 2^(N div 8) T p(r), T = 2^((N mod 8)/8) in two words that vector permutes select,
//          p of degree 4. (A table of 64 or 128 floats would save half of p, but reading it lane by lane costs more
//          than this whole body.) For 2^x the reduction is exact: the shift rounds x to a multiple of 1/8. For 10^x
//          N times the first word of log10(2)/8 is taken from x, exactly; N times the second word joins the low word
//          of T in one small relative correction w. p(r) (1 + w) - 1 = r ln b + (r^2 q(r) + w p(r)), where only the
//          outer sum rounds at the size of r. The exponent is added as in kernels/exp_s.cpp.
// Range    the bodies take |x| <= 126 and |x| <= 37.92978, where the result is normal; the rest goes to the scalar
//          function. b^-inf = 0, b^inf = inf; overflow (3) from 128 on and above 38.531838, denormal or zero results
//          raise underflow (4).
// Error    0.5 ulp of the last step and 0.03 of the sum before it. Powers that are floats come out exact, as the error
//          before the last rounding is below 0.1 ulp. Measured: docs/accuracy.md.
// Source   P. T. P. Tang, Table-driven implementation of the exponential function, ACM TOMS 15(2), 1989.
#include "frame/entry_points.hpp"
#include "frame/poly.hpp"
#include "kernels/exp_scalar_s.hpp"

namespace qorl {
namespace {

// 2^(N/8), N in the low bits of `shifted`, by the high words of the table.
template <int N>
QORL_INLINE Pack<float, N> power_of_eighths(Pack<float, N> shifted) {
    return real(bits(lookup8(tables::exp2_eighths, bits(shifted))) + shift_left(bits(shifted), 20));
}

[[gnu::noinline]] int exp2_scalar(float x, float *y) {
    return exp_scalar_by_double(x, tables::exp_s_ln2, exp2_s_bounds, y);
}
[[gnu::noinline]] int exp10_scalar(float x, float *y) {
    return exp_scalar_by_double(x, tables::exp_s_ln10, exp10_s_bounds, y);
}

struct Exp2 : OneResult<float> {
    static constexpr int packs = 2;

    template <int N>
    QORL_INLINE static Pack<float, N> body(Pack<float, N> x) {
        using P = Pack<float, N>;
        using namespace tables;
        const P shift(exp2_s_shift), shifted = x + shift, r = x - (shifted - shift);
        const P low = lookup8(exp2_eighths_lo, bits(shifted)), s = power_of_eighths(shifted);
        const P p = fma(r, P(exp2_s_slope), fma(r * r, horner(r, exp2_s_poly), low));
        return fma(s, p, s);
    }
    template <int N>
    QORL_INLINE static Mask<float, N> special(Pack<float, N> x) {
        return not_less_equal(abs(x), tables::exp2_s_fast_bound);
    }
    static int scalar(float x, float *y) { return exp2_scalar(x, y); }
};

struct Exp10 : OneResult<float> {
    static constexpr int packs = 2;

    template <int N>
    QORL_INLINE static Pack<float, N> body(Pack<float, N> x) {
        using P = Pack<float, N>;
        using namespace tables;
        const P shift(exp_s_shift), shifted = fma(x, P(exp_s_per_lg2_8), shift), n = shifted - shift;
        const P r = fnma(n, P(exp_s_lg2_8_hi), x);
        const P w = fnma(n, P(exp_s_lg2_8_lo), lookup8(exp2_eighths_lo, bits(shifted)));
        const P s = power_of_eighths(shifted), slope(exp10_s_slope);
        const P q = r * r * horner(r, exp10_s_poly);
        const P p = fma(r, slope, q + fma(w, fma(r, slope, q), w));
        return fma(s, p, s);
    }
    template <int N>
    QORL_INLINE static Mask<float, N> special(Pack<float, N> x) {
        return not_less_equal(abs(x), tables::exp10_s_fast_bound);
    }
    static int scalar(float x, float *y) { return exp10_scalar(x, y); }
};

}  // namespace
}  // namespace qorl

QORL_UNARY(s, Exp2, LA, qorl::Exp2);
QORL_UNARY(s, Exp10, LA, qorl::Exp10);
