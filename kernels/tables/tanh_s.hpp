// Intervals of the single-precision hyperbolic tangent and their polynomials.
//
// Written by tools/tables/tanh_s.cpp: every number from its rule in 200 bits, rounded once. Do not edit.
#ifndef QORL_KERNELS_TABLES_TANH_S_HPP
#define QORL_KERNELS_TABLES_TANH_S_HPP

#include <array>

namespace qorl::tables {

inline constexpr float tanh_scale = 0x1.a4p+0f;  // HA, LA: 1 + scale |x| names the interval by its exponent and one bit
inline constexpr float tanh_end = 0x1.24p+3f;  // beyond it the result is 1
inline constexpr float tanh_ep_scale = 0x1.68p-1f;  // EP: by its exponent and two bits
inline constexpr float tanh_ep_end = 0x1.1p+2f;  // beyond it the result is 1

// centre, c0 .. c8 of c0 + r (c1 + r (c2 + ...)); c0 and c1 are all but exact. Relative error 2^-28.32.
inline constexpr std::array<std::array<float, 8>, 10> tanh_ha_rows = {{
    {0x1.ca46aep-1f, 0x1.7e611p+0f, 0x1.45d4bap+1f, 0x1.dde6dap+1f,
     0x1.654acap+2f, 0x1.f12e26p+2f, 0x0p+0f, 0x1.e98bcep-2f},
    {0x1.6d82ep-1f, 0x1.ced8c4p-1f, 0x1.f9bd5cp-1f, 0x1.ff6a44p-1f,
     0x1.fffc4ap-1f, 0x1.fffff4p-1f, 0x0p+0f, 0x1.c75f0cp-2f},
    {0x1.f6218ap-2f, 0x1.7659cap-3f, 0x1.8e35f2p-6f, 0x1.2b4c32p-9f,
     0x1.daec5p-15f, 0x1.7fff24p-21f, 0x1p+0f, 0x1.9abfap-1f},
    {-0x1.667746p-2f, -0x1.526984p-3f, -0x1.895864p-6f, -0x1.2af47ep-9f,
     -0x1.dac55cp-15f, -0x1.80252ep-21f, 0x1.0abaeap-31f, -0x1.6d518cp-2f},
    {0x1.621d52p-4f, 0x1.6a47d2p-4f, 0x1.ff9798p-7f, 0x1.8db342p-10f,
     0x1.3d1f5p-15f, 0x1.0032dap-21f, -0x1.55556p-2f, -0x1.bd80cep-4f},
    {0x1.c258a8p-5f, -0x1.9790d6p-6f, -0x1.e5f6d6p-8f, -0x1.8bed48p-11f,
     -0x1.3e4ba6p-16f, -0x1.fde2fep-23f, 0x1.157e18p-17f, 0x1.569aecp-3f},
    {-0x1.d48534p-5f, -0x1.80ae8cp-9f, 0x1.5d4874p-9f, 0x1.39a1cep-12f,
     0x1.f0c308p-18f, 0x1.94db82p-24f, 0x1.10ba6p-3f, -0x1.4ca59ep-6f},
    {0x1.df1388p-7f, 0x1.dc4f56p-8f, -0x1.76bc32p-11f, -0x1.987c6ep-14f,
     -0x1.3e1b8cp-19f, -0x1.1b793ep-25f, 0x1.a0ea04p-10f, -0x1.c0888p-5f},
    {0x1.43c36p-7f, -0x1.04a096p-8f, 0x1.5772bep-14f, 0x1.cfd604p-16f,
     0x1.c85fd8p-21f, 0x1.65347ap-27f, -0x1.fb747p-5f, 0x1.b18f48p-6f},
    {-0x1.254bap-7f, 0x1.02b2e8p-10f, 0x1.2dee82p-14f, -0x1.df16f4p-18f,
     -0x1.0dc2d6p-22f, -0x1.091a42p-29f, 0x1.4e7d76p-6f, 0x1.b3b5c6p-7f},
}};

// centre, c0 .. c6 of c0 + r (c1 + r (c2 + ...)); c0 is all but exact. Relative error 2^-23.50.
inline constexpr std::array<std::array<float, 8>, 8> tanh_la_rows = {{
    {0x1.b850ecp-1f, 0x1.7a6772p+0f, 0x1.2dbc1ap+1f, 0x1.ca2eb6p+1f,
     0x1.51c792p+2f, 0x1.fe23a6p+2f, 0x0p+0f, 0x1.d7303p-2f},
    {0x1.647b5ep-1f, 0x1.cd5f7cp-1f, 0x1.f6e72cp-1f, 0x1.ff3446p-1f,
     0x1.fff92ap-1f, 0x1.fffff8p-1f, 0x0p+0f, 0x1.b886ecp-2f},
    {0x1.07cc5cp-1f, 0x1.80fddcp-3f, 0x1.208484p-5f, 0x1.97260cp-9f,
     0x1.b59f76p-14f, 0x1.01884ap-21f, 0x1p+0f, 0x1.a13dfep-1f},
    {-0x1.6f550cp-2f, -0x1.5aee2ep-3f, -0x1.1b625p-5f, -0x1.9665b8p-9f,
     -0x1.b0c40ap-14f, -0x1.019388p-21f, -0x1.fd77ccp-23f, -0x1.66ff4p-2f},
    {0x1.3f7092p-4f, 0x1.70a5f4p-4f, 0x1.6c5e02p-6f, 0x1.0dc858p-9f,
     0x1.1e557ap-14f, 0x1.46e4f4p-22f, -0x1.554b1cp-2f, -0x1.eeed82p-4f},
    {0x1.09fee6p-4f, -0x1.915e5ap-6f, -0x1.52590ap-7f, -0x1.0e4edp-10f,
     -0x1.35f88ep-15f, -0x1.447ed2p-23f, -0x1.0f335cp-10f, 0x1.59cc7p-3f},
    {-0x1.e13b1ap-5f, -0x1.0db084p-8f, 0x1.ca45b2p-9f, 0x1.bba5e2p-12f,
     0x1.10881ap-16f, 0x1.5cb5e8p-24f, 0x1.24f44ep-3f, -0x1.b22418p-7f},
    {0x1.d7e534p-7f, 0x1.b17d3ap-8f, -0x1.725d68p-11f, -0x1.eeeb52p-14f,
     -0x1.ebeeaep-19f, -0x1.e11516p-26f, -0x1.367ecep-5f, -0x1.da87dp-5f},
}};

// c0 .. c2 of x (c0 + |x| (c1 + |x| c2)). Relative error 2^-11.26.
inline constexpr std::array<std::array<float, 8>, 3> tanh_ep_rows = {{
    {0x1.3207dap+0f, 0x1.125ecep+0f, 0x1.cebda4p-1f, 0x1.86c878p-1f,
     0x1.00062ep+0f, 0x1.053692p+0f, 0x1.18058ep+0f, 0x1.2c9fcp+0f},
    {-0x1.0441c4p-1f, -0x1.92bbf4p-2f, -0x1.18d4b2p-2f, -0x1.8e61eep-3f,
     -0x1.2d976p-8f, -0x1.cdb98cp-4f, -0x1.48e902p-2f, -0x1.e6c604p-2f},
    {0x1.366246p-4f, 0x1.9139dap-5f, 0x1.c86e36p-6f, 0x1.0f00fap-6f,
     -0x1.399ef4p-2f, -0x1.46c42p-3f, -0x1.65965ap-7f, 0x1.0246fap-4f},
}};

}  // namespace qorl::tables

#endif
