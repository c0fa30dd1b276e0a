// Hypotenuse sqrt(a^2 + b^2): the body that both types and all levels share.
//
// Method   s = a^2 + b^2, y = the processor's estimate of 1/sqrt(s), h = s y, e = 1 - h y, and
//          sqrt(s) = h (1 - e)^(-1/2) = h + h e (1/2 + 3/8 e + ...), refitted: at LA to e^4 (d) and e^2 (s), at EP to
//          e^2 (d) and h itself (s).
//          HA: s + low is the sum in two words, low the errors of both squares and of their sum, which are numbers of
//          the type. In place of h e, which is off by the rounding of h, stands (s - h^2 + low) y with a fused s - h^2.
//          One register a block: a second one's chain of operations does not fit the scheduler of the processor too.
// Range    the bodies take 2^-126 <= s < 2^126 (d), where the estimate through single precision is good, and
//          2^-100 <= s < 2^127 (s), where the errors of the squares are numbers of the type. The rest goes to the
//          scalar function, which computes in the 80-bit format: nothing overflows there, and a denormal result is
//          rounded once. An infinity with anything, NaN too, gives infinity. No status.
// Error    any estimate within 1.5 2^-12 keeps the bounds. With u = 2^-53 (d) or 2^-24 (s): LA 2 u of s, which the root
//          halves, u/2 of h, since e makes up for the other half, and the last rounding: 2 ulp. HA the last rounding,
//          2^-58.1 (d) and 2^-34.7 (s) of the series and 2^-10 u in what is added to h: 0.54 ulp; results that are
//          numbers of the type are exact. EP 2^-34.9 of the series (d), 2^-11.4 of the estimate (s).
// Source   the correction of the sum: C. F. Borges, Algorithm 1014: An improved algorithm for hypot(x, y), ACM TOMS
//          47(1), 2020; errors of squares and sums as numbers: T. J. Dekker, A floating-point technique for extending
//          the available precision, Numer. Math. 18, 1971.
#ifndef QORL_KERNELS_HYPOT_HPP
#define QORL_KERNELS_HYPOT_HPP

#include <bit>
#include <cmath>
#include <limits>

#include "frame/kernel.hpp"
#include "frame/poly.hpp"
#include "kernels/tables/hypot.hpp"

namespace qorl {

// What the types differ in.
template <class T>
struct HypotOf;
template <>
struct HypotOf<double> {
    static constexpr auto la_poly = tables::hypot_d_la_poly, ha_poly = la_poly;
    static constexpr auto ep_poly = tables::hypot_d_ep_poly;
    static constexpr double least = 0x1p-126, top = 0x1p127;  // of s; a false alarm from top / 2 on is harmless
};
template <>
struct HypotOf<float> {
    static constexpr auto la_poly = tables::hypot_s_la_poly, ha_poly = la_poly;
    static constexpr float least = 0x1p-100f, top = std::numeric_limits<float>::infinity();
};

template <class T, Level L>
struct Hypot : TwoInputs<T> {
    static constexpr int packs = 1;
    using Of = HypotOf<T>;

    template <int N>
    QORL_INLINE static Pack<T, N> body(Pack<T, N> a, Pack<T, N> b) {
        using P = Pack<T, N>;
        const P aa = a * a, bb = b * b, s = aa + bb;
        const P y = reciprocal_sqrt_estimate(s), h = s * y, e = fnma(h, y, P(1));
        if constexpr (L == Level::HA) {
            const P big = max(aa, bb), small = min(aa, bb);
            const P low = (small - (s - big)) + (fms(a, a, aa) + fms(b, b, bb));
            return fma((fnma(h, h, s) + low) * y, horner(e, Of::ha_poly), h);
        } else if constexpr (L == Level::LA) {
            return fma(h * e, horner(e, Of::la_poly), h);
        } else if constexpr (sizeof(T) == sizeof(double)) {
            return fma(h * e, horner(e, Of::ep_poly), h);
        } else {
            return h;
        }
    }

    template <int N>
    QORL_INLINE static Mask<T, N> special(Pack<T, N> a, Pack<T, N> b) {
        using Bits = typename Lane<T>::Bits;
        // The bits of s, moved up so that from top / 2 on they are those of NaN or of negative numbers.
        constexpr Bits up = std::numeric_limits<Bits>::max() - std::bit_cast<Bits>(Of::top) + 1;
        constexpr T least = std::bit_cast<T>(std::bit_cast<Bits>(Of::least) + up);
        return not_less_equal(Pack<T, N>(least), real(bits(a * a + b * b) + Pack<Bits, N>(up)));
    }

    static int scalar(T a, T b, T *y) {
        const long double x = a, z = b;
        *y = std::isinf(a) || std::isinf(b) ? std::numeric_limits<T>::infinity()
                                            : static_cast<T>(std::sqrt(x * x + z * z));
        return 0;
    }
};

}  // namespace qorl

#endif
