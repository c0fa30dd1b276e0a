// sinh x and cosh x, single precision.
//
// Method   x = n ln2 + r, |r| <= ln2/2; with a = 2^(n-1) and b = 2^(-n-1), put together as integers,
//          sinh x = (a - b) cosh r + (a + b) sinh r, cosh x = (a + b) cosh r + (a - b) sinh r. sinh r and cosh r are
//          polynomials of degree 5 and 6 (LA), 3 and 2 (EP), 7 and 6 (HA). LA: ln2 in two words. EP: in one. Sinh
//          HA: r in two words, and (a - b) + (a + b) r with its error apart from the rest. Cosh HA computes in double
//          precision and rounds once: in two words it has to add b on its own where a + b rounds it away, which made
//          it slower than Sinh and no better than 1 ulp. A change of the sign of x changes those of n and r and
//          exchanges a and b: sinh is odd and cosh even bit for bit, without a look at the sign.
// Range    |x| <= 87.3, for Cosh HA up to overflow (3) at 89.4; the rest goes to the scalar function, where
//          e^-|x| counts for nothing. Infinities stay and raise nothing, NaN stays NaN. n = 0 leaves
//          sinh x = r (1 + ...): x itself where it is tiny, and -0 for -0.
// Error    Cosh HA 0.5 ulp + 2^-33 relative. Sinh HA 0.5 ulp of the last step; where |n| is 12 or 13 the sums of a
//          and b are rounded and add 0.35, the roundings of the rest about 0.1. LA: the two products cancel by half at
//          the worst, near |x| = 0.4 with n = 1 in sinh, so that their roundings and those of cosh r and sinh r count
//          up to twice. EP 2^-13.2 of the polynomials, counted in the same way.
// Source   the addition theorems; J.-M. Muller, Elementary Functions, 3rd ed., section 11, for the reduction.
#include <cmath>
#include <limits>

#include "frame/entry_points.hpp"
#include "frame/poly.hpp"
#include "kernels/exp_scalar.hpp"
#include "kernels/tables/cosh_sinh_s.hpp"

