// Constants of the double-precision powers of 2 and 10.
//
// Written by tools/tables/exp2_d.cpp: every number from its rule in 200 bits, rounded once. Do not edit.
#ifndef QORL_KERNELS_TABLES_EXP2_D_HPP
#define QORL_KERNELS_TABLES_EXP2_D_HPP

#include <array>

namespace qorl::tables {

inline constexpr double exp2_shift = 0x1.8p+46;  // rounds to a multiple of 1/64, which the low bits then hold
inline constexpr double exp10_64_per_lg2 = 0x1.a934f0979a371p+7;  // 64 / log10 2
inline constexpr double exp10_lg2_64_hi = 0x1.3441350ap-8;  // log10(2) / 64 to 36 bits, so that its products with N are exact
inline constexpr double exp10_lg2_64_lo = -0x1.0c0219dc1da99p-45;  // the rest

// 2^r - 1 = r (c0 + c1 r + ...) on [-0.0078125, 0.0078125], absolute error 2^-59.18.
inline constexpr std::array<double, 5> exp2_poly = {
    0x1.62e42fefa39efp-1,
    0x1.ebfbdff82a2c5p-3,
    0x1.c6b08d7047e69p-5,
    0x1.3b2ad317df6bbp-7,
    0x1.5d881d535758cp-10,
};

// 10^r - 1 = r (c0 + c1 r + ...) on [-0.00237031493, 0.00237031493], absolute error 2^-58.85.
inline constexpr std::array<double, 5> exp10_poly = {
    0x1.26bb1bbb55516p+1,
    0x1.53524c73cd1a6p+1,
    0x1.0470591de1859p+1,
    0x1.2bd77bca63b7bp+0,
    0x1.142a1895375eap-1,
};

}  // namespace qorl::tables

#endif
