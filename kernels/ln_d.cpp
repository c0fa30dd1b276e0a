// ln x, log10 x and log2 x, double precision.
//
// Method   HA: x = 2^(E - 1013) (1 + u) / R, R an integer from the processor's reciprocal estimate (log_reduce.hpp);
//          log x = (E log 2 - (1013 log 2 + log R)) + log e (u + u^2 q(u)), q of degree 4. The row of R holds its term
//          in two words; the first sums exactly with the exponent's. The leading words are added with their error.
//          LA, EP: x = 2^e m, m centred on 1, f = m - 1, z = f / (2 + f); log x = e log 2 + log e (2 z + z^3 p(z^2)),
//          one word a constant. LA writes 2 z + z^3 p as f - z (f - z^2 p), whose leading term is exact, p of degree 6;
//          in EP the series has its factor, p of degree 2. This is not HA's method: the division runs beside
//          everything else and costs less than estimate, index and table, 2.2 clocks an element against 3.1.
// Range    positive normal numbers (LA, EP: with e below 1023); the rest goes to the scalar function, as do NaN,
//          infinity, zero (-inf, status 2) and negative numbers (NaN, status 1).
// Error    HA 0.5 ulp of the last addition and 2^-8 for the terms before it; next to 1 the words of the rows cancel
//          those of the exponent exactly. LA the roundings of z, of z (f - z^2 p), of log e and of the sum.
//          EP 2^-30.4 from the series. Measured: docs/accuracy.md. Exact: powers of two in log2 at HA and LA, powers
//          of ten in log10 at HA.
// Source   W.-F. Wong and E. Goto, IEEE Trans. Computers 43(3), 1994; P. T. P. Tang, ACM TOMS 16(4), 1990; the series
//          in z: W. J. Cody and W. Waite, Software Manual for the Elementary Functions, 1980.
#include "frame/entry_points.hpp"
#include "frame/poly.hpp"
#include "kernels/log_reduce.hpp"
#include "kernels/log_scalar.hpp"

namespace qorl {
namespace {

using namespace tables;

// The bases. log_e_short is the leading word of log e (1 for base e).
struct BaseE {
    static constexpr const LogBase &scalar = base_e;
    static constexpr const double *rows = ln_rows;
    static constexpr auto &ep_poly = ln_ep_poly;
    static constexpr double two = ln2;
    // HA: E log 2 + first
    template <class P>
    QORL_INLINE static P high(P e, P first) {
        return fma(e, P(ln2_hi), first);
    }
    // HA: log_e_short u, rounded
    template <class P>
    QORL_INLINE static P leading(P u) {
        return u;
    }
    // HA: the low words and what the leading term leaves of log(1 + u)
    template <class P>
    QORL_INLINE static P low(P e, P u, P, P second) {
        return fma(u * u, horner(u, ln_ha_poly), fma(e, P(ln2_lo), second));
    }
    // LA: the logarithm of 2^e m
    template <class P>
    QORL_INLINE static P la(P e, P ln_m) {
        return fma(e, P(ln2), ln_m);
    }
};
struct Base10 {
    static constexpr const LogBase &scalar = base_10;
    static constexpr const double *rows = log10_rows;
    static constexpr auto &ep_poly = log10_ep_poly;
    static constexpr double two = log10_2;
    template <class P>
    QORL_INLINE static P high(P e, P first) {
        return fma(e, P(log10_2_hi), first);
    }
    template <class P>
    QORL_INLINE static P leading(P u) {
        return u * P(log10_e_short);
    }
    template <class P>
    QORL_INLINE static P low(P e, P u, P leading, P second) {
        return fma(u, horner(u, log10_ha_poly), fma(e, P(log10_2_lo), second) + fms(u, P(log10_e_short), leading));
    }
    template <class P>
    QORL_INLINE static P la(P e, P ln_m) {
        return fma(ln_m, P(log10_e), e * P(log10_2));
    }
};
struct Base2 {
    static constexpr const LogBase &scalar = base_2;
    static constexpr const double *rows = log2_rows;
    static constexpr auto &ep_poly = log2_ep_poly;
    static constexpr double two = 1;
    template <class P>
    QORL_INLINE static P high(P e, P first) {
        return e + first;
    }
    template <class P>
    QORL_INLINE static P leading(P u) {
        return u * P(log2_e_short);
    }
    template <class P>
    QORL_INLINE static P low(P, P u, P leading, P second) {
        return fma(u, horner(u, log2_ha_poly), second + fms(u, P(log2_e_short), leading));
    }
    template <class P>
    QORL_INLINE static P la(P e, P ln_m) {
        return fma(ln_m, P(log2_e), e);
    }
};

template <class Base>
[[gnu::noinline]] int scalar_of(double x, double *y) {
    return log_scalar(x, Base::scalar, y);
}

template <Level L, class Base>
struct Log : OneResult<double> {
    static constexpr int packs = L == Level::HA ? 8 : 2;

