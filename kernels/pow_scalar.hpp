// a^b for one pair of numbers: the lanes that the vector bodies leave, and all that has a case of its own. Written once
// over double and float.
//
// Method   Cases first, in the order below. What is left has a finite a > 0, other than 1, and a finite b other than 0:
//          log2 a in two words from the table of the vector body, its product with b in two words, 2^(j/128) times a
//          polynomial. Single precision takes the same steps in double and rounds once at the end.
// Error    0.52 ulp, denormal results included: they too are rounded once.
// Source   S. Gal and B. Bachelis, An accurate elementary mathematical library for the IEEE floating point standard,
//          ACM TOMS 17(1), 1991; P. T. P. Tang, ACM TOMS 15(2), 1989, and 16(4), 1990; sums and products with their
//          errors: T. J. Dekker, Numer. Math. 18, 1971.
#ifndef QORL_KERNELS_POW_SCALAR_HPP
#define QORL_KERNELS_POW_SCALAR_HPP

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>

#include "frame/poly.hpp"
#include "kernels/exp_scalar.hpp"
#include "kernels/tables/pow_d.hpp"

namespace qorl {

// An unevaluated sum, |low| far below |high|. V is a number or a pack of them.
template <class V>
struct TwoWords {
    V high, low;
};

inline double fms(double a, double b, double c) {
    return std::fma(a, b, -c);
}

inline double fnma(double a, double b, double c) {
    return std::fma(-a, b, c);
}

// s + s_low + log2(1 + u) to 2^-68 of its size, for |u| <= 1.38 2^-10; s is 0 or above log2(1 + u). The product with
// log2(e) is rounded before it is added: s - sum is a number of 53 bits then, which it is not after a fused sum where
// an estimate of the reciprocal far off leaves s and u of opposite sign next to 1.
template <class V>
QORL_INLINE TwoWords<V> add_log2(V s, V s_low, V u) {
    using namespace tables;
    using std::fma;
    // log(1 + u) = u - u^2/2 + ...: the first two in two words, for the square is 2^-10 of u and its rounding would
    // show.
    const V half = V(0.5) * u, high = fnma(half, u, u);
    const V low = fma(half * u * u, horner(u, pow_ln_poly), fnma(half, u, u - high));
    const V product = high * V(pow_log2_e);
    const V sum = s + product;
    const V error = fms(high, V(pow_log2_e), product) + (((s - sum) + product) + s_low);
    return {sum, fma(low, V(pow_log2_e), fma(high, V(pow_log2_e_low), error))};
}

// x b = n + f. n = shifted - shift is `leading` b rounded to a multiple of the unit in the last place of shift, whose
// low bits hold it; leading is x or close to it.
template <class V>
struct Split {
    V shifted, n, f;
};
template <class V>
QORL_INLINE Split<V> multiply(TwoWords<V> x, V b, V leading, V shift) {
    using std::fma;
    const V shifted = fma(leading, b, shift), n = shifted - shift;
    return {shifted, n, fma(x.low, b, fms(x.high, b, n))};
}

constexpr double pow_shift = 0x1.8p45, pow_la_shift = 0x1.8p44;  // for multiples of 1/128 and 1/256

namespace detail {

// log2 a of a finite a > 0, denormal numbers included.
inline TwoWords<double> log2_words(double a) {
    double exponent = -1023;
    if (a < std::numeric_limits<double>::min()) {
        a *= 0x1p200;
        exponent -= 200;
    }
    const std::int64_t bits = std::bit_cast<std::int64_t>(a);
    const double m = std::bit_cast<double>((bits & 0x000FFFFFFFFFFFFF) | std::bit_cast<std::int64_t>(0x1p-10));
    const double r = std::nearbyint(1 / m);
    const auto row = 2 * static_cast<std::size_t>(r - 512);
    return add_log2(static_cast<double>(bits >> 52) + exponent + tables::pow_log2_pairs[row],
                    tables::pow_log2_pairs[row + 1], fms(m, r, 1));
}

// 2^(log b) for |log b| below 2^12.
inline ExpParts exp2_parts(TwoWords<double> log, double b) {
    const Split<double> w = multiply(log, b, log.high, pow_shift);
    const std::int64_t n = std::bit_cast<std::int64_t>(w.shifted) - std::bit_cast<std::int64_t>(pow_shift);
    const int j = static_cast<int>(n & 127);
    return {tables::pow_exp2_pairs[2 * j], tables::pow_exp2_pairs[2 * j + 1], w.f * horner(w.f, tables::pow_exp2_poly),
            n >> 7};
}

}  // namespace detail

// A positive number rounded to T, infinity and zero included, and the exponent of its leading bit, which goes on where
// the numbers of T end.
template <class T>
struct Magnitude {
    T value;
    int exponent;
};

// a^b for finite a > 0 and finite b.
template <class T>
Magnitude<T> magnitude(T a, T b) {
    const TwoWords<double> log = detail::log2_words(static_cast<double>(a));
    const auto exponent_of = [](double x) { return static_cast<int>(std::bit_cast<std::uint64_t>(x) >> 52 & 0x7FF); };
    const int sum = exponent_of(log.high) + exponent_of(static_cast<double>(b));
    if (sum >= 2057) {  // |b log2 a| >= 2^11
        const bool large = std::signbit(log.high) == std::signbit(b);
        return large ? Magnitude<T>{std::numeric_limits<T>::infinity(), 2048} : Magnitude<T>{T(0), -2048};
    }
    if (sum < 1985) return {T(1), 0};  // |b log2 a| < 2^-60
    const ExpParts e = detail::exp2_parts(log, static_cast<double>(b));
    const double z = e.t + std::fma(e.t, e.q, e.t_lo);
    const auto k = static_cast<int>(e.k);
    Magnitude<T> power = {T(0), k - (z < 1)};
    if (power.exponent >= std::numeric_limits<T>::max_exponent)
        power.value = std::numeric_limits<T>::infinity();
    else if (power.exponent < std::numeric_limits<T>::min_exponent - std::numeric_limits<T>::digits - 2)
        power.value = 0;
    else if constexpr (sizeof(T) == sizeof(float))
        power.value = static_cast<float>(z * power_of_two(k));
    else
        power.value = k > -1022 ? assemble(e) : assemble_denormal(e);
    return power;
}

enum class Integer { none, even, odd };

template <class T>
Integer integer_kind(T b) {  // infinities are even, as every number from 2^54 on
    if (std::trunc(b) != b) return Integer::none;
    return std::trunc(b / 2) == b / 2 ? Integer::even : Integer::odd;
}

// a^b where one of them is infinite and neither a NaN; `sign` is that of a finite power.
template <class T>
T infinite_power(T a, T b, T sign) {
    if (std::abs(a) < 1) return b < 0 ? b * b : T(0);
    return b < 0 ? sign * T(0) : sign * (a * a * b);
}

// Pow: 1 for a domain error, 3 for an infinite result of finite numbers. A pole is a domain error, and small results
// raise nothing; Powr differs in both.
template <class T>
[[gnu::noinline]] int pow_scalar(T a, T b, T *y) {
    const Integer kind = integer_kind(b);
    const T sign = kind == Integer::odd && std::signbit(a) ? T(-1) : T(1);
    if (a == 1 || b == 0) {
        *y = 1;
        return 0;
    }
    if (std::isnan(a) || std::isnan(b)) {
        *y = a + b;
        return 0;
    }
    if (a == 0) {
        *y = b < 0 ? sign / (a * a) : a * a * sign;
        return b < 0 ? 1 : 0;
    }
    if (a == -1 && kind != Integer::none) {
        *y = sign;
        return 0;
    }
    if (std::isinf(a) || std::isinf(b)) {
        *y = infinite_power(a, b, sign);
        return 0;
    }
    if (a < 0 && kind == Integer::none) {
        *y = std::numeric_limits<T>::quiet_NaN();
        return 1;
    }
    *y = sign * magnitude(std::abs(a), b).value;
    return std::isinf(*y) ? 3 : 0;
}

// Powr: the power as e^(b log a) gives it, a domain error for negative a only, 3 for overflow, 4 for underflow by more
// than ten bits into the denormal numbers.
template <class T>
[[gnu::noinline]] int powr_scalar(T a, T b, T *y) {
    constexpr T infinity = std::numeric_limits<T>::infinity(), nan = std::numeric_limits<T>::quiet_NaN();
    if (std::isnan(a)) {
        *y = a + a;
        return 0;
    }
    if ((a == infinity && b == 0) || (a == 0 && b == 0)) {
        *y = nan;
        return 0;
    }
    if (a == 0) {
        *y = std::isnan(b) ? a + b : b > 0 ? T(0) : infinity;
        return 0;
    }
    if (a == 1) {
        *y = std::isfinite(b) ? T(1) : nan;
        return 0;
    }
    if (a < 0) {
        *y = nan;
        return 1;
    }
    if (b == 0) {
        *y = 1;
        return 0;
    }
    if (std::isnan(b)) {
        *y = a + b;
        return 0;
    }
    if (std::isinf(a) || std::isinf(b)) {
        *y = infinite_power(a, b, T(1));
        return 0;
    }
    constexpr int least_exponent = std::numeric_limits<T>::min_exponent - 11;  // -1032, -136
    const Magnitude<T> power = magnitude(a, b);
    *y = power.value;
    if (std::isinf(power.value)) return 3;
    return power.exponent < least_exponent ? 4 : 0;
}

}  // namespace qorl

#endif
