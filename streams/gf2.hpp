// Polynomials over GF(2): the two ways in which their words are multiplied.
#ifndef QORL_STREAMS_GF2_HPP
#define QORL_STREAMS_GF2_HPP

#include <cstdint>

namespace qorl {

enum class Carryless { portable, hardware };  // hardware: QORL_PROCESSOR_CLMUL

// __huxPolyRem by products of one kind.
std::int32_t power_of_x(Carryless kind, std::uint64_t n, std::int64_t degree, std::int32_t terms,
                        const std::uint32_t *exponents, std::int32_t words, std::uint32_t *out);

}  // namespace qorl

#endif
