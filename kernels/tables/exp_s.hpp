// Tables and constants of the single-precision exponential family.
//
// Written by tools/tables/exp_s.cpp: every number from its rule in 200 bits, rounded once. Do not edit.
#ifndef QORL_KERNELS_TABLES_EXP_S_HPP
#define QORL_KERNELS_TABLES_EXP_S_HPP

#include <array>

namespace qorl::tables {

inline constexpr float exp_s_shift = 0x1.8p+23f;  // rounds to an integer, which the low bits then hold
inline constexpr float exp2_s_shift = 0x1.8p+20f;  // rounds to a multiple of 1/8, which the low bits then hold
inline constexpr float exp_s_per_ln2 = 0x1.715476p+0f;  // 1 / (ln 2)
inline constexpr float exp_s_ln2_hi = 0x1.62e43p-1f;  // ln 2
inline constexpr float exp_s_ln2_lo = -0x1.05c61p-29f;  // the rest
inline constexpr float exp_s_per_ln2_8 = 0x1.715476p+3f;  // 1 / (ln 2 / 8)
inline constexpr float exp_s_ln2_8_hi = 0x1.62e43p-4f;  // ln 2 / 8
inline constexpr float exp_s_ln2_8_lo = -0x1.05c61p-32f;  // the rest
inline constexpr float exp_s_per_lg2_8 = 0x1.a934fp+4f;  // 1 / (log10 2 / 8)
inline constexpr float exp_s_lg2_8_hi = 0x1.344136p-5f;  // log10 2 / 8
inline constexpr float exp_s_lg2_8_lo = -0x1.1b4172p-28f;  // the rest, times ln 10
inline constexpr float exp2_s_slope = 0x1.62e43p-1f;  // ln 2
inline constexpr float exp10_s_slope = 0x1.26bb1cp+1f;  // ln 10
inline constexpr double exp_s_ln2 = 0x1.62e42fefa39efp-1;  // ln 2, for the scalar function
inline constexpr double exp_s_ln10 = 0x1.26bb1bbb55516p+1;  // ln 10, for the scalar function

inline constexpr float exp_s_overflow_bound = 0x1.62e42ep+6f;  // the largest x with a finite result
inline constexpr float exp_s_underflow_bound = -0x1.9fe368p+6f;  // the least x with a result above zero
inline constexpr float exp_s_denormal_bound = -0x1.5d589ep+6f;  // the least x with a normal result
inline constexpr float exp_s_fast_bound = 0x1.5d589ep+6f;  // the bodies take |x| up to here
inline constexpr float exp2_s_overflow_bound = 0x1.fffffep+6f;  // the largest x with a finite result
inline constexpr float exp2_s_underflow_bound = -0x1.2bfffep+7f;  // the least x with a result above zero
inline constexpr float exp2_s_denormal_bound = -0x1.f8p+6f;  // the least x with a normal result
inline constexpr float exp2_s_fast_bound = 0x1.f8p+6f;  // the bodies take |x| up to here
inline constexpr float exp10_s_overflow_bound = 0x1.344134p+5f;  // the largest x with a finite result
inline constexpr float exp10_s_underflow_bound = -0x1.693c6ap+5f;  // the least x with a result above zero
inline constexpr float exp10_s_denormal_bound = -0x1.2f703p+5f;  // the least x with a normal result
inline constexpr float exp10_s_fast_bound = 0x1.2f703p+5f;  // the bodies take |x| up to here

inline constexpr float expm1_s_least = -0x1.205968p+4f;  // -26 ln 2: from here down the result is -1
inline constexpr float expm1_s_fast_bound = 0x1.61804cp+6f;  // 127.5 ln 2 less a margin: up to here N is at most 127
inline constexpr float expm1_s_ha_shift = 0x1.8000fep+23f;  // exp_s_shift, with the exponent bias in its low bits

// 2^(j/8), its bits less j 2^20: adding N 2^20 makes 2^(N/8), j = N mod 8.
inline constexpr std::array<float, 8> exp2_eighths = {
    0x1p+0f,
    0x1.f72b84p-1f,
    0x1.f06fep-1f,
    0x1.ebfdaep-1f,
    0x1.ea09e6p-1f,
    0x1.eace54p-1f,
    0x1.ee89fap-1f,
    0x1.f5818ep-1f,
};

// What 2^(j/8) has beyond its rounded value, relative to this.
inline constexpr std::array<float, 8> exp2_eighths_lo = {
    0x0p+0f,
    -0x1.9c0c22p-27f,
    0x1.125002p-25f,
    -0x1.0a355p-25f,
    0x1.26055cp-26f,
    0x1.67a1cap-28f,
    -0x1.f9c304p-27f,
    -0x1.a5217cp-28f,
};

// e^r = 1 + r + r^2 (c0 + c1 r + ...) on [-0.0433325319, 0.0433325319], absolute error 2^-32.44.
inline constexpr std::array<float, 3> exp_s_ha_poly = {
    0x1p-1f,
    0x1.555c76p-3f,
    0x1.555da8p-5f,
};

// e^r on [-0.346920511, 0.346920511], relative error 2^-23.34.
inline constexpr std::array<float, 6> exp_s_la_poly = {
    0x1p+0f,
    0x1.fffff6p-1f,
    0x1.fffdc2p-2f,
    0x1.555a7p-3f,
    0x1.573b4cp-5f,
    0x1.0fa77ap-7f,
};

// e^r on [-0.346920511, 0.346920511], relative error 2^-13.26.
inline constexpr std::array<float, 4> exp_s_ep_poly = {
    0x1p+0f,
    0x1.000ce2p+0f,
    0x1.021e76p-1f,
    0x1.52483cp-3f,
};

// 2^r = 1 + r ln 2 + r^2 (c0 + c1 r + ...), ln 2 rounded on [-0.0625156289, 0.0625156289], absolute error 2^-31.86.
inline constexpr std::array<float, 3> exp2_s_poly = {
    0x1.ebfbep-3f,
    0x1.c6ba0cp-5f,
    0x1.3b3266p-7f,
};

// 10^r = 1 + r ln 10 + r^2 (c0 + c1 r + ...), ln 10 rounded on [-0.0188190795, 0.0188190795], absolute error 2^-30.54.
inline constexpr std::array<float, 3> exp10_s_poly = {
    0x1.53524cp+1f,
    0x1.0475cap+1f,
    0x1.2bdebp+0f,
};

// e^r - 1 = r + r^2/2 + r^3 (c0 + c1 r + ...) on [-0.346920511, 0.346920511], relative error 2^-29.79.
inline constexpr std::array<float, 5> expm1_s_ha_poly = {
    0x1.555554p-3f,
    0x1.5554f2p-5f,
    0x1.1111ccp-7f,
    0x1.6d4104p-10f,
    0x1.9fbdccp-13f,
};

// e^r - 1 = r + r^2 (c0 + c1 r + ...) on [-0.346920511, 0.346920511], relative error 2^-25.77.
inline constexpr std::array<float, 5> expm1_s_la_poly = {
    0x1.fffffep-2f,
    0x1.5554bp-3f,
    0x1.555674p-5f,
    0x1.1227f6p-7f,
    0x1.6bebf4p-10f,
};

// e^r - 1 = r + r^2 (c0 + c1 r + ...) on [-0.346920511, 0.346920511], relative error 2^-15.57.
inline constexpr std::array<float, 3> expm1_s_ep_poly = {
    0x1.00022cp-1f,
    0x1.57092ap-3f,
    0x1.54de4cp-5f,
};

}  // namespace qorl::tables

#endif