    // E log 2 plus the row (first, second) plus log(1 + u).
    template <class P>
    QORL_INLINE static P ha(P e, P u, P first, P second) {
        const P high = Base::high(e, first), leading = Base::leading(u);
        // sum + rest = high + leading, exactly: high is 0 or the larger one for every estimate of the reciprocal.
        const P sum = high + leading, rest = high - sum + leading;
        return sum + (rest + Base::low(e, u, leading, second));
    }

    template <int N>
    QORL_INLINE static Pack<double, N> body(Pack<double, N> x) {
        using P = Pack<double, N>;
        if constexpr (L == Level::HA) {
            // In two passes over the registers, the table's keys all written before the first is read.
            P u, y;
            LogRows<N> rows;
            each_register<N>([&](int i) {
                const LogReduced<1> reduced = log_reduce(x.part(i));
                u.set_part(i, reduced.u);
                rows.put(i, reduced.r);
            });
            each_register<N>([&](int i) {
                Pack<double, 1> first, second;
                rows.pair(Base::rows, i, first, second);
                y.set_part(i, ha(log_exponent(x.part(i)), u.part(i), first, second));
            });
            return y;
        } else {
            const LogCentred<N> reduced(x);
            const P e = reduced.exponent(), f = reduced.mantissa() - 1, z = f / (f + 2), w = z * z;
            if constexpr (L == Level::LA)
                return Base::la(e, fnma(z, fnma(w, horner(w, log_odd_poly), f), f));
            else
                return fma(z, horner(w, Base::ep_poly), e * P(Base::two));
        }
    }

    template <int N>
    QORL_INLINE static Mask<double, N> special(Pack<double, N> x) {
        if constexpr (L == Level::HA)
            return log_special(x);
        else
            return LogCentred<N>(x).special();
    }

    static int scalar(double x, double *y) { return scalar_of<Base>(x, y); }
};

}  // namespace
}  // namespace qorl

QORL_UNARY(d, Ln, LA, qorl::Log<qorl::Level::LA, qorl::BaseE>);
QORL_UNARY(d, Ln, HA, qorl::Log<qorl::Level::HA, qorl::BaseE>);
QORL_UNARY(d, Ln, EP, qorl::Log<qorl::Level::EP, qorl::BaseE>);
QORL_UNARY(d, Log10, LA, qorl::Log<qorl::Level::LA, qorl::Base10>);
QORL_UNARY(d, Log10, HA, qorl::Log<qorl::Level::HA, qorl::Base10>);
QORL_UNARY(d, Log10, EP, qorl::Log<qorl::Level::EP, qorl::Base10>);
QORL_UNARY(d, Log2, LA, qorl::Log<qorl::Level::LA, qorl::Base2>);
QORL_UNARY(d, Log2, HA, qorl::Log<qorl::Level::HA, qorl::Base2>);
QORL_UNARY(d, Log2, EP, qorl::Log<qorl::Level::EP, qorl::Base2>);
