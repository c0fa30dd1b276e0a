// 1/x, both types.
//
// Method   HA: the processor's division. LA and EP: s next to 1/x from the processor's estimate (kernels/estimate.hpp),
//          e = 1 - x s in a fused step, |e| < 2^-11.4, and 1/x = s / (1 - e) = s (1 + e + e^2 + ...): of doubles up to
//          e^4 as s (1 + (e + e^2)(1 + e^2)) at LA, up to e^2 at EP; of floats up to e at LA, and s itself at EP.
// Range    HA: all x but zeros. LA and EP: |x| normal and below 2^126 or 2^1021, where 1/x is normal too; the rest goes
//          to the scalar function, which divides. 1/+-0 = +-inf raises singularity (2), a quotient that overflows (x
//          denormal) nothing.
// Error    HA 0.5 ulp. Any estimate within 1.5 2^-12 gives |e| <= 3.69e-4, in single precision 1.5 2^-12: dInv LA 0.5
//          ulp, 2^-57 of the series and 2^-11 ulp of the roundings in it; EP 2^-34.2; sInv LA 2.25 ulp of the series
//          and 0.5, EP 2^-11.4.
// Source   P. Markstein, IA-64 and Elementary Functions, 2000, chapter 8.
#include <type_traits>

#include "frame/entry_points.hpp"
#include "kernels/estimate.hpp"

namespace qorl {
namespace {

template <class T>
[[gnu::noinline]] int inv_scalar(T x, T *y) {
    *y = 1 / x;
    return x == 0 ? 2 : 0;
}

template <class T>
struct Quotient : OneResult<T> {
    static constexpr int packs = 2;

    template <int N>
    QORL_INLINE static Pack<T, N> body(Pack<T, N> x) {
        return Pack<T, N>(1) / x;
    }
    template <int N>
    QORL_INLINE static Mask<T, N> special(Pack<T, N> x) {
        return equal(x, Pack<T, N>(0));
    }
    static int scalar(T x, T *y) { return inv_scalar(x, y); }
};

template <class T, Level L>
struct Inv : OneResult<T> {
    static constexpr int packs = 2;

    template <int N>
    QORL_INLINE static Pack<T, N> body(Pack<T, N> x) {
        using P = Pack<T, N>;
        constexpr bool single = std::is_same_v<T, float>;
        const P s = wide_reciprocal_estimate(x);
        if constexpr (single && L == Level::EP) return s;
        const P e = fnma(x, s, P(1));
        if constexpr (single) return fma(s, e, s);
        const P two_terms = fma(e, e, e);
        if constexpr (L == Level::EP) return fma(s, two_terms, s);
        return fma(s, fma(two_terms, e * e, two_terms), s);
    }
    template <int N>
    QORL_INLINE static auto special(Pack<T, N> x) {
        if constexpr (std::is_same_v<T, float>)
            return magnitude_outside(x, -126, 126);
        else
            return magnitude_outside(x, -1022, 1021);
    }
    static int scalar(T x, T *y) { return inv_scalar(x, y); }
};

}  // namespace
}  // namespace qorl

QORL_UNARY(s, Inv, LA, qorl::Inv<float, qorl::Level::LA>);
QORL_UNARY(s, Inv, HA, qorl::Quotient<float>);
QORL_UNARY(s, Inv, EP, qorl::Inv<float, qorl::Level::EP>);
QORL_UNARY(d, Inv, LA, qorl::Inv<double, qorl::Level::LA>);
QORL_UNARY(d, Inv, HA, qorl::Quotient<double>);
QORL_UNARY(d, Inv, EP, qorl::Inv<double, qorl::Level::EP>);
