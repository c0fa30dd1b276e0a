// The square root, its reciprocal and x^(3/2), single precision.
//
// Method   s next to 1/sqrt(x) from the processor's estimate; t = x s.
//          Sqrt: EP is t. LA: one Newton step t + t (1/2 - t h), h next to s/2. HA: the same step gives r, then one
//          with the exact rest, r + (x - r^2) s/2. The step of LA errs to one side only; with h a little below s/2 it
//          errs half as much to both. InvSqrt: LA, which EP shares, the Newton step s + s (1/2 - t h). HA: s cut to 12
//          bits, so that its square is exact, e = 1 - x s^2 and the series s (1 + e p(e)), p of degree 1. Pow3o2: x
//          sqrt(x); HA multiplies r and the addend of its last step as two words.
// Range    normal x up to where the intermediate results stay normal. Zeros, denormals, the ends of the range, what is
//          below zero or not finite go to the scalar function, which brings finite x to the middle of the range by an
//          even power of two and uses the same formulas.
//          Below zero: NaN, domain error (1); -0 gives -0, InvSqrt of +-0 +-inf and singularity (2). Pow3o2: overflow
//          (3); denormal or zero results of x above zero: underflow (4).
// Error    for any estimate within 1.5 2^-12. Sqrt EP 2^-11.4: no more than the estimate has, and not exact where the
//          root is a float. LA: the Newton step leaves up to 1.9 2^-24, the roundings of t, half of which the step
//          takes back, and of the result 2^-24: 2.9 ulp. HA: r within 2^-22 and s/2 within 2^-11.4 leave 2^-9 ulp
//          beside the 0.5, so that roots that are floats come out exact. InvSqrt LA as Sqrt LA; HA 0.5 ulp, 2^-8 of p
//          and 2^-9 of the roundings in it. Pow3o2 HA as Sqrt; LA Sqrt and 1 ulp.
// Source   P. Markstein, IA-64 and Elementary Functions, 2000, chapter 9.
#include "kernels/tables/sqrt_s.hpp"

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
    Pack<float, N> high, rest, h;
};
template <int N>
QORL_INLINE Root<N> root(Pack<float, N> x) {
    using P = Pack<float, N>;
    const P s = reciprocal_sqrt_estimate(x), t = x * s, h = s * P(0.5f);
    const P r = fma(t, fnma(t, h, P(0.5f)), t);
    return {r, fnma(r, r, x), h};
}

template <Level L>
struct Sqrt : OneResult<float> {
    static constexpr int packs = 2;

    template <int N>
    QORL_INLINE static Pack<float, N> body(Pack<float, N> x) {
        using P = Pack<float, N>;
        if constexpr (L == Level::HA) {
            const auto r = root(x);
            return fma(r.rest, r.h, r.high);
        } else {
            const P s = reciprocal_sqrt_estimate(x), t = x * s;
            if constexpr (L == Level::EP)
                return t;
            else
                return fma(t, fnma(t, s * P(tables::newton_half), P(0.5f)), t);
        }
    }
    template <int N>
    QORL_INLINE static Mask<float, N> special(Pack<float, N> x) {
        return outside(x, L == Level::HA ? -90 : -126, 128);  // HA: 2^-32 x is to stay normal, for x - r^2
    }
    [[gnu::noinline]] static int scalar(float x, float *y) {
        if (x < 0) {
            *y = std::numeric_limits<float>::quiet_NaN();
            return 1;
        }
        if (x == 0 || !std::isfinite(x))
            *y = x + x;
        else
            *y = first_lane(body(Pack<float, 1>(x * 0x1p80f))) * 0x1p-40f;
        return 0;
    }
};

template <Level L>
struct InvSqrt : OneResult<float> {
    static constexpr int packs = 2;

