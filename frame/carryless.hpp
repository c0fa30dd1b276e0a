// Carry-less products of 64-bit words by instruction: polynomials over GF(2), bit i the coefficient of x^i.
//
// For functions marked QORL_CARRYLESS, which run behind qorl_serv_processor_has(QORL_PROCESSOR_CLMUL). A lambda does
// not take over the mark of the function that it stands in.
#ifndef QORL_FRAME_CARRYLESS_HPP
#define QORL_FRAME_CARRYLESS_HPP

#include <immintrin.h>

#include <cstdint>

#define QORL_CARRYLESS [[gnu::target("pclmul")]]

namespace qorl {

// Two words: the halves of a product, or neighbours in memory.
struct WordPair {
    __m128i v = _mm_setzero_si128();

    [[gnu::always_inline]] static inline WordPair load(const std::uint64_t *p) {
        return {_mm_loadu_si128(reinterpret_cast<const __m128i *>(p))};
    }
    [[gnu::always_inline]] static inline WordPair load_one(const std::uint64_t *p) {  // the high word is zero
        return {_mm_loadl_epi64(reinterpret_cast<const __m128i *>(p))};
    }
    [[gnu::always_inline]] inline std::uint64_t low() const { return static_cast<std::uint64_t>(_mm_cvtsi128_si64(v)); }
    [[gnu::always_inline]] friend inline WordPair operator^(WordPair a, WordPair b) {
        return {_mm_xor_si128(a.v, b.v)};
    }
    [[gnu::always_inline]] friend inline WordPair high_word(WordPair a) {  // in place of the low one
        return {_mm_srli_si128(a.v, 8)};
    }
};

// The product of word I of a and word J of b.
template <int I, int J>
QORL_CARRYLESS [[gnu::always_inline]] inline WordPair carryless_product(WordPair a, WordPair b) {
    return {_mm_clmulepi64_si128(a.v, b.v, I | J << 4)};
}

}  // namespace qorl

#endif
