// Cube root, inverse cube root and the power 2/3: the body that both types and all levels share.
//
// Method   Three steps, without division and without table.
//          1. y0 is the number with the bits of a constant less a third of those of |x|: bits are roughly a logarithm,
//             and the third is a multiplication of which the upper half is kept, of exponent and mantissa at once.
//             Then w = |x| y0^3 lies in [2/3, 64/81]; in single precision, where 16 bits are divided, in [0.671,
//             0.809].
//          2. y = y0 p(w), p near w^(-1/3), cut to half the bits, so that y^2 is exact.
//          3. r = 1 - |x| y^3 in fused steps, |r| below 2^-18.4 (d) and 2^-9.2 (s), and the binomial series
//             x^(1/3) = x y^2 (1 - r)^(-2/3), x^(-1/3) = y (1 - r)^(-1/3), x^(2/3) = |x| y (1 - r)^(-1/3)
//             to its second term, refitted. At HA the product h with x comes in two words, h + l.
//          EP: y0 p(w), x y0^2 p(w) or |x| y0 p(w) after step 1, p near w^(-1/3) or w^(-2/3).
//          A table by mantissa bits and exponent modulo 3 in place of p would save two or three fused operations, which
//          take less time than its index alone (1.3 clocks an element in double precision).
// Range    the bodies take all normal numbers. Zeros, denormals, infinities and NaN go to the scalar function, which
//          scales denormals by 2^54. No result is denormal or overflows; only 1/cbrt(0) has a status (2).
// Error    HA: the last rounding, 0.5 ulp; the series, 2^-58.2 (d) and 2^-33.4 (s) of the cube root; the rounding of
//          the correction, 2^-9 ulp in single precision. LA: h is off by d, |d| <= u = 2^-53 (d) or 2^-24 (s)
//          relative, and so is the r of this h. In h (1 + 2/3 r + ...) this leaves d/3, in y (1 + r/3 + ...) d/3, in
//          h (1 + r/3 + ...) 2/3 d, which with the last rounding is 0.84, 0.84 and 1.17 ulp. EP: the error of p.
//          Cubes have exact roots at LA and HA: what is rounded last is off by less than u/3 + 2^-58, less than half
//          the way to any neighbour of the root, u/2 or more.
// Source   The estimate: W. Kahan, Computing a real cube root, 1991; for the inverse root L. Moroz, V. Samotyy,
//          C. Walczyk, J. Cieslinski, Fast calculation of cube and inverse cube roots using a magic constant,
//          Energies 14(4), 2021.
#ifndef QORL_KERNELS_CBRT_HPP
#define QORL_KERNELS_CBRT_HPP

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>

#include "frame/kernel.hpp"
#include "frame/poly.hpp"
#include "kernels/tables/cbrt.hpp"

namespace qorl {

enum class Root { cbrt, inv_cbrt, pow2o3 };

// What the types differ in.
template <class T>
struct CbrtOf;
template <>
struct CbrtOf<double> {
    static constexpr double start = tables::cbrt_d_start;
    static constexpr auto third = tables::cbrt_d_third;
    static constexpr auto ep_third = tables::cbrt_d_ep_third, ep_two_thirds = tables::cbrt_d_ep_two_thirds;
    static constexpr auto rest_third = tables::cbrt_d_rest_third, rest_two_thirds = tables::cbrt_d_rest_two_thirds;
    static constexpr std::int64_t upper_26_bits = -(std::int64_t{1} << 27);

    template <int N>
    QORL_INLINE static Pack<std::int64_t, N> third_of(Pack<std::int64_t, N> bits) {
        constexpr std::int64_t third_of_2_to_32 = 0x55555555;
        return mul_low_halves(shift_right(bits, 32), third_of_2_to_32);
    }
    template <int N>
    QORL_INLINE static Pack<double, N> cut(Pack<double, N> y) {
        return real(bits(y) & upper_26_bits);
    }
};
template <>
struct CbrtOf<float> {
    static constexpr float start = tables::cbrt_s_start;
    static constexpr auto third = tables::cbrt_s_third;
    static constexpr auto ep_third = tables::cbrt_s_third, ep_two_thirds = tables::cbrt_s_ep_two_thirds;
    static constexpr auto rest_third = tables::cbrt_s_rest_third, rest_two_thirds = tables::cbrt_s_rest_two_thirds;
    static constexpr std::int32_t upper_12_bits = -(std::int32_t{1} << 12);

