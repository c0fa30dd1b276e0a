// Constants of the single-precision square roots.
//
// Written by tools/tables/sqrt_s.cpp: every number from its rule in 200 bits, rounded once. Do not edit.
#ifndef QORL_KERNELS_TABLES_SQRT_S_HPP
#define QORL_KERNELS_TABLES_SQRT_S_HPP

#include <array>

namespace qorl::tables {

inline constexpr float newton_half = 0x1.fffffap-2f;  // 0.5 (1 - 3 2^-24)

// (1 - e)^(-1/2) = 1 + e (c0 + c1 e) on [-0.000732555985, 0.00170825422], absolute error 2^-31.96.
inline constexpr std::array<float, 2> inv_sqrt_s_poly = {
    0x1.000006p-1f,
    0x1.8061ep-2f,
};

}  // namespace qorl::tables

#endif
