// Constants of the cube roots.
//
// Written by tools/tables/cbrt.cpp: every number from its rule in 200 bits, rounded once. Do not edit.
#ifndef QORL_KERNELS_TABLES_CBRT_HPP
#define QORL_KERNELS_TABLES_CBRT_HPP

#include <array>

namespace qorl::tables {

inline constexpr double cbrt_d_start = 0x1.c71c71c71c71cp+340;  // has the bits (4/3 1023 - 2/9) 2^52
inline constexpr float cbrt_s_start = 0x1.1c71c8p+42f;  // has the bits (4/3 127 - 2/9) 2^23

// w^(-1/3) on [0.666666667, 0.790124964], relative error 2^-20.03.
inline constexpr std::array<double, 4> cbrt_d_third = {
    0x1.ec66161e96159p+0,
    -0x1.fc8c3189673e6p+0,
    0x1.8fb0f6abb7c8dp+0,
    -0x1.003ca08dbff5dp-1,
};

// w^(-1/3) on [0.666666667, 0.790124964], relative error 2^-29.52.
inline constexpr std::array<double, 6> cbrt_d_ep_third = {
    0x1.1c7d94dbe4a71p+1,
    -0x1.e9d32cd258134p+1,
    0x1.81422dc0c01cp+2,
    -0x1.72ecdc612b9adp+2,
    0x1.8829a2d223a48p+1,
    -0x1.5e19408652d74p-1,
};

// w^(-2/3) on [0.666666667, 0.790124964], relative error 2^-27.67.
inline constexpr std::array<double, 6> cbrt_d_ep_two_thirds = {
    0x1.1c9b574d43f53p+2,
    -0x1.87f06c449fdb2p+3,
    0x1.51198b9d3669p+4,
    -0x1.512241e440063p+4,
    0x1.6bffda3088b6p+3,
    -0x1.494cb93c0565dp+1,
};

// (1 - r)^(-1/3) = 1 + r (c0 + c1 r) on [-2.8216344e-06, 2.91104137e-06], relative error 2^-59.74.
inline constexpr std::array<double, 2> cbrt_d_rest_third = {
    0x1.5555555559fa8p-2,
    0x1.c71c741e0d037p-3,
};

// (1 - r)^(-2/3) = 1 + r (c0 + c1 r) on [-2.8216344e-06, 2.91104137e-06], relative error 2^-58.22.
inline constexpr std::array<double, 2> cbrt_d_rest_two_thirds = {
    0x1.555555555bf83p-1,
    0x1.1c71c8c842ee1p-1,
};

// w^(-1/3) on [0.671453904, 0.808772981], relative error 2^-14.81.
inline constexpr std::array<float, 3> cbrt_s_third = {
    0x1.b8ee44p+0f,
    -0x1.2ad89cp+0f,
    0x1.cdf7p-2f,
};

// w^(-2/3) on [0.671453904, 0.808772981], relative error 2^-13.30.
inline constexpr std::array<float, 3> cbrt_s_ep_two_thirds = {
    0x1.5cafb6p+1f,
    -0x1.79ead6p+1f,
    0x1.3f4f3cp+0f,
};

// (1 - r)^(-1/3) = 1 + r (c0 + c1 r) on [-0.000105166475, 0.00157001023], relative error 2^-34.25.
inline constexpr std::array<float, 2> cbrt_s_rest_third = {
    0x1.555548p-2f,
    0x1.c7e2d4p-3f,
};

// (1 - r)^(-2/3) = 1 + r (c0 + c1 r) on [-0.000105166475, 0.00157001023], relative error 2^-33.47.
inline constexpr std::array<float, 2> cbrt_s_rest_two_thirds = {
    0x1.555544p-1f,
    0x1.1cff8p-1f,
};

}  // namespace qorl::tables

#endif
