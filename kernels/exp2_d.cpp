// 2^x and 10^x, double precision.
//
// Method   b^x = 2^(N div 64) T b^r with T = 2^((N mod 64)/64) in two words from a table.
//          2^x: x = N/64 + r, exact, |r| <= 1/128. 10^x: x = N log10(2)/64 + r, the step in two words.
//          b^r = 1 + q(r), q of degree 5; the result is T + (q T + Tlo), and the exponent is added as an integer into
//          its bits. One kernel serves all levels, so it is made for the strictest: T is a pair, and 10^x takes 64
//          steps an octave in two words like 2^x, which keeps its error below 1 ulp at no cost against 128 steps in one
//          word.
// Range    the bodies take |x| <= 1022 and |x| <= 307.65, where the result is normal; the rest goes to the scalar
//          functions. b^-inf = 0, b^inf = inf; overflow raises 3, denormal or zero results raise 4.
// Error    0.5 ulp of the last addition + 2^-7 for the sum before it and for the polynomial. A representable result
//          is exact, since what is rounded last is nearer to it than half an ulp. Measured: docs/accuracy.md.
// Source   P. T. P. Tang, Table-driven implementation of the exponential function, ACM TOMS 15(2), 1989.
#include "kernels/tables/exp2_d.hpp"
#include "frame/entry_points.hpp"
#include "frame/poly.hpp"
#include "kernels/exp_scalar.hpp"

namespace qorl {
namespace {

// 2^(n/64) (1 + q); n stands in the low bits of u.
template <int N>
QORL_INLINE Pack<double, N> power(Pack<std::int64_t, N> u, Pack<double, N> q) {
    Pack<double, N> t, t_lo;
    lookup_pair(tables::exp2_pairs_64, shift_left(u, 4) & 0x3F0, t, t_lo);
    const Pack<double, N> result = t + fma(q, t, t_lo);
    return real(bits(result) + (shift_left(u, 46) & std::int64_t(0xFFF0000000000000)));
}

// b^x = 2^(n/64) (1 + q) for one x; n stands in the low bits of u, the rest of which are those of shift.
ExpParts parts(double u, double shift, double q) {
    const std::int64_t n = std::bit_cast<std::int64_t>(u) - std::bit_cast<std::int64_t>(shift), j = n & 63;
    return {tables::exp2_pairs_64[2 * j], tables::exp2_pairs_64[2 * j + 1], q, n >> 6};
}

// Where the results of a base end, as the largest x with a finite result, the least x with a result above zero, and the
// least x with a normal one.
struct Bounds {
    double overflow, underflow, denormal;
};

template <class Parts>
QORL_INLINE int power_scalar(double x, double *y, const Bounds &bounds, Parts parts_of) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    if (!std::isfinite(x)) {
        *y = x == -infinity ? 0.0 : x * x;
        return 0;
    }
    if (x > bounds.overflow) {
        *y = infinity;
        return 3;
    }
    if (x < bounds.underflow) {
        *y = 0.0;
        return 4;
    }
    const ExpParts e = parts_of(x);
    *y = x < bounds.denormal ? assemble_denormal(e) : assemble(e);
    return x < bounds.denormal ? 4 : 0;
}

struct Exp2 : OneResult<double> {
    static constexpr int packs = 2;
    static constexpr double fast_bound = 0x1.ffp+9;  // 1022
    static constexpr Bounds bounds{0x1.fffffffffffffp+9, -0x1.0cbffffffffffp+10, -0x1.ffp+9};

    template <int N>
    QORL_INLINE static Pack<double, N> body(Pack<double, N> x) {
        const Pack<double, N> shifted = x + Pack<double, N>(tables::exp2_shift);
        const auto r = x - (shifted - Pack<double, N>(tables::exp2_shift));
        return power(bits(shifted), r * horner(r, tables::exp2_poly));
    }

    template <int N>
    QORL_INLINE static Mask<double, N> special(Pack<double, N> x) {
        return not_less_equal(abs(x), fast_bound);
    }

    [[gnu::noinline]] static int scalar(double x, double *y) {
        return power_scalar(x, y, bounds, [](double a) {
            const double shifted = a + tables::exp2_shift, r = a - (shifted - tables::exp2_shift);
            return parts(shifted, tables::exp2_shift, r * horner(r, tables::exp2_poly));
        });
    }
};

struct Exp10 : OneResult<double> {
    static constexpr int packs = 2;
    static constexpr double fast_bound = 0x1.33a6666666666p+8;  // 307.65; false alarms above it are harmless
    static constexpr Bounds bounds{0x1.34413509f79fep+8, -0x1.439b746e36b52p+8, -0x1.33a7146f72a41p+8};

    template <int N>
    QORL_INLINE static Pack<double, N> body(Pack<double, N> x) {
        using P = Pack<double, N>;
        const P shifted = fma(x, P(tables::exp10_64_per_lg2), P(tables::round_shift));
        const P n = shifted - P(tables::round_shift);
        // r = x - n log10(2)/64, the first product exact
        const P r = fnma(n, P(tables::exp10_lg2_64_lo), fnma(n, P(tables::exp10_lg2_64_hi), x));
        return power(bits(shifted), r * horner(r, tables::exp10_poly));
    }

    template <int N>
    QORL_INLINE static Mask<double, N> special(Pack<double, N> x) {
        return not_less_equal(abs(x), fast_bound);
    }

    [[gnu::noinline]] static int scalar(double x, double *y) {
        return power_scalar(x, y, bounds, [](double a) {
            const double shifted = std::fma(a, tables::exp10_64_per_lg2, tables::round_shift);
            const double n = shifted - tables::round_shift;
            const double r = std::fma(-n, tables::exp10_lg2_64_lo, std::fma(-n, tables::exp10_lg2_64_hi, a));
            return parts(shifted, tables::round_shift, r * horner(r, tables::exp10_poly));
        });
    }
};

}  // namespace
}  // namespace qorl

QORL_UNARY(d, Exp2, LA, qorl::Exp2);
QORL_UNARY(d, Exp10, LA, qorl::Exp10);
