// Logarithms of one double outside the range of the vector bodies: denormal numbers, and what has no logarithm.
//
// Method   x = 2^e m, m in [1, 2), c = 1 + j/64 next to m: ln x = e ln2 + ln c + ln(1 + v), v = m/c - 1, |v| <= 2^-6.9;
//          1/c has 20 bits, so that its product with the leading bits of m is exact; ln c and ln2 in two words. Next to
//          1, ln x = v + v^2 q(v) with v = x - 1. The other bases multiply by their logarithm of e in two words.
// Error    0.51 ulp: the last addition, and 2^-70 relative to v before it.
// Source   P. T. P. Tang, Table-driven implementation of the logarithm function, ACM TOMS 16(4), 1990.
#ifndef QORL_KERNELS_LOG_SCALAR_HPP
#define QORL_KERNELS_LOG_SCALAR_HPP

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>

#include "frame/poly.hpp"
#include "kernels/tables/log_d.hpp"

namespace qorl {

// A base by the logarithms of 2 and e in it. The high word of that of 2 has few enough bits for exact products with
// exponents.
struct LogBase {
    double two_hi, two_lo, e_hi, e_lo;
};
inline constexpr LogBase base_e{tables::ln2_42_hi, tables::ln2_42_lo, 1, 0};
inline constexpr LogBase base_10{tables::log10_2_hi, tables::log10_2_lo, tables::log10_e, tables::log10_e_lo};
inline constexpr LogBase base_2{1, 0, tables::log2_e, tables::log2_e_lo};

// ln x = e ln2 + high + low.
struct LogParts {
    double e, high, low;
};

// Of a positive finite x.
inline LogParts log_parts(double x) {
    using namespace tables;
    constexpr double near_one = 0x1.4p-7;
    if (std::fabs(x - 1) <= near_one) {
        const double v = x - 1;
        return {0, v, v * v * horner(v, log_scalar_poly)};
    }
    std::int64_t bias = 1023;
    if (x < std::numeric_limits<double>::min()) {
        x *= 0x1p60;
        bias += 60;
    }
    const std::int64_t bits = std::bit_cast<std::int64_t>(x);
    constexpr std::int64_t one = std::bit_cast<std::int64_t>(1.0);
    const double m = std::bit_cast<double>((bits & 0x000FFFFFFFFFFFFF) | one);
    // 64 m + 64, rounded, stands in the low bits
    const auto j = std::bit_cast<std::uint64_t>(m + (0x1p46 + 1)) & 0x7F;
    const double *row = &log_scalar_rows[3 * j];
    const double m_high = (m + 0x1p21) - 0x1p21, r = std::fma(row[0], m_high, -1.0), r_low = row[0] * (m - m_high);
    const double v = r + r_low, high = row[1] + r;
    return {static_cast<double>((bits >> 52) - bias), high,
            (row[1] - high + r) + (row[2] + (r_low + v * v * horner(v, log_scalar_poly)))};
}

// The logarithm in a base from its parts: the sum of the leading words with what its rounding left.
inline double assemble(const LogParts &l, const LogBase &base) {
    const double p = l.high * base.e_hi, h = l.e * base.two_hi;
    const double p_low = std::fma(l.high, base.e_hi, -p) + std::fma(l.high, base.e_lo, l.low * base.e_hi);
    const double sum = h + p;
    return sum + ((h - sum + p) + (p_low + l.e * base.two_lo));
}

// Arguments that have no finite logarithm: the result and the status. False for positive finite x.
inline bool log_is_special(double x, double *y, int *status) {
    constexpr double inf = std::numeric_limits<double>::infinity(), nan = std::numeric_limits<double>::quiet_NaN();
    *status = 0;
    if (x == 0) {
        *y = -inf;
        *status = 2;
    } else if (x < 0) {
        *y = nan;
        *status = 1;
    } else if (!(x < inf)) {
        *y = x * x;
    } else {
        return false;
    }
    return true;
}

// The logarithm of x in a base; returns the status: 1 below zero, 2 at zero.
inline int log_scalar(double x, const LogBase &base, double *y) {
    int status;
    if (!log_is_special(x, y, &status)) *y = assemble(log_parts(x), base);
    return status;
}

}  // namespace qorl

#endif
