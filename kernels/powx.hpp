// a^b with one b for the whole call, both types.
//
// Method   Exponents that have a function of their own are handed over to it, through the slot of the same level and
//          form: its bits and its statuses. 0, 1 and 2 are loops. Everything else is the body of Pow with b in all
//          lanes and its scalar function, bit for bit. The exponent is told by its bits, so that -0 takes the general
//          way. The thirds are the numbers next to 1/3 and 2/3, for which the roots are the wrong function by
//          definition: a negative a has a cube root and no power, and at HA and LA the difference of the exponent can
//          show.
// Range    all a and b; see the functions. An overflowing square raises nothing.
// Error    that of Pow, or of the function that the exponent names.
#ifndef QORL_KERNELS_POWX_HPP
#define QORL_KERNELS_POWX_HPP

#include <bit>
#include <cstdint>

#include "frame/entry_points.hpp"

namespace qorl {

template <class T>
struct Ones : OneResult<T> {
    static constexpr int packs = 4;
    template <int N>
    QORL_INLINE static Pack<T, N> body(Pack<T, N>) {
        return T(1);
    }
};
template <class T>
struct Copy : OneResult<T> {
    static constexpr int packs = 4;
    template <int N>
    QORL_INLINE static Pack<T, N> body(Pack<T, N> x) {
        return x;
    }
};
template <class T>
struct Square : OneResult<T> {
    static constexpr int packs = 4;
    template <int N>
    QORL_INLINE static Pack<T, N> body(Pack<T, N> x) {
        return x * x;
    }
};

// The slots of a function of one argument.
struct Slots {
    void *const *unit, *const *strided;

    template <class T>
    void call(Level level, const UnitArrays<T, 1, 1> &x, std::int32_t n) const {
        using Kernel = void (*)(std::int32_t, const T *, T *);
        reinterpret_cast<Kernel>(unit[static_cast<int>(level)])(n, x.in[0], x.out[0]);
    }
    template <class T>
    void call(Level level, const StridedArrays<T, 1, 1> &x, std::int32_t n) const {
        using Kernel = void (*)(std::int32_t, const T *, std::int32_t, T *, std::int32_t);
        reinterpret_cast<Kernel>(strided[static_cast<int>(level)])(n, x.in[0],
                                                                   static_cast<std::int32_t>(x.in_stride[0]), x.out[0],
                                                                   static_cast<std::int32_t>(x.out_stride[0]));
    }
};

// Power is the kernel of Pow. Functions has the slots that exponents are handed over to.
template <class Power, class Functions, Level L>
struct Powx : OneResult<typename Power::Element> {
    using T = typename Power::Element;
    static constexpr int packs = Power::packs;

    T b;

    template <class Arrays>
    bool dispatch(const Arrays &arrays, std::int32_t n) const {
        using Bits = typename Lane<T>::Bits;
        const auto bits_of = [](double exponent) { return std::bit_cast<Bits>(static_cast<T>(exponent)); };
        const auto hand_over = [&](const Slots &function) {
            function.call(L, arrays, n);
            return true;
        };
        const auto loop = [&](const auto &kernel) {
            enter(kernel, arrays, n, "");
            return true;
        };
        switch (std::bit_cast<Bits>(b)) {
            case bits_of(0):
                return loop(Ones<T>{});
            case bits_of(1):
                return loop(Copy<T>{});
            case bits_of(2):
                return loop(Square<T>{});
            case bits_of(-1):
                return hand_over(Functions::inv);
            case bits_of(0.5):
                return hand_over(Functions::sqrt);
            case bits_of(-0.5):
                return hand_over(Functions::inv_sqrt);
            case bits_of(1.5):
                return hand_over(Functions::pow3o2);
            case bits_of(2.0 / 3):
                return L == Level::EP && hand_over(Functions::pow2o3);
            case bits_of(1.0 / 3):
                return L == Level::EP && hand_over(Functions::cbrt);
            case bits_of(-1.0 / 3):
                return L == Level::EP && hand_over(Functions::inv_cbrt);
            default:
                return false;
        }
    }

    template <int N>
    QORL_INLINE Pack<T, N> body(Pack<T, N> x) const {
        return Power::body(x, Pack<T, N>(b));
    }
    template <int N>
    QORL_INLINE Mask<T, N> special(Pack<T, N> x) const {
        return Power::special(x, Pack<T, N>(b));
    }
    int scalar(T x, T *y) const { return Power::scalar(x, b, y); }
};

}  // namespace qorl

#endif
