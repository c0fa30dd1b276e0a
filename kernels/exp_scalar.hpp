// e^x for one double outside the range of the vector bodies: results next to overflow, denormal results, and the rest.
//
// Method   x = (64 k + j) ln2/64 + r, |r| <= ln2/128; e^x = 2^k (T + (T q(r) + Tlo)), T + Tlo = 2^(j/64) to 105 bits,
//          q of degree 6.
// Error    0.51 ulp, denormal results included: they are formed with 2^60 times their size and in two words where the
//          last rounding would otherwise come twice.
// Source   P. T. P. Tang, Table-driven implementation of the exponential function, ACM TOMS 15(2), 1989.
#ifndef QORL_KERNELS_EXP_SCALAR_HPP
#define QORL_KERNELS_EXP_SCALAR_HPP

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>

#include "frame/poly.hpp"
#include "kernels/tables/exp_d.hpp"

namespace qorl {

// e^x = 2^k (t + (t q + t_lo)).
struct ExpParts {
    double t, t_lo, q;
    std::int64_t k;
};

inline ExpParts exp_parts(double x) {
    using namespace tables;
    const double shifted = std::fma(x, exp_64_per_ln2, round_shift);
    const double n = shifted - round_shift;
    const double r = std::fma(-n, exp_ln2_64_lo, std::fma(-n, exp_ln2_64_hi, x));
    const std::int64_t bits = std::bit_cast<std::int64_t>(shifted) - std::bit_cast<std::int64_t>(round_shift);
    const int j = static_cast<int>(bits & 63);
    return {exp2_pairs_64[2 * j], exp2_pairs_64[2 * j + 1], std::fma(r * r, horner(r, exp_scalar_poly), r), bits >> 6};
}

inline double power_of_two(std::int64_t k) {  // for a normal result
    return std::bit_cast<double>((k + 1023) << 52);
}

// 2^k (t + (t q + t_lo)) for a result up to the very top of the range.
inline double assemble(const ExpParts &e) {
    const double z = e.t + std::fma(e.t, e.q, e.t_lo);
    if (e.k < 1024) return z * power_of_two(e.k);
    return z * 0x1p1023 + z * 0x1p1023;
}

// The same for a denormal result, rounded once at its final scale.
inline double assemble_denormal(const ExpParts &e) {
    const double scale = power_of_two(e.k + 60);
    const double high = e.t * scale, low = std::fma(e.t, e.q, e.t_lo) * scale;
    const double v = high + low;
    if (e.k + 1083 <= 50) return v * 0x1p-60;  // few bits are left: the second rounding is far below them
    constexpr double splitter = 0x1.8p32;
    const double w = (v + v * splitter) - v * splitter;  // the leading bits of v, exact at the final scale
    return 0x1p-60 * w + 0x1p-60 * ((low + (high - v)) + (v - w));
}

// Without error handling the far ends of e^x need no call: the lanes whose results are infinite or zero. Returns them.
template <class T, int N>
QORL_INLINE Mask<T, N> saturate_exp(Pack<T, N> x, Pack<T, N> &y, T overflow_bound, T underflow_bound) {
    const auto over = greater(x, overflow_bound), under = less(x, underflow_bound);
    y = select(over, std::numeric_limits<T>::infinity(), select(under, T(0), y));
    return over | under;
}

}  // namespace qorl

#endif
