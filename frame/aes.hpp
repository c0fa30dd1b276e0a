// Blocks of 128 bits and the AES instructions on them.
//
// A named primitive beside frame/lane.hpp: the functions marked QORL_AES may be called only in functions with the same
// mark, and those only where the processor has the instructions. A lambda does not inherit the mark.
#ifndef QORL_FRAME_AES_HPP
#define QORL_FRAME_AES_HPP

#include <cstdint>

#include "frame/vec.hpp"

#define QORL_AES [[gnu::target("aes")]]

namespace qorl {

struct Quad {  // words in the order of memory
    __m128i v;

    QORL_INLINE static Quad load(const std::uint32_t *p) {
        return {_mm_loadu_si128(reinterpret_cast<const __m128i *>(p))};
    }
    QORL_INLINE static Quad of(std::uint64_t low, std::uint64_t high) {
        return {_mm_set_epi64x(static_cast<std::int64_t>(high), static_cast<std::int64_t>(low))};
    }
    QORL_INLINE void store(std::uint32_t *p) const { _mm_storeu_si128(reinterpret_cast<__m128i *>(p), v); }

    QORL_INLINE friend Quad operator^(Quad a, Quad b) { return {_mm_xor_si128(a.v, b.v)}; }
    QORL_INLINE friend Quad operator+(Quad a, Quad b) { return {_mm_add_epi64(a.v, b.v)}; }  // two sums of 64 bits
};

// Two blocks as one register of words.
QORL_INLINE Pack<std::int32_t, 1> join(Quad first, Quad second) {
    Pack<std::int32_t, 1> r;
    r.v[0] = _mm256_set_m128i(second.v, first.v);
    return r;
}

// ShiftRows, SubBytes, MixColumns and the addition of the round key; the last round has no MixColumns.
QORL_AES QORL_INLINE Quad aes_round(Quad x, Quad key) {
    return {_mm_aesenc_si128(x.v, key.v)};
}
QORL_AES QORL_INLINE Quad aes_last_round(Quad x, Quad key) {
    return {_mm_aesenclast_si128(x.v, key.v)};
}

}  // namespace qorl

#endif
