// Polynomials of the double-precision square roots.
//
// Written by tools/tables/sqrt_d.cpp: every number from its rule in 200 bits, rounded once. Do not edit.
#ifndef QORL_KERNELS_TABLES_SQRT_D_HPP
#define QORL_KERNELS_TABLES_SQRT_D_HPP

#include <array>

namespace qorl::tables {

// (1 - e)^(-1/2) = 1 + e (c0 + c1 e + ...) on [-0.000735418058, 0.000735147738], absolute error 2^-58.07.
inline constexpr std::array<double, 4> inv_sqrt_poly = {
    0x1.ffffffffffe6bp-2,
    0x1.80000000000b5p-2,
    0x1.40000b291f462p-2,
    0x1.1800037270987p-2,
};

// (1 - e)^(-1/2) = 1 + e (c0 + c1 e) on [-0.000735418058, 0.000735147738], absolute error 2^-34.91.
inline constexpr std::array<double, 2> inv_sqrt_short_poly = {
    0x1.00000440708cep-1,
    0x1.8000038b09b19p-2,
};

}  // namespace qorl::tables

#endif
