// Constants of the single-precision logarithms.
//
// Written by tools/tables/log_s.cpp: every number from its rule in 200 bits, rounded once. Do not edit.
#ifndef QORL_KERNELS_TABLES_LOG_S_HPP
#define QORL_KERNELS_TABLES_LOG_S_HPP

#include <array>

namespace qorl::tables {

inline constexpr float log_s_low = 0x1.5561aap-1f;  // 10^(1/8) / 2, the least m
inline constexpr float log_s_ln2_hi = 0x1.62e4p-24f;  // 2^-23 ln 2 to 16 bits, so that its products with 2^23 e are exact
inline constexpr float log_s_ln2_lo = 0x1.7f7d1cp-43f;  // the rest
inline constexpr float log_s_ln2 = 0x1.62e43p-24f;  // 2^-23 ln 2
inline constexpr float log_s_lg2 = 0x1.344136p-25f;  // 2^-23 log10 2
inline constexpr float log_s_one = 0x1p-23f;  // 2^-23 log2 2
inline constexpr float log10_s_unit = 0x1.bcb7b2p-2f;  // 1 / ln 10
inline constexpr float log10_s_unit_lo = -0x1.5b235ep-27f;  // the rest
inline constexpr float log2_s_unit = 0x1.715476p+0f;  // 1 / ln 2
inline constexpr float log2_s_unit_lo = 0x1.4ae0cp-26f;  // the rest

// ln(1 + u) = u - u^2/2 + u^3 (c0 + c1 u + ...) on [-0.33325, 0.33354], relative error 2^-30.04.
inline constexpr std::array<float, 9> log_s_ha_poly = {
    0x1.555556p-2f,
    -0x1.ffff0ep-3f,
    0x1.99980ep-3f,
    -0x1.55992ap-3f,
    0x1.24e66ap-3f,
    -0x1.f3862cp-4f,
    0x1.b99f1cp-4f,
    -0x1.071996p-3f,
    0x1.e7c346p-4f,
};

// ln(1 + u) = u (c0 + c1 u + ...) on [-0.33325, 0.33354], relative error 2^-25.10.
inline constexpr std::array<float, 9> ln_s_la_poly = {
    0x1p+0f,
    -0x1.ffffd2p-2f,
    0x1.555504p-2f,
    -0x1.001524p-2f,
    0x1.99d096p-3f,
    -0x1.501f28p-3f,
    0x1.1ed6f6p-3f,
    -0x1.3b8468p-3f,
    0x1.1e50cap-3f,
};

// ln(1 + u) = u (c0 + c1 u + ...) on [-0.33325, 0.33354], relative error 2^-11.43.
inline constexpr std::array<float, 4> ln_s_ep_poly = {
    0x1.ffd116p-1f,
    -0x1.ff285p-2f,
    0x1.6e7ff8p-2f,
    -0x1.1c3e32p-2f,
};

// log10(1 + u) = u (c0 + c1 u + ...) on [-0.33325, 0.33354], relative error 2^-24.56.
inline constexpr std::array<float, 9> log10_s_la_poly = {
    0x1.bcb7b2p-2f,
    -0x1.bcb78ap-3f,
    0x1.28798ep-3f,
    -0x1.bcdc28p-4f,
    0x1.641eb2p-4f,
    -0x1.23f79p-4f,
    0x1.ee796cp-5f,
    -0x1.11fbfp-4f,
    0x1.005138p-4f,
};

// log10(1 + u) = u (c0 + c1 u + ...) on [-0.33325, 0.33354], relative error 2^-11.43.
inline constexpr std::array<float, 4> log10_s_ep_poly = {
    0x1.bc8ef2p-2f,
    -0x1.bbfc5ap-3f,
    0x1.3e5678p-3f,
    -0x1.edc7d4p-4f,
};

// log2(1 + u) = u (c0 + c1 u + ...) on [-0.33325, 0.33354], relative error 2^-24.75.
inline constexpr std::array<float, 9> log2_s_la_poly = {
    0x1.715476p+0f,
    -0x1.715456p-1f,
    0x1.ec70c8p-2f,
    -0x1.717298p-2f,
    0x1.2789eap-2f,
    -0x1.e4f74ap-3f,
    0x1.9fc41cp-3f,
    -0x1.c6fbdap-3f,
    0x1.953bap-3f,
};

// log2(1 + u) = u (c0 + c1 u + ...) on [-0.33325, 0.33354], relative error 2^-11.43.
inline constexpr std::array<float, 4> log2_s_ep_poly = {
    0x1.7132ap+0f,
    -0x1.70b8ep-1f,
    0x1.085fbp-1f,
    -0x1.9a136ep-2f,
};

// ln(1 + u) = u + u^2 (c0 + c1 u + ...) on [-0.33325, 0.33354], relative error 2^-14.19.
inline constexpr std::array<float, 4> log1p_s_ep_poly = {
    -0x1.ff4474p-2f,
    0x1.543f98p-2f,
    -0x1.1a058p-2f,
    0x1.d0aa1ep-3f,
};

// 1/(1 + u) on [-0.33325, 0.33354], absolute error 2^-3.96.
inline constexpr std::array<float, 2> log1p_s_inverse = {
    0x1.0f8862p+0f,
    -0x1.1feb5cp+0f,
};

}  // namespace qorl::tables

#endif
