// Constants of the hypotenuse.
//
// Written by tools/tables/hypot.cpp: every number from its rule in 200 bits, rounded once. Do not edit.
#ifndef QORL_KERNELS_TABLES_HYPOT_HPP
#define QORL_KERNELS_TABLES_HYPOT_HPP

#include <array>

namespace qorl::tables {

// (1 - e)^(-1/2) = 1 + e (c0 + c1 e + ...) on [-0.000732555985, 0.000732555985], relative error 2^-58.09.
inline constexpr std::array<double, 4> hypot_d_la_poly = {
    0x1.ffffffffffe71p-2,
    0x1.7fffffffffd02p-2,
    0x1.40000b13da38dp-2,
    0x1.18000d712afbcp-2,
};

// (1 - e)^(-1/2) = 1 + e (c0 + c1 e + ...) on [-0.000732555985, 0.000732555985], relative error 2^-34.92.
inline constexpr std::array<double, 2> hypot_d_ep_poly = {
    0x1.00000438485f9p-1,
    0x1.800009d8ec8ebp-2,
};

// (1 - e)^(-1/2) = 1 + e (c0 + c1 e + ...) on [-0.000732555985, 0.000732555985], relative error 2^-34.71.
inline constexpr std::array<float, 2> hypot_s_la_poly = {
    0x1.000004p-1f,
    0x1.80000ap-2f,
};

}  // namespace qorl::tables

#endif
