// ln(1 + x), double precision.
//
// Method   HA: s = 1 + x and the error c of that sum; ln(1 + x) = ln s + c / s with the table of ln s (ln_d.cpp): s =
//          2^(E - 1013) (1 + u) / R, c / s = c 2^(1013 - E) R (1 - u), which joins the low words.
//          LA, EP: 1 + x = 2^e (1 + f) with f = 2^-e x + (2^-e - 1) in one rounding, then the series of ln x in f.
//          Where e = 0, f is x itself, so that small arguments keep their digits down to the denormals.
// Range    1 + x from 2^-53 to 2^1013 (HA) and e up to 1022 (LA, EP); the rest goes to the scalar function, as do NaN,
//          infinity, -1 (-inf, status 2) and numbers below -1 (NaN, status 1). Zero keeps its sign. HA takes x - x^2/2
//          below 2^-31: there c is not small beside the result, and in the end would lose digits to the denormals.
// Error    those of ln x; HA leaves out 2^-73 of c / s, and 2^-63 of x below 2^-31.
// Source   those of ln x; the two words of 1 + x: T. J. Dekker, A floating-point technique for extending the available
//          precision, Numerische Mathematik 18, 1971.
#include "frame/entry_points.hpp"
#include "frame/poly.hpp"
#include "kernels/log_reduce.hpp"
#include "kernels/log_scalar.hpp"

namespace qorl {
namespace {

using namespace tables;

constexpr double tiny = 0x1p-31;  // below it x - x^2 / 2 is ln(1 + x) to 2^-63

[[gnu::noinline]] int log1p_scalar(double x, double *y) {
    const double s = 1 + x;
    int status;
    if (log_is_special(s, y, &status)) return status;
    LogParts l = log_parts(s);
    l.low += (std::fabs(x) < 1 ? x - (s - 1) : 1 - (s - x)) / s;
    *y = assemble(l, base_e);
    return 0;
}

template <Level L>
struct Log1p : OneResult<double> {
    static constexpr int packs = L == Level::HA ? 8 : 2;

    // The error of s = 1 + x: the larger of the two taken from s, then the smaller.
    template <class P>
    QORL_INLINE static P lost(P x, P s) {
        return min(x, P(1)) - (s - max(x, P(1)));
    }
    template <int N>
    QORL_INLINE static Pack<double, N> body(Pack<double, N> x) {
        using P = Pack<double, N>;
        if constexpr (L == Level::HA) {
            using Part = Pack<double, 1>;
            P u, y;
            LogRows<N> rows;
            each_register<N>([&](int i) {
                const LogReduced<1> reduced = log_reduce(x.part(i) + 1);
                u.set_part(i, reduced.u);
                rows.put(i, reduced.r);
            });
            each_register<N>([&](int i) {
                const Part v = x.part(i), s = v + 1, e = log_exponent(s), t = u.part(i);
                Part first, second;
                rows.pair(ln_rows, i, first, second);
                const Part c = lost(v, s) * log_inverse_scale(s) * rows.key(i), c_per_s = fnma(c, t, c);
                const Part high = fma(e, Part(ln2_hi), first), sum = high + t, rest = (high - sum) + t;
                const Part low = fma(t * t, horner(t, ln_ha_poly), fma(e, Part(ln2_lo), second)) + c_per_s;
                y.set_part(i, select(less(abs(v), tiny), fnma(v, v * 0.5, v), sum + (rest + low)));
            });
            return y;
        } else {
            const LogCentred<N> reduced(x + 1);
            const P scale = reduced.inverse_scale(), f = fma(x, scale, scale - 1), z = f / (f + 2), w = z * z;
            const P p = [&] {
                if constexpr (L == Level::LA)
                    return horner(w, log_odd_poly);
                else
                    return horner(w, log1p_ep_poly);
            }();
            const P y = fma(reduced.exponent(), P(ln2), fnma(z, fnma(w, p, f), f));
            return y | (x & P(-0.0));  // the sign of zero
        }
    }

    template <int N>
    QORL_INLINE static Mask<double, N> special(Pack<double, N> x) {
        if constexpr (L == Level::HA)
            return log_special<1013>(x + 1);
        else
            return LogCentred<N>(x + 1).special();
    }

    static int scalar(double x, double *y) { return log1p_scalar(x, y); }
};

}  // namespace
}  // namespace qorl

QORL_UNARY(d, Log1p, LA, qorl::Log1p<qorl::Level::LA>);
QORL_UNARY(d, Log1p, HA, qorl::Log1p<qorl::Level::HA>);
QORL_UNARY(d, Log1p, EP, qorl::Log1p<qorl::Level::EP>);
