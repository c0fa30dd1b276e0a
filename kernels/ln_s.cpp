// ln x, log10 x and log2 x, single precision.
//
// Method   x = 2^e m, m next to 1, u = m - 1, by kernels/log_s.hpp. HA: ln x in two words; for the other bases these
//          times 1 / ln b in two words. LA and EP: e log_b 2 + u C(u), log_b 2 in one word, C of degree 8 and 3. No
//          table: reading one costs more than the terms that it saves.
// Range    the bodies take positive normal numbers; the rest goes to the scalar function, which works in double
//          precision: denormals, inf, zero (-inf, status 2) and negative numbers (NaN, status 1).
// Error    HA 0.5 ulp of the last step and 0.1 of u^3 Q(u) before it, which is at most 1/18 of the result; in base two
//          0.2, as the results lie higher in their binades. LA 2^-24.5 of C, the roundings of C, of log_b 2 and of the
//          last step. EP 2^-11.4 of C. ln 1 = 0; powers of two come out exact in base two at all levels, powers of ten
//          in base ten at HA, as the error before the last rounding is below half an ulp. Measured: docs/accuracy.md.
// Source   The split next to 1: J.-M. Muller, Elementary Functions, 3rd ed., section 11; the error of a sum: D. E.
//          Knuth, The Art of Computer Programming, vol. 2, section 4.2.2.
#include "frame/entry_points.hpp"
#include "kernels/estimate.hpp"
#include "kernels/log_s.hpp"

namespace qorl {
namespace {

struct Base {
    const LogBase &scalar;
    float of_two;         // 2^-23 log_b 2
    float unit, unit_lo;  // 1 / ln b
    std::array<float, 9> la;
    std::array<float, 4> ep;
};
constexpr Base natural{base_e, tables::log_s_ln2, 1, 0, tables::ln_s_la_poly, tables::ln_s_ep_poly};
constexpr Base ten{base_10,
                   tables::log_s_lg2,
                   tables::log10_s_unit,
                   tables::log10_s_unit_lo,
                   tables::log10_s_la_poly,
                   tables::log10_s_ep_poly};
constexpr Base two{base_2,
                   tables::log_s_one,
                   tables::log2_s_unit,
                   tables::log2_s_unit_lo,
                   tables::log2_s_la_poly,
                   tables::log2_s_ep_poly};

[[gnu::noinline]] int ln_scalar(float x, const LogBase &base, float *y) {
    return log_scalar_by_double(static_cast<double>(x), base, y);
}

template <const Base &B, Level L>
struct Log : OneResult<float> {
    static constexpr int packs = L == Level::HA ? 2 : 1;

    template <int N>
    QORL_INLINE static Pack<float, N> body(Pack<float, N> x) {
        using P = Pack<float, N>;
        const auto split = log_split(x);
        const P minus_e = split.minus_e(), u = split.m - P(1);
        if constexpr (L == Level::HA) {
            const auto [high, low] = log_words(minus_e, u);
            if constexpr (&B == &natural) {
                return high + low;
            } else {
                const P unit(B.unit), y = high * unit;
                return y + fma(low, unit, fma(high, P(B.unit_lo), fms(high, unit, y)));
            }
        } else if constexpr (L == Level::LA) {
            return fms(u, horner(u, B.la), minus_e * P(B.of_two));
        } else {
            return fms(u, horner(u, B.ep), minus_e * P(B.of_two));
        }
    }

    template <int N>
    QORL_INLINE static Mask<float, N> special(Pack<float, N> x) {
        return outside(x, -126, 128);
    }

    static int scalar(float x, float *y) { return ln_scalar(x, B.scalar, y); }
};

}  // namespace
}  // namespace qorl

QORL_UNARY(s, Ln, LA, qorl::Log<qorl::natural, qorl::Level::LA>);
QORL_UNARY(s, Ln, HA, qorl::Log<qorl::natural, qorl::Level::HA>);
QORL_UNARY(s, Ln, EP, qorl::Log<qorl::natural, qorl::Level::EP>);
QORL_UNARY(s, Log10, LA, qorl::Log<qorl::ten, qorl::Level::LA>);
QORL_UNARY(s, Log10, HA, qorl::Log<qorl::ten, qorl::Level::HA>);
QORL_UNARY(s, Log10, EP, qorl::Log<qorl::ten, qorl::Level::EP>);
QORL_UNARY(s, Log2, LA, qorl::Log<qorl::two, qorl::Level::LA>);
QORL_UNARY(s, Log2, HA, qorl::Log<qorl::two, qorl::Level::HA>);
QORL_UNARY(s, Log2, EP, qorl::Log<qorl::two, qorl::Level::EP>);