namespace qorl {
namespace {

// The exponent field of a is that of b subtracted from `fields`.
template <class T>
struct Format;
template <>
struct Format<float> {
    static constexpr int fraction_bits = 23;
    static constexpr std::int32_t fields = std::int32_t(2 * 126) << 23;
    static constexpr float per_ln2 = tables::sinh_cosh_per_ln2_s, ln2 = tables::sinh_cosh_ln2_s;
    static constexpr float shift = tables::sinh_cosh_shift_s;
};
template <>
struct Format<double> {
    static constexpr int fraction_bits = 52;
    static constexpr std::int64_t fields = std::int64_t(2 * 1022) << 52;
    static constexpr double per_ln2 = tables::sinh_cosh_per_ln2_d, ln2 = tables::sinh_cosh_ln2_d;
    static constexpr double shift = tables::sinh_cosh_shift_d;
};

template <class P>
struct Parts {
    P sum, difference;  // a + b, b - a
    P sinh_r, cosh_r;
};

template <Level L, class T, int N>
QORL_INLINE Parts<Pack<T, N>> parts(Pack<T, N> x) {
    using P = Pack<T, N>;
    using F = Format<T>;
    using namespace tables;
    const P shifted = fma(x, P(F::per_ln2), P(F::shift));
    const P n = shifted - P(F::shift);
    P r;
    if constexpr (L == Level::LA)
        r = fnma(n, P(sinh_cosh_ln2_lo_s), fnma(n, P(sinh_cosh_ln2_hi_s), x));
    else
        r = fnma(n, P(F::ln2), x);
    const auto a_bits = shift_left(bits(shifted), F::fraction_bits);
    const P a = real(a_bits), b = real(decltype(a_bits)(F::fields) - a_bits);
    const P y = r * r;
    const auto odd = [&](const auto &c) { return fma(r * y, horner(y, c), r); };
    const auto even = [&](const auto &c) { return fma(y, horner(y, c), P(1)); };
    if constexpr (L == Level::HA)
        return {a + b, b - a, odd(sinh_wide_poly_s), even(cosh_wide_poly_s)};
    else if constexpr (L == Level::LA)
        return {a + b, b - a, odd(sinh_la_poly_s), even(cosh_la_poly_s)};
    else
        return {a + b, b - a, odd(sinh_ep_poly_s), even(cosh_ep_poly_s)};
}

// The difference is taken from b to a: with n = 0 the first product is then subtracted as +0, and sinh -0 is -0.
template <class P>
QORL_INLINE P sinh_of(const Parts<P> &p) {
    return fnma(p.difference, p.cosh_r, p.sum * p.sinh_r);
}
template <class P>
QORL_INLINE P cosh_of(const Parts<P> &p) {
    return fnma(p.difference, p.sinh_r, p.sum * p.cosh_r);
}

// x = n ln2 + r_high - r_low, the first difference exact. The large terms of sinh x are a - b and (a + b) r_high: their
// sum is kept with its error, and a tenth of the result is left for the rest. Zeros are subtracted, as above.
template <int N>
QORL_INLINE Pack<float, N> sinh_in_two_words(Pack<float, N> x) {
    using P = Pack<float, N>;
    using F = Format<float>;
    using namespace tables;
    const P shifted = fma(x, P(F::per_ln2), P(F::shift));
    const P n = shifted - P(F::shift);
    const P r_high = fnma(n, P(F::ln2), x), r_low = n * P(sinh_cosh_ln2_rest_s), r = r_high - r_low;
    const auto a_bits = shift_left(bits(shifted), F::fraction_bits);
    const P a = real(a_bits), b = real(decltype(a_bits)(F::fields) - a_bits);
    const P sum = a + b, difference = b - a;
    const P large = fms(sum, r_high, difference), error = fnma(sum, r_high, difference + large);
    const P y = r * r, sinh_rest = fms(r * y, horner(y, sinh_ha_poly_s), r_low);  // sinh r - r_high
    return large - fma(difference * y, horner(y, cosh_la_poly_s), fnma(sum, sinh_rest, error));
}

// e^|x| / 2 for |x| >= 87, infinity past the end of the range; the status.
int half_exp(float x, float *y) {
    const double absolute = std::fabs(static_cast<double>(x));
    if (absolute > static_cast<double>(tables::sinh_cosh_overflow_bound)) {
        *y = std::numeric_limits<float>::infinity();
        return 3;
    }
    *y = static_cast<float>(0.5 * assemble(exp_parts(absolute)));
    return 0;
}
[[gnu::noinline]] int sinh_scalar(float x, float *y) {
    if (!std::isfinite(x)) {
        *y = x + x;
        return 0;
    }
    const int status = half_exp(x, y);
    *y = std::copysign(*y, x);
    return status;
}
[[gnu::noinline]] int cosh_scalar(float x, float *y) {
    if (!std::isfinite(x)) {
        *y = x * x;
        return 0;
    }
    return half_exp(x, y);
}

template <Level L>
struct Hyperbolic : OneResult<float> {
    static constexpr int packs = 2;

    template <int N>
    QORL_INLINE static Mask<float, N> special(Pack<float, N> x) {
        return not_less_equal(abs(x), L == Level::HA ? tables::sinh_cosh_overflow_bound : tables::sinh_cosh_fast_bound);
    }
};

template <Level L>
struct Sinh : Hyperbolic<L> {
    template <int N>
    QORL_INLINE static Pack<float, N> body(Pack<float, N> x) {
        if constexpr (L == Level::HA)
            return sinh_in_two_words(x);
        else
            return sinh_of(parts<L>(x));
    }
    template <int N>
    QORL_INLINE static Mask<float, N> special(Pack<float, N> x) {
        return not_less_equal(abs(x), tables::sinh_cosh_fast_bound);
    }
    static int scalar(float x, float *y) { return sinh_scalar(x, y); }
};

template <Level L>
struct Cosh : Hyperbolic<L> {
    template <int N>
    QORL_INLINE static Pack<float, N> body(Pack<float, N> x) {
        if constexpr (L == Level::HA)
            return narrow(cosh_of(parts<L>(widen(x))));
        else
            return cosh_of(parts<L>(x));
    }
    static int scalar(float x, float *y) { return cosh_scalar(x, y); }
};

}  // namespace
}  // namespace qorl

QORL_UNARY(s, Sinh, LA, qorl::Sinh<qorl::Level::LA>);
QORL_UNARY(s, Sinh, HA, qorl::Sinh<qorl::Level::HA>);
QORL_UNARY(s, Sinh, EP, qorl::Sinh<qorl::Level::EP>);
QORL_UNARY(s, Cosh, LA, qorl::Cosh<qorl::Level::LA>);
QORL_UNARY(s, Cosh, HA, qorl::Cosh<qorl::Level::HA>);
QORL_UNARY(s, Cosh, EP, qorl::Cosh<qorl::Level::EP>);
