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
//          scalar function, which scales the inputs and rounds denormal results once. An infinity with anything, NaN
//          too, gives infinity. No status.
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
#include <cstdint>
#include <limits>

#include "frame/kernel.hpp"
#include "frame/poly.hpp"
#include "kernels/estimate.hpp"
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

template <class T>
int hypot_scalar(T a, T b, T *y);

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

    static int scalar(T a, T b, T *y) { return hypot_scalar(a, b, y); }
};

// The double next to sqrt(big^2 + small^2), 1 <= big < 2, small <= big, by the body at HA.
inline double hypot_near_one(double big, double small) {
    return first_lane(Hypot<double, Level::HA>::body(Pack<double, 1>(big), Pack<double, 1>(small)));
}

// The multiple of `unit`, a power of two above h / 2^52, next to sqrt(big^2 + small^2), of which h is the double next
// to it. Only half way between two multiples does h not tell which is nearer; then the side on which h lies does.
inline double hypot_multiple(double h, double unit, double big, double small) {
    const double shift = 0x1p52 * unit, rounded = (h + shift) - shift;
    if (std::abs(h - rounded) != unit / 2) return rounded;
    const double aa = big * big, bb = small * small, s = aa + bb;
    const double low = (bb - (s - aa)) + (std::fma(big, big, -aa) + std::fma(small, small, -bb));
    const double rest = std::fma(-h, h, s) + low;
    return rest == 0 ? rounded : h + std::copysign(unit / 2, rest);
}

// All that the bodies leave, the same at every level, in double for both types: the larger input is brought into [1, 2)
// by powers of two, and the result rounded once on the way back.
template <class T>
[[gnu::noinline]] int hypot_scalar(T a, T b, T *y) {
    if (std::isinf(a) || std::isinf(b)) {
        *y = std::numeric_limits<T>::infinity();
        return 0;
    }
    if (std::isnan(a) || std::isnan(b)) {
        *y = a + b;
        return 0;
    }
    const double x = std::abs(a), z = std::abs(b);
    double big = std::fmax(x, z), small = std::fmin(x, z), back = 1;
    if (big < 0x1p-400 || big > 0x1p400) {  // first away from the ends of the range
        const double scale = big < 1 ? 0x1p700 : 0x1p-700;
        back = 1 / scale;
        big *= scale;
        small *= scale;
    }
    if (big == 0) {
        *y = 0;
        return 0;
    }
    constexpr std::int64_t exponent_bits = 0x7FF0000000000000, twice_bias = std::int64_t{2046} << 52;
    const std::int64_t power = std::bit_cast<std::int64_t>(big) & exponent_bits;
    const double scale = std::bit_cast<double>(twice_bias - power), unscale = std::bit_cast<double>(power);
    big *= scale;
    small *= scale;
    double h = hypot_near_one(big, small);
    if (back < 1 && h * unscale < std::numeric_limits<double>::min() / back)  // a denormal result
        h = hypot_multiple(h, std::numeric_limits<double>::denorm_min() / back * scale, big, small);
    *y = static_cast<T>(h * unscale * back);
    return 0;
}

}  // namespace qorl

#endif
