// ln(1 + x), single precision.
//
// Method   s = 1 + x rounded, c = x - (s - 1) what it lacks, s = 2^e m; ln(1 + x) = e ln2 + ln(1 + u),
//          u = (m - 1) + 2^-e c, by kernels/log_s.hpp. With e = 0 this u is x itself, so that small x keep all their
//          bits, denormal ones too. From 2^24 on c may be wrong by 1, less than 2^-24 of s and far below the last place
//          of the result.
//          LA and EP: e ln2 + u C(u), ln2 in one word, C of degree 8 and 4. HA: the logarithm in two words; u comes in
//          two words too, and the second one, at most 2^-26, counts times a line next to 1/(1 + u).
// Range    the bodies take x above -1 + 2^-24 and below 2^119, from where on 2^-e c could leave the normal numbers; the
//          rest goes to the scalar function, which works in double precision. -1 gives -inf and status 2, lower numbers
//          NaN and status 1.
// Error    HA 0.5 ulp of the last step and 0.15 of the terms before it; LA and EP as for ln x, LA with the rounding of
//          u. Measured: docs/accuracy.md.
// Source   The error of a sum: D. E. Knuth, The Art of Computer Programming, vol. 2, section 4.2.2.
#include "frame/entry_points.hpp"
#include "kernels/estimate.hpp"
#include "kernels/log_s.hpp"

namespace qorl {
namespace {

[[gnu::noinline]] int log1p_scalar(float x, float *y) {
    return log_scalar_by_double(1 + static_cast<double>(x), base_e, y);
}

template <Level L>
struct Log1p : OneResult<float> {
    static constexpr int packs = L == Level::HA ? 1 : 2;

    template <int N>
    QORL_INLINE static Pack<float, N> body(Pack<float, N> x) {
        using P = Pack<float, N>;
        const P one(1), s = x + one, c = x - (s - one);
        const auto split = log_split(s);
        const P minus_e = split.minus_e(), scale = real(bits(one) + split.minus_field), minus_rest = one - split.m;
        const P u = fms(c, scale, minus_rest);
        if constexpr (L == Level::HA) {
            const auto [high, low] = log_words(minus_e, u);
            const P minus_u_low = fnma(c, scale, u + minus_rest);
            return high + fnma(minus_u_low, horner(u, tables::log1p_s_inverse), low);
        } else if constexpr (L == Level::LA) {
            return fms(u, horner(u, tables::ln_s_la_poly), minus_e * P(tables::log_s_ln2));
        } else {
            return fms(u, fma(u, horner(u, tables::log1p_s_ep_poly), P(1)), minus_e * P(tables::log_s_ln2));
        }
    }

    template <int N>
    QORL_INLINE static Mask<float, N> special(Pack<float, N> x) {
        return outside(x + Pack<float, N>(1), -23, 119);
    }

    static int scalar(float x, float *y) { return log1p_scalar(x, y); }
};

}  // namespace
}  // namespace qorl

QORL_UNARY(s, Log1p, LA, qorl::Log1p<qorl::Level::LA>);
QORL_UNARY(s, Log1p, HA, qorl::Log1p<qorl::Level::HA>);
QORL_UNARY(s, Log1p, EP, qorl::Log1p<qorl::Level::EP>);
