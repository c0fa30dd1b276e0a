// The unbiased exponent of x, single and double precision, one kernel for all levels. Exact.
//
// Method   The exponent field becomes the low bits of 2^(p - 1), p the precision, from which 2^(p - 1) plus the bias is
//          taken away as a number.
// Range    the bodies take normal numbers of either sign; the rest goes to the scalar function. NaN stays, either
//          infinity gives inf, a zero of either sign -inf and status 1, a denormal its exponent by exact scaling.
#include <bit>
#include <cmath>
#include <limits>

#include "frame/entry_points.hpp"

namespace qorl {
namespace {

template <class T>
struct Logb : OneResult<T> {
    using Limits = std::numeric_limits<T>;
    using Bits = typename Lane<T>::Bits;
    static constexpr int packs = 4;
    static constexpr T shift = 1 / Limits::epsilon();  // 2^(p - 1): its last place is 1
    static constexpr T bias = Limits::max_exponent - 1;

    template <int N>
    QORL_INLINE static Pack<T, N> body(Pack<T, N> x) {
        const auto field = shift_right(shift_left(bits(x), 1), Limits::digits);
        return real(field | bits(Pack<T, N>(shift))) - Pack<T, N>(shift + bias);
    }
    template <int N>
    QORL_INLINE static Mask<T, N> special(Pack<T, N> x) {  // an exponent field of zeros or ones
        return not_less_equal(abs(body(x) - Pack<T, N>(T(0.5))), bias);
    }
    [[gnu::noinline]] static int scalar(T x, T *y) {
        const T value = x + T(0);  // quiets a signalling NaN
        if (value == 0) {
            *y = -Limits::infinity();
            return 1;
        }
        if (!std::isfinite(value)) {
            *y = std::fabs(value);
            return 0;
        }
        const auto scaled = std::bit_cast<Bits>(std::fabs(value) * shift);  // a normal number
        *y = static_cast<T>(scaled >> (Limits::digits - 1)) - (bias + (Limits::digits - 1));
        return 0;
    }
};

}  // namespace
}  // namespace qorl

QORL_UNARY(s, Logb, LA, qorl::Logb<float>);
QORL_UNARY(d, Logb, LA, qorl::Logb<double>);