    template <int N>
    QORL_INLINE static Pack<std::int32_t, N> third_of(Pack<std::int32_t, N> bits) {
        constexpr std::int32_t third_of_2_to_16 = 0x5555;  // for the upper half of the bits; the lower one gives zero
        return mul_high_halves(bits, third_of_2_to_16 << 16);
    }
    template <int N>
    QORL_INLINE static Pack<float, N> cut(Pack<float, N> y) {
        return real(bits(y) & upper_12_bits);
    }
};

template <class T, Root R, Level L>
struct CubeRoot : OneResult<T> {
    static constexpr int packs = 2;
    using Of = CbrtOf<T>;
    static constexpr auto ep_poly = R == Root::cbrt ? Of::ep_two_thirds : Of::ep_third;
    static constexpr auto rest_poly = R == Root::cbrt ? Of::rest_two_thirds : Of::rest_third;

    template <int N>
    QORL_INLINE static Pack<T, N> body(Pack<T, N> x) {
        using P = Pack<T, N>;
        const P a = abs(x);
        P y0 = real(bits(P(Of::start)) - Of::third_of(bits(a)));
        if constexpr (R == Root::pow2o3)
            x = a;
        else
            y0 = y0 | (x ^ a);  // with the sign of x
        if constexpr (L == Level::EP) {
            const P y0_y0 = y0 * y0, f = first(y0, y0_y0), g = second(y0, y0_y0);
            const P h = x * f, w = h * g;
            return (R == Root::inv_cbrt ? y0 : h) * horner(w, ep_poly);
        } else {
            const P w = (x * y0) * (y0 * y0);
            const P y = Of::cut(y0 * horner(w, Of::third));
            const P yy = y * y, f = first(y, yy), g = second(y, yy);
            const P h = x * f, r_of_h = fnma(h, g, P(1));
            if constexpr (L == Level::LA) {
                const P base = R == Root::inv_cbrt ? y : h;
                return fma(base * r_of_h, horner(r_of_h, rest_poly), base);
            } else {
                const P l = fms(x, f, h);
                const P r = fnma(l, g, r_of_h), q = horner(r, rest_poly);
                return R == Root::inv_cbrt ? fma(y * r, q, y) : h + fma(h * r, q, l);
            }
        }
    }

    template <int N>
    QORL_INLINE static Mask<T, N> special(Pack<T, N> x) {
        using Bits = typename Lane<T>::Bits;
        using Limits = std::numeric_limits<T>;
        // The bits of normal numbers, moved up so that the largest becomes the largest integer; those above it wrap.
        constexpr Bits up = std::numeric_limits<Bits>::max() - std::bit_cast<Bits>(Limits::max());
        return int_greater(Pack<Bits, N>(std::bit_cast<Bits>(Limits::min()) + up), bits(abs(x)) + Pack<Bits, N>(up));
    }

    static int scalar(T x, T *y) {
        const T a = std::abs(x);
        if (!(a > 0 && a <= std::numeric_limits<T>::max())) {  // zeros, infinities, NaN
            *y = R == Root::cbrt ? x + x : R == Root::inv_cbrt ? 1 / x : x * x;
            return R == Root::inv_cbrt && x == 0 ? 2 : 0;
        }
        constexpr T up = T(0x1p54), back = R == Root::cbrt ? T(0x1p-18) : R == Root::inv_cbrt ? T(0x1p18) : T(0x1p-36);
        T lanes[Lane<T>::count];
        store(lanes, body(Pack<T, 1>(x * up)));
        *y = lanes[0] * back;
        return 0;
    }

  private:
    // y^3 in two factors, of which x times the first is the result, or on the way to it, but for a factor near 1.
    template <class P>
    QORL_INLINE static P first(P y, P yy) {
        return R == Root::pow2o3 ? y : yy;
    }
    template <class P>
    QORL_INLINE static P second(P y, P yy) {
        return R == Root::pow2o3 ? yy : y;
    }
};

}  // namespace qorl

#endif
