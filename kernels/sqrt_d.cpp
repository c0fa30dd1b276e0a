// The square root, its reciprocal and x^(3/2), double precision.
//
// Method   s next to 1/sqrt(x) from the processor's estimate (kernels/estimate.hpp), e = 1 - x s^2, |e| < 2^-10.4, and
//          1/sqrt(x) = s (1 - e)^(-1/2) = s (1 + e p(e)).
//          Sqrt: x s (1 + e p(e)) with p of degree 3 at LA and 1 at EP. HA: r by the short p, then a Newton step with
//          the exact rest, r + (x - r^2) h, h next to 1/(2 sqrt(x)) by the short p too. With the worst of
//          estimates that leaves one result in 2^17 rounded to the other side; a longer p buys no more than those.
//          InvSqrt: LA, which HA shares, and EP with the same two p; s^2 is exact.
//          Pow3o2: x sqrt(x); HA multiplies r and the Newton step's addend as two words.
// Range    normal x up to where the intermediate results stay normal. Zeros, denormals, the ends of the range, what is
//          below zero or not finite go to the scalar function, which brings finite x to the middle of the range by an
//          even power of two and uses the same formulas.
//          Below zero: NaN, domain error (1); -0 gives -0, InvSqrt of +-0 +-inf and singularity (2). Pow3o2: overflow
//          (3); denormal or zero results of x above zero: underflow (4).
// Error    any estimate within 1.5 2^-12 gives |e| <= 7.36e-4. Sqrt HA: p leaves r within 2^-34.9, the Newton step
//          squares that: 0.5 ulp and 2^-15, so that roots that are doubles come out exact. LA: half of the rounding of
//          x s, for e takes back the rest, that is 0.25 ulp or, where x s has passed a power of two, 0.5, and 0.5 ulp;
//          EP 2^-34.9. InvSqrt LA: 0.5 ulp, 2^-5 of p and 2^-10 of the roundings in it. Pow3o2 HA: as Sqrt; LA: up to
//          twice the error of Sqrt, whose ulp can count double in the product, and 0.5 ulp.
// Source   P. Markstein, IA-64 and Elementary Functions, 2000, chapter 9.
#include "kernels/tables/sqrt_d.hpp"

#include <cmath>
#include <limits>

#include "frame/entry_points.hpp"
#include "frame/poly.hpp"
#include "kernels/estimate.hpp"

namespace qorl {
namespace {

// sqrt(x) = high + rest h, rest = x - high^2.
template <int N>
struct Root {
    Pack<double, N> high, rest, h;
};
template <int N>
QORL_INLINE Root<N> root(Pack<double, N> x) {
    using P = Pack<double, N>;
    const P s = wide_reciprocal_sqrt_estimate(x), t = x * s, h = s * P(0.5);
    const P e = fnma(t, s, P(1));
    const P q = e * horner(e, tables::inv_sqrt_short_poly);
    const P r = fma(t, q, t);
    return {r, fnma(r, r, x), fma(h, q, h)};
}

template <Level L>
struct Sqrt : OneResult<double> {
    static constexpr int packs = 2;

    template <int N>
    QORL_INLINE static Pack<double, N> body(Pack<double, N> x) {
        using P = Pack<double, N>;
        if constexpr (L == Level::HA) {
            const auto r = root(x);
            return fma(r.rest, r.h, r.high);
        } else {
            const P s = wide_reciprocal_sqrt_estimate(x), t = x * s;
            const P e = fnma(t, s, P(1));
            if constexpr (L == Level::LA)
                return fma(t * e, horner(e, tables::inv_sqrt_poly), t);
            else
                return fma(t * e, horner(e, tables::inv_sqrt_short_poly), t);
        }
    }
    template <int N>
    QORL_INLINE static HighWordMask<N> special(Pack<double, N> x) {
        return outside(x, L == Level::HA ? -950 : -1022, 1024);  // HA: 2^-53 x is to stay normal, for x - r^2
    }
    [[gnu::noinline]] static int scalar(double x, double *y) {
        if (x < 0) {
            *y = std::numeric_limits<double>::quiet_NaN();
            return 1;
        }
        if (x == 0 || !std::isfinite(x))
            *y = x + x;
        else
            *y = first_lane(body(Pack<double, 1>(x * 0x1p400))) * 0x1p-200;
        return 0;
    }
};

template <Level L>
struct InvSqrt : OneResult<double> {
    static constexpr int packs = 2;

