// Constants of the double-precision hyperbolic cosine and sine.
//
// Written by tools/tables/cosh_sinh_d.cpp: every number from its rule in 200 bits, rounded once. Do not edit.
#ifndef QORL_KERNELS_TABLES_COSH_SINH_D_HPP
#define QORL_KERNELS_TABLES_COSH_SINH_D_HPP

#include <array>

namespace qorl::tables {

inline constexpr double cosh_per_ln2 = 0x1.71547652b82fep+0;  // 1 / ln 2
inline constexpr double cosh_ln2_hi = 0x1.62e42fefa38p-1;  // ln 2 to 42 bits, so that its products with n are exact
inline constexpr double cosh_ln2_lo = 0x1.ef35793c7673p-45;  // the rest
inline constexpr double cosh_shift = 0x1.80000000003fep+52;  // rounds to an integer, the low bits of the sum are the exponent of 2^(n-1)

// cosh r - 1 = c0 x + c1 x^2 + ..., x = r^2, on [0, 0.121323455], absolute error 2^-57.08.
inline constexpr std::array<double, 5> coshm1_poly = {
    0x1.000000000000cp-1,
    0x1.555555554fc1dp-5,
    0x1.6c16c18687a2cp-10,
    0x1.a019943495af6p-16,
    0x1.28b27cdecc31dp-22,
};

// sinh(r) / r = 1 + c0 x + c1 x^2 + ..., x = r^2, on [0, 0.121323455], relative error 2^-60.58.
inline constexpr std::array<double, 5> sinh_poly = {
    0x1.5555555555559p-3,
    0x1.111111110f59fp-7,
    0x1.a01a01b05e675p-13,
    0x1.71ddf70375b9fp-19,
    0x1.af6139a41eccfp-26,
};

// cosh r - 1 = c0 x + c1 x^2 + ..., x = r^2, on [0, 0.121323455], absolute error 2^-34.24.
inline constexpr std::array<double, 3> coshm1_ep_poly = {
    0x1.00000046037f4p-1,
    0x1.55547a8a90cb2p-5,
    0x1.6d9b5f635b5f9p-10,
};

// sinh(r) / r = 1 + c0 x + c1 x^2 + ..., x = r^2, on [0, 0.121323455], relative error 2^-37.42.
inline constexpr std::array<double, 3> sinh_ep_poly = {
    0x1.555555746f0ebp-3,
    0x1.1110afdefa2a1p-7,
    0x1.a173533b655f1p-13,
};

}  // namespace qorl::tables

#endif
