// Elements of 128 bits, four words each, beside packs of 32-bit words: what generators with such elements compute in,
// and neighbouring words across two registers.
#ifndef QORL_FRAME_QUADS_HPP
#define QORL_FRAME_QUADS_HPP

#include <immintrin.h>

#include <cstdint>

#include "frame/vec.hpp"

namespace qorl {

// Word 0 is the least significant.
struct Quad {
    __m128i v;

    QORL_INLINE static Quad load(const std::int32_t *p) {
        return {_mm_loadu_si128(reinterpret_cast<const __m128i *>(p))};
    }
    QORL_INLINE void store(std::int32_t *p) const { _mm_storeu_si128(reinterpret_cast<__m128i *>(p), v); }
    QORL_INLINE friend Quad operator^(Quad a, Quad b) { return {_mm_xor_si128(a.v, b.v)}; }
};

template <int Bits>
QORL_INLINE Quad shift_words_left(Quad a) {
    return {_mm_slli_epi32(a.v, Bits)};
}
template <int Bytes>
QORL_INLINE Quad shift_bytes_right(Quad a) {  // the element as one number
    return {_mm_srli_si128(a.v, Bytes)};
}

// A register as two elements.
template <int Bytes>
QORL_INLINE Pack<std::int32_t, 1> shift_quads_left(Pack<std::int32_t, 1> a) {  // each element as one number
    a.v[0] = _mm256_slli_si256(a.v[0], Bytes);
    return a;
}
QORL_INLINE Quad first_quad(Pack<std::int32_t, 1> a) {
    return {_mm256_castsi256_si128(a.v[0])};
}
QORL_INLINE Quad second_quad(Pack<std::int32_t, 1> a) {
    return {_mm256_extracti128_si256(a.v[0], 1)};
}
QORL_INLINE Pack<std::int32_t, 1> join(Quad a, Quad b) {
    Pack<std::int32_t, 1> r;
    r.v[0] = _mm256_set_m128i(b.v, a.v);
    return r;
}

// Eight words in a row, the first of them in lane K of a, the last in lane K - 1 of b.
template <int K>
QORL_INLINE Pack<std::int32_t, 1> lanes_from(Pack<std::int32_t, 1> a, Pack<std::int32_t, 1> b) {
    static_assert(K > 0 && K < 8);
    Pack<std::int32_t, 1> r;
    const __m256i middle = _mm256_permute2x128_si256(a.v[0], b.v[0], 0x21);
    if constexpr (K < 4)
        r.v[0] = _mm256_alignr_epi8(middle, a.v[0], 4 * K);
    else if constexpr (K == 4)
        r.v[0] = middle;
    else
        r.v[0] = _mm256_alignr_epi8(b.v[0], middle, 4 * (K - 4));
    return r;
}

}  // namespace qorl

#endif
