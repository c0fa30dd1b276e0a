// The two recurrences of MRG32K3A, whose jumps have a table of matrices.
#ifndef QORL_STREAMS_MATRIX_HPP
#define QORL_STREAMS_MATRIX_HPP

#include <cstdint>

namespace qorl {

// x3 <- row[0] x2 + row[1] x1 + row[2] x0 modulo m.
struct ThirdOrder {
    std::uint32_t m;
    std::uint32_t row[3];
};

inline constexpr ThirdOrder mrg32k3a_x{4294967087, {0, 1403580, 4294967087 - 810728}};
inline constexpr ThirdOrder mrg32k3a_y{4294944443, {527612, 0, 4294944443 - 1370589}};

}  // namespace qorl

#endif
