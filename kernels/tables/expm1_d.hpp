// Constants of the double-precision e^x - 1.
//
// Written by tools/tables/expm1_d.cpp: every number from its rule in 200 bits, rounded once. Do not edit.
#ifndef QORL_KERNELS_TABLES_EXPM1_D_HPP
#define QORL_KERNELS_TABLES_EXPM1_D_HPP

#include <array>

namespace qorl::tables {

inline constexpr double expm1_shift = 0x1.800000000ffcp+52;  // round_shift, with the exponent bias in 64 steps an octave
inline constexpr double expm1_ep_shift = 0x1.800000001ff8p+52;  // the same for 128 steps an octave

// e^r - 1 = r + r^2 (c0 + c1 r + ...) on [-0.00545785182, 0.00545785182], relative error 2^-62.10.
inline constexpr std::array<double, 5> expm1_poly = {
    0x1p-1,
    0x1.5555555554aa9p-3,
    0x1.5555555554808p-5,
    0x1.111122bd03805p-7,
    0x1.6c16d9e8d018ep-10,
};

// e^r - 1 = r + r^2 (c0 + c1 r) on [-0.00272892591, 0.00272892591], relative error 2^-32.13.
inline constexpr std::array<double, 2> expm1_ep_poly = {
    0x1.000007cedf0d1p-1,
    0x1.55555da9a6fc9p-3,
};

}  // namespace qorl::tables

#endif
