// Constants of the double-precision e^x - 1.
//
// Written by tools/tables/expm1_d.cpp: every number from its rule in 200 bits, rounded once. Do not edit.
#ifndef QORL_KERNELS_TABLES_EXPM1_D_HPP
#define QORL_KERNELS_TABLES_EXPM1_D_HPP

#include <array>

namespace qorl::tables {

inline constexpr double expm1_shift = 0x1.800000000ffcp+52;  // round_shift, with the exponent bias in 64 steps an octave
inline constexpr double expm1_ep_shift = 0x1.800000001ff8p+52;  // the same for 128 steps an octave
inline constexpr double expm1_ha_shift = 0x1.80000000003ffp+52;  // the same for whole octaves
inline constexpr double expm1_per_ln2 = 0x1.71547652b82fep+0;  // 1 / ln 2
inline constexpr double expm1_offset = 0x1.ep-5;  // moves the ends of r upwards, to -0.288 and 0.405
inline constexpr double expm1_ln2_hi = 0x1.62e42fefa4p-1;  // ln 2 to 40 bits, so that its products with N are exact
inline constexpr double expm1_ln2_lo = -0x1.8432a1b0e2634p-43;  // the rest

// e^r - 1 = r + r^2 (c0 + c1 r + ...) on [-0.00545785182, 0.00545785182], relative error 2^-62.10.
inline constexpr std::array<double, 5> expm1_poly = {
    0x1p-1,
    0x1.5555555554aa9p-3,
    0x1.5555555554808p-5,
    0x1.111122bd03805p-7,
    0x1.6c16d9e8d018ep-10,
};

// e^r - 1 = r + r^2/2 + r^3 (c0 + c1 r + ...) on [-0.28857359, 0.40557359], relative error 2^-57.96.
inline constexpr std::array<double, 10> expm1_ha_poly = {
    0x1.5555555555553p-3,
    0x1.555555555562cp-5,
    0x1.1111111111ce3p-7,
    0x1.6c16c16bad92ep-10,
    0x1.a01a019b6025p-13,
    0x1.a01a0448e08f1p-16,
    0x1.71de3d6ebee93p-19,
    0x1.27dd4e4187dep-22,
    0x1.aebe8aaceb9bp-26,
    0x1.2f6ff18b3fad7p-29,
};

// e^r - 1 = r + r^2 (c0 + c1 r) on [-0.00272892591, 0.00272892591], relative error 2^-32.13.
inline constexpr std::array<double, 2> expm1_ep_poly = {
    0x1.000007cedf0d1p-1,
    0x1.55555da9a6fc9p-3,
};

}  // namespace qorl::tables

#endif
