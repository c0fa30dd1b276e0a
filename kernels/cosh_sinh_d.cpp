// Hyperbolic cosine and sine, double precision.
//
// Method   |x| = n ln2 + r, |r| <= ln2/2; a = 2^(n-1), b = 2^(-n-1), so that a + b and a - b are the cosine and sine of
//          n ln2. By the addition theorems
//              cosh x   = (a + b) + ((a + b)(cosh r - 1) + (a - b) sinh r),
//              sinh |x| = (a - b) + ((a - b)(cosh r - 1) + (a + b) sinh r), and x gives the sine its sign.
//          For n = 0 the sine is r + (sinh r - r), so that small and denormal x need no care. Polynomials of five
//          coefficients in r^2, three at EP. A table of 64 steps an octave would shorten them to two, but needs two
//          words of both powers next to the zero of the sine and takes half as long again; at n ln2 they are exact.
//          HA keeps the second word of r, the error of a + b or a - b and that of the first term with (a +- b) r.
// Range    the bodies take |x| <= 707.7, so that b is a normal number. The rest goes to the scalar function, where b
//          has vanished beside a. Overflow raises 3 from 710.475860073944 on; infinities are no errors.
// Error    HA next to n = 1, r = -ln2/2, where a - b is twice the result: 0.5 ulp of the last addition + 0.4 from
//          cosh r - 1 and r. LA at n = 27, where b is half a unit of a: 0.5 each of a + b or a - b, of sinh r and of
//          the last two sums. EP 2^-33 from the step and the polynomials. Measured: docs/accuracy.md.
// Source   the addition theorems; the errors of sums: T. J. Dekker, Numerische Mathematik 18, 1971.
#include "kernels/tables/cosh_sinh_d.hpp"
#include "frame/entry_points.hpp"
#include "frame/poly.hpp"
#include "kernels/exp_scalar.hpp"

namespace qorl {
namespace {

constexpr double fast_bound = 0x1.61d99p+9;                          // 707.7; false alarms above it are harmless
constexpr double overflow_bound = 0x1.633ce8fb9f87dp+9;              // the largest |x| with a finite result
constexpr std::int64_t exponent_sum = std::int64_t{2 * 1022} << 52;  // of the fields of a and b

// e^|x| / 2 for |x| beyond fast_bound, where it is cosh x; NaN and infinities as x^2.
[[gnu::noinline]] int large_half_exp(double x, double *y) {
    if (!std::isfinite(x)) {
        *y = x * x;
        return 0;
    }
    const double magnitude = std::fabs(x);
    if (magnitude > overflow_bound) {
        *y = std::numeric_limits<double>::infinity();
        return 3;
    }
    ExpParts e = exp_parts(magnitude);
    --e.k;
    *y = assemble(e);
    return 0;
}

enum class Function { cosh, sinh };

// cosh x or sinh x for x >= 0.
template <Function F, Level L, int N>
QORL_INLINE Pack<double, N> hyperbolic(Pack<double, N> x) {
    using P = Pack<double, N>;
    using namespace tables;
    const P shifted = fma(x, P(cosh_per_ln2), P(cosh_shift)), n = shifted - P(cosh_shift);
    // The low bits of shifted are n + 1022, the exponent field of a; that of b is 1022 - n.
    const P a = real(shift_left(bits(shifted), 52)), b = real(Pack<std::int64_t, N>(exponent_sum) - bits(a));
    const P sum = a + b, difference = a - b;
    const P first = F == Function::cosh ? sum : difference, second = F == Function::cosh ? difference : sum;
    const P r_high = fnma(n, P(cosh_ln2_hi), x);  // exact
    if constexpr (L == Level::EP) {
        // The second word of ln 2 is left out: 2^-35 at the largest x.
        const P square = r_high * r_high, coshm1 = square * horner(square, coshm1_ep_poly);
        const P sinh = fma(square * r_high, horner(square, sinh_ep_poly), r_high);
        return fma(second, sinh, fma(first, coshm1, first));
    } else {
        const P r_low = n * P(cosh_ln2_lo);
        const P r = L == Level::HA ? r_high - r_low : fnma(n, P(cosh_ln2_lo), r_high), square = r * r;
        const P coshm1 = square * horner(square, coshm1_poly), odd = horner(square, sinh_poly);
        if constexpr (L == Level::LA) return first + fma(second, fma(square * r, odd, r), first * coshm1);
        // a + b and a - b have errors of one size, other than 0 where n > 26 only.
        const P first_error = F == Function::cosh ? (a - sum) + b : (a - difference) - b;
        const P errors = fnma(first_error, r, first_error);
        const P sinh_rest = fms(square * r, odd, r_low);  // sinh r = r_high + sinh_rest
        // high is more than 0.42 of first and their difference is exact.
        const P high = fma(second, r_high, first), high_error = fma(second, r_high, first - high);
        return high + (high_error + fma(first, coshm1, fma(second, sinh_rest, errors)));
    }
}

template <Level L>
struct Cosh : OneResult<double> {
    static constexpr int packs = L == Level::LA ? 2 : 1;

    template <int N>
    QORL_INLINE static Pack<double, N> body(Pack<double, N> x) {
        return hyperbolic<Function::cosh, L>(abs(x));
    }

    template <int N>
    QORL_INLINE static Mask<double, N> special(Pack<double, N> x) {
        return not_less_equal(abs(x), fast_bound);
    }

    static int scalar(double x, double *y) { return large_half_exp(x, y); }
};

template <Level L>
struct Sinh : OneResult<double> {
    static constexpr int packs = L == Level::LA ? 2 : 1;

    template <int N>
    QORL_INLINE static Pack<double, N> body(Pack<double, N> x) {
        const Pack<double, N> magnitude = abs(x);
        return hyperbolic<Function::sinh, L>(magnitude) | (x ^ magnitude);
    }

    template <int N>
    QORL_INLINE static Mask<double, N> special(Pack<double, N> x) {
        return not_less_equal(abs(x), fast_bound);
    }

    static int scalar(double x, double *y) {
        const int status = large_half_exp(x, y);
        *y = std::copysign(*y, x);
        return status;
    }
};

}  // namespace
}  // namespace qorl

QORL_UNARY(d, Cosh, LA, qorl::Cosh<qorl::Level::LA>);
QORL_UNARY(d, Cosh, HA, qorl::Cosh<qorl::Level::HA>);
QORL_UNARY(d, Sinh, LA, qorl::Sinh<qorl::Level::LA>);
QORL_UNARY(d, Sinh, HA, qorl::Sinh<qorl::Level::HA>);
QORL_UNARY(d, Sinh, EP, qorl::Sinh<qorl::Level::EP>);