    template <int N>
    QORL_INLINE static Pack<float, N> body(Pack<float, N> x) {
        using P = Pack<float, N>;
        if constexpr (L == Level::HA) {
            constexpr auto twelve_bits = std::int32_t(0xFFFFF000);
            const P s = real(bits(reciprocal_sqrt_estimate(x)) & twelve_bits);
            const P e = fnma(x, s * s, P(1));
            return fma(s * e, horner(e, tables::inv_sqrt_s_poly), s);
        } else {
            const P s = reciprocal_sqrt_estimate(x);
            return fma(s, fnma(x * s, s * P(tables::newton_half), P(0.5f)), s);
        }
    }
    template <int N>
    QORL_INLINE static Mask<float, N> special(Pack<float, N> x) {
        return outside(x, -126, L == Level::HA ? 124 : 128);  // HA: s^2 is to stay normal
    }
    [[gnu::noinline]] static int scalar(float x, float *y) {
        if (x == 0) {
            *y = 1 / x;
            return 2;
        }
        if (x < 0) {
            *y = std::numeric_limits<float>::quiet_NaN();
            return 1;
        }
        if (std::isnan(x))
            *y = x + x;
        else if (!std::isfinite(x))
            *y = 0;
        else if (x < 1)
            *y = first_lane(body(Pack<float, 1>(x * 0x1p80f))) * 0x1p40f;
        else
            *y = first_lane(body(Pack<float, 1>(x * 0x1p-80f))) * 0x1p-40f;
        return 0;
    }
};

// x^(3/2) = high + low.
template <int N>
struct ThreeHalves {
    Pack<float, N> high, low;
};
template <int N>
QORL_INLINE ThreeHalves<N> three_halves(Pack<float, N> x) {
    const auto r = root(x);
    const auto product = x * r.high;
    return {product, fma(x, r.rest * r.h, fms(x, r.high, product))};
}

[[gnu::noinline]] int pow3o2_scalar(float x, float *y) {
    if (x < 0) {
        *y = std::numeric_limits<float>::quiet_NaN();
        return 1;
    }
    if (x == 0 || !std::isfinite(x)) {
        *y = x * x;
        return 0;
    }
    // The two words make a double, which is rounded at its final size.
    const bool large = x > 1;
    const auto p = three_halves(Pack<float, 1>(x * (large ? 0x1p-60f : 0x1p100f)));
    const double scaled = static_cast<double>(first_lane(p.high)) + static_cast<double>(first_lane(p.low));
    *y = static_cast<float>(scaled * (large ? 0x1p90 : 0x1p-150));
    if (*y == std::numeric_limits<float>::infinity()) return 3;
    return *y < std::numeric_limits<float>::min() ? 4 : 0;
}

template <Level L>
struct Pow3o2 : OneResult<float> {
    static constexpr int packs = 2;

    template <int N>
    QORL_INLINE static Pack<float, N> body(Pack<float, N> x) {
        if constexpr (L == Level::HA) {
            const auto p = three_halves(x);
            return p.high + p.low;
        } else {
            return x * Sqrt<L>::body(x);
        }
    }
    template <int N>
    QORL_INLINE static Mask<float, N> special(Pack<float, N> x) {
        return outside(x, -60, 85);  // 2^-32 x^(3/2) is to stay normal, for the low word
    }
    static int scalar(float x, float *y) { return pow3o2_scalar(x, y); }
};

}  // namespace
}  // namespace qorl

QORL_UNARY(s, Sqrt, LA, qorl::Sqrt<qorl::Level::LA>);
QORL_UNARY(s, Sqrt, HA, qorl::Sqrt<qorl::Level::HA>);
QORL_UNARY(s, Sqrt, EP, qorl::Sqrt<qorl::Level::EP>);
QORL_UNARY(s, InvSqrt, LA, qorl::InvSqrt<qorl::Level::LA>);
QORL_UNARY(s, InvSqrt, HA, qorl::InvSqrt<qorl::Level::HA>);
QORL_UNARY(s, Pow3o2, LA, qorl::Pow3o2<qorl::Level::LA>);
QORL_UNARY(s, Pow3o2, HA, qorl::Pow3o2<qorl::Level::HA>);
QORL_UNARY(s, Pow3o2, EP, qorl::Pow3o2<qorl::Level::EP>);
