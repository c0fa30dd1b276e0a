// Constants and polynomials of the single-precision hyperbolic sine and cosine.
//
// Written by tools/tables/cosh_sinh_s.cpp: every number from its rule in 200 bits, rounded once. Do not edit.
#ifndef QORL_KERNELS_TABLES_COSH_SINH_S_HPP
#define QORL_KERNELS_TABLES_COSH_SINH_S_HPP

#include <array>

namespace qorl::tables {

inline constexpr float sinh_cosh_per_ln2_s = 0x1.715476p+0f;  // 1 / ln 2
inline constexpr float sinh_cosh_ln2_s = 0x1.62e43p-1f;  // ln 2
inline constexpr float sinh_cosh_ln2_rest_s = -0x1.05c61p-29f;  // what that lacks
inline constexpr float sinh_cosh_ln2_hi_s = 0x1.62e4p-1f;  // ln 2 to 16 bits, so that its products with n are exact
inline constexpr float sinh_cosh_ln2_lo_s = 0x1.7f7d1cp-20f;  // the rest
inline constexpr float sinh_cosh_shift_s = 0x1.8000fcp+23f;  // rounds to an integer n; the low bits then hold n + 126
inline constexpr double sinh_cosh_per_ln2_d = 0x1.71547652b82fep+0;  // 1 / ln 2
inline constexpr double sinh_cosh_ln2_d = 0x1.62e42fefa39efp-1;  // ln 2
inline constexpr double sinh_cosh_shift_d = 0x1.80000000003fep+52;  // rounds to an integer n; the low bits then hold n + 1022
inline constexpr float sinh_cosh_fast_bound = 0x1.5d589ep+6f;  // 126 ln 2: up to here 2^(-n-1) is no denormal
inline constexpr float sinh_cosh_overflow_bound = 0x1.65a9f8p+6f;  // the largest x with a finite result

// sinh(r) = r (1 + y (c0 + c1 y + ...)), y = r^2 on [0, 0.120138492], relative error 2^-37.47.
inline constexpr std::array<double, 3> sinh_wide_poly_s = {
    0x1.5555557387dc3p-3,
    0x1.1110b1c325f3cp-7,
    0x1.a16ff27e97ecp-13,
};

// cosh(r) = 1 + y (c0 + c1 y + ...), y = r^2 on [0, 0.120138492], relative error 2^-34.31.
inline constexpr std::array<double, 3> cosh_wide_poly_s = {
    0x1.00000043faeeep-1,
    0x1.55547eccb513dp-5,
    0x1.6d9791e4cfa89p-10,
};

// sinh(r) = r (1 + y (c0 + c1 y + ...)), y = r^2 on [0, 0.120138492], relative error 2^-30.96.
inline constexpr std::array<float, 3> sinh_ha_poly_s = {
    0x1.555556p-3f,
    0x1.1110b2p-7f,
    0x1.a16ff2p-13f,
};

// sinh(r) = r (1 + y (c0 + c1 y + ...)), y = r^2 on [0, 0.120138492], relative error 2^-26.14.
inline constexpr std::array<float, 2> sinh_la_poly_s = {
    0x1.5554bp-3f,
    0x1.122802p-7f,
};

// cosh(r) = 1 + y (c0 + c1 y + ...), y = r^2 on [0, 0.120138492], relative error 2^-29.95.
inline constexpr std::array<float, 3> cosh_la_poly_s = {
    0x1p-1f,
    0x1.55547ep-5f,
    0x1.6d9792p-10f,
};

// sinh(r) = r (1 + y (c0 + c1 y + ...)), y = r^2 on [0, 0.120138492], relative error 2^-15.57.
inline constexpr std::array<float, 1> sinh_ep_poly_s = {
    0x1.57094ep-3f,
};

// cosh(r) = 1 + y (c0 + c1 y + ...), y = r^2 on [0, 0.120138492], relative error 2^-13.27.
inline constexpr std::array<float, 1> cosh_ep_poly_s = {
    0x1.02218ap-1f,
};

}  // namespace qorl::tables

#endif