    template <int N>
    QORL_INLINE static Pack<double, N> body(Pack<double, N> x) {
        using P = Pack<double, N>;
        const P s = wide_reciprocal_sqrt_estimate(x);
        const P e = fnma(x, s * s, P(1));
        if constexpr (L == Level::LA)
            return fma(s * e, horner(e, tables::inv_sqrt_poly), s);
        else
            return fma(s * e, horner(e, tables::inv_sqrt_short_poly), s);
    }
    template <int N>
    QORL_INLINE static HighWordMask<N> special(Pack<double, N> x) {
        return outside(x, -1022, 1020);  // s^2 is to stay normal
    }
    [[gnu::noinline]] static int scalar(double x, double *y) {
        if (x == 0) {
            *y = 1 / x;
            return 2;
        }
        if (x < 0) {
            *y = std::numeric_limits<double>::quiet_NaN();
            return 1;
        }
        if (std::isnan(x))
            *y = x + x;
        else if (!std::isfinite(x))
            *y = 0;
        else if (x < 1)
            *y = first_lane(body(Pack<double, 1>(x * 0x1p400))) * 0x1p200;
        else
            *y = first_lane(body(Pack<double, 1>(x * 0x1p-400))) * 0x1p-200;
        return 0;
    }
};

// x^(3/2) = high + low.
template <int N>
struct ThreeHalves {
    Pack<double, N> high, low;
};
template <int N>
QORL_INLINE ThreeHalves<N> three_halves(Pack<double, N> x) {
    const auto r = root(x);
    const auto product = x * r.high;
    return {product, fma(x, r.rest * r.h, fms(x, r.high, product))};
}

[[gnu::noinline]] int pow3o2_scalar(double x, double *y) {
    if (x < 0) {
        *y = std::numeric_limits<double>::quiet_NaN();
        return 1;
    }
    if (x == 0 || !std::isfinite(x)) {
        *y = x * x;
        return 0;
    }
    if (x > 1) {
        const auto p = three_halves(Pack<double, 1>(x * 0x1p-400));
        *y = first_lane(p.high + p.low) * 0x1p600;
        return *y == std::numeric_limits<double>::infinity() ? 3 : 0;
    }
    const auto p = three_halves(Pack<double, 1>(x * 0x1p800));
    double scaled = first_lane(p.high + p.low);  // 2^1200 times the result
    if (scaled < 0x1p178) {
        // Denormal: rounded once, to a multiple of 2^126, the place of the least denormal. That addition leaves its
        // error, which with the low word decides again.
        constexpr double shift = 0x1p178;
        const double high = first_lane(p.high), sum = shift + high;
        scaled = (sum + ((high - (sum - shift)) + first_lane(p.low))) - shift;
    }
    *y = scaled * 0x1p-600 * 0x1p-600;
    return *y < std::numeric_limits<double>::min() ? 4 : 0;
}

template <Level L>
struct Pow3o2 : OneResult<double> {
    static constexpr int packs = 2;

    template <int N>
    QORL_INLINE static Pack<double, N> body(Pack<double, N> x) {
        if constexpr (L == Level::HA) {
            const auto p = three_halves(x);
            return p.high + p.low;
        } else {
            return x * Sqrt<L>::body(x);
        }
    }
    template <int N>
    QORL_INLINE static HighWordMask<N> special(Pack<double, N> x) {
        return outside(x, -630, 682);  // 2^-53 x^(3/2) is to stay normal, for the low word
    }
    static int scalar(double x, double *y) { return pow3o2_scalar(x, y); }
};

}  // namespace
}  // namespace qorl

QORL_UNARY(d, Sqrt, LA, qorl::Sqrt<qorl::Level::LA>);
QORL_UNARY(d, Sqrt, HA, qorl::Sqrt<qorl::Level::HA>);
QORL_UNARY(d, Sqrt, EP, qorl::Sqrt<qorl::Level::EP>);
QORL_UNARY(d, InvSqrt, LA, qorl::InvSqrt<qorl::Level::LA>);
QORL_UNARY(d, InvSqrt, EP, qorl::InvSqrt<qorl::Level::EP>);
QORL_UNARY(d, Pow3o2, LA, qorl::Pow3o2<qorl::Level::LA>);
QORL_UNARY(d, Pow3o2, HA, qorl::Pow3o2<qorl::Level::HA>);
QORL_UNARY(d, Pow3o2, EP, qorl::Pow3o2<qorl::Level::EP>);
