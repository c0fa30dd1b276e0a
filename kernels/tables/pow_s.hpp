// Tables and constants of the single-precision powers.
//
// Written by tools/tables/pow_s.cpp: every number from its rule in 200 bits, rounded once. Do not edit.
#ifndef QORL_KERNELS_TABLES_POW_S_HPP
#define QORL_KERNELS_TABLES_POW_S_HPP

#include <array>

namespace qorl::tables {

inline constexpr float pow_s_first = 0x1.696p-1f;  // the least mantissa; its bits and 2^20 times 0 to 7 more begin the cells
inline constexpr double pow_s_bias = 0x1.8p+8;  // in the table of logarithms
inline constexpr double pow_s_shift = 0x1.8p+20;  // rounds to a multiple of 2^-32, so that the words hold integer part and fraction
inline constexpr double pow_s_ha_round = 0x1p-4;  // added to it where the fraction is cut to eighths
inline constexpr double pow_s_la_round = 0x1p-1;  // and where it is cut to integers
inline constexpr float pow_s_fraction_unit = 0x1p-32f;  // of the fraction's word

// 1 / c for a cell of mantissas.
inline constexpr std::array<float, 8> pow_s_reciprocals = {
    0x1.6p+0f,
    0x1.4p+0f,
    0x1.3p+0f,
    0x1.1p+0f,
    0x1p+0f,
    0x1.dp-1f,
    0x1.ap-1f,
    0x1.8p-1f,
};

// The bias + log2 c.
inline constexpr std::array<double, 8> pow_s_logarithms = {
    0x1.7f8a62b07f345p+8,
    0x1.7fad961ed0cb9p+8,
    0x1.7fc087d28dfb3p+8,
    0x1.7fe99c090536fp+8,
    0x1.8p+8,
    0x1.80245b5b85567p+8,
    0x1.804caffb8dc3cp+8,
    0x1.806a3fe5c6043p+8,
};

// 2^(j/8).
inline constexpr std::array<float, 8> pow_s_eighths = {
    0x1p+0f,
    0x1.172b84p+0f,
    0x1.306fep+0f,
    0x1.4bfdaep+0f,
    0x1.6a09e6p+0f,
    0x1.8ace54p+0f,
    0x1.ae89fap+0f,
    0x1.d5818ep+0f,
};

// log2(1 + r) / r on [-0.0605621338, 0.0608062036], relative error 2^-37.27.
inline constexpr std::array<double, 7> pow_s_ha_log2 = {
    0x1.71547652b8122p+0,
    -0x1.7154765b52e3cp-1,
    0x1.ec709dd8fa1e8p-2,
    -0x1.7153e4ebf0fbap-2,
    0x1.27763a9c83e15p-2,
    -0x1.eed6816b70d9dp-3,
    0x1.a83af7f978033p-3,
};

// log2(1 + r) / r on [-0.0605621338, 0.0608062036], relative error 2^-32.04.
inline constexpr std::array<double, 6> pow_s_la_log2 = {
    0x1.715476541f91ap+0,
    -0x1.71547657b6181p-1,
    0x1.ec70330094975p-2,
    -0x1.71540b2b3a65ap-2,
    0x1.28a350dc7efc6p-2,
    -0x1.ee88ce782628p-3,
};

inline constexpr float pow_s_ep_first = 0x1.6a09e6p-1f;  // sqrt(1/2), the least mantissa at EP
inline constexpr float pow_s_ep_shift = 0x1.8p+23f;  // rounds to an integer, which the low bits then hold
inline constexpr float pow_s_ep_bound = 0x1.f6p+6f;  // the EP body takes |b log2 a| up to here

// log2(1 + f) / f on [-0.292893219, 0.414213562], relative error 2^-19.77.
inline constexpr std::array<float, 7> pow_s_ep_log2 = {
    0x1.71548ep+0f,
    -0x1.71569p-1f,
    0x1.ec295cp-2f,
    -0x1.6fff4p-2f,
    0x1.2ecd54p-2f,
    -0x1.13c764p-2f,
    0x1.5f6b26p-3f,
};

// 2^f on [-0.5001, 0.5001], relative error 2^-23.15.
inline constexpr std::array<float, 6> pow_s_la_exp2 = {
    0x1p+0f,
    0x1.62e42ap-1f,
    0x1.ebf9bcp-3f,
    0x1.c6b754p-5f,
    0x1.3ceab4p-7f,
    0x1.5bb9e4p-10f,
};

// 2^f on [-0.5001, 0.5001], relative error 2^-13.27.
inline constexpr std::array<float, 4> pow_s_ep_exp2 = {
    0x1p+0f,
    0x1.62f5fep-1f,
    0x1.f00cb6p-3f,
    0x1.c2a1aep-5f,
};

}  // namespace qorl::tables

#endif
