// One 256-bit register of each element type: what the instructions are called, under one set of names.
//
// Only frame/vec.hpp and frame/aes.hpp build on this; intrinsics stand in these files and frame/carryless.hpp alone.
#ifndef QORL_FRAME_LANE_HPP
#define QORL_FRAME_LANE_HPP

#include <immintrin.h>

#include <cstddef>
#include <cstdint>
#include <cstring>

#define QORL_INLINE [[gnu::always_inline]] inline

namespace qorl {

template <class T>
struct Lane;  // register type of an element type

template <>
struct Lane<double> {
    using Register = __m256d;
    using Bits = std::int64_t;
    static constexpr int count = 4;
    QORL_INLINE static Register broadcast(double x) { return _mm256_set1_pd(x); }
    QORL_INLINE static Register load(const double *p) { return _mm256_loadu_pd(p); }
    QORL_INLINE static void store(double *p, Register x) { _mm256_storeu_pd(p, x); }
    QORL_INLINE static Register add(Register a, Register b) { return _mm256_add_pd(a, b); }
    QORL_INLINE static Register sub(Register a, Register b) { return _mm256_sub_pd(a, b); }
    QORL_INLINE static Register mul(Register a, Register b) { return _mm256_mul_pd(a, b); }
    QORL_INLINE static Register div(Register a, Register b) { return _mm256_div_pd(a, b); }
    QORL_INLINE static Register sqrt(Register a) { return _mm256_sqrt_pd(a); }
    QORL_INLINE static Register fma(Register a, Register b, Register c) { return _mm256_fmadd_pd(a, b, c); }
    QORL_INLINE static Register fms(Register a, Register b, Register c) { return _mm256_fmsub_pd(a, b, c); }
    QORL_INLINE static Register fnma(Register a, Register b, Register c) { return _mm256_fnmadd_pd(a, b, c); }
    QORL_INLINE static Register min(Register a, Register b) { return _mm256_min_pd(a, b); }
    QORL_INLINE static Register max(Register a, Register b) { return _mm256_max_pd(a, b); }
    QORL_INLINE static Register reciprocal_estimate(Register a) {
        return _mm256_cvtps_pd(_mm_rcp_ps(_mm256_cvtpd_ps(a)));
    }
    QORL_INLINE static Register reciprocal_sqrt_estimate(Register a) {
        return _mm256_cvtps_pd(_mm_rsqrt_ps(_mm256_cvtpd_ps(a)));
    }
    QORL_INLINE static Register round(Register a) {
        return _mm256_round_pd(a, _MM_FROUND_TO_NEAREST_INT | _MM_FROUND_NO_EXC);
    }
    QORL_INLINE static Register truncate(Register a) {
        return _mm256_round_pd(a, _MM_FROUND_TO_ZERO | _MM_FROUND_NO_EXC);
    }
    QORL_INLINE static Register bit_and(Register a, Register b) { return _mm256_and_pd(a, b); }
    QORL_INLINE static Register bit_or(Register a, Register b) { return _mm256_or_pd(a, b); }
    QORL_INLINE static Register bit_xor(Register a, Register b) { return _mm256_xor_pd(a, b); }
    QORL_INLINE static Register bit_andnot(Register a, Register b) { return _mm256_andnot_pd(a, b); }
    template <int Predicate>
    QORL_INLINE static Register compare(Register a, Register b) {
        return _mm256_cmp_pd(a, b, Predicate);
    }
    QORL_INLINE static Register select(Register m, Register a, Register b) { return _mm256_blendv_pd(b, a, m); }
    QORL_INLINE static unsigned sign_bits(Register m) { return static_cast<unsigned>(_mm256_movemask_pd(m)); }
    QORL_INLINE static __m256i to_bits(Register x) { return _mm256_castpd_si256(x); }
    QORL_INLINE static Register from_bits(__m256i x) { return _mm256_castsi256_pd(x); }
    QORL_INLINE static Register masked_load(const double *p, __m256i m) { return _mm256_maskload_pd(p, m); }
    QORL_INLINE static void masked_store(double *p, __m256i m, Register x) { _mm256_maskstore_pd(p, m, x); }
    QORL_INLINE static Register collect(const double *p, std::ptrdiff_t s) {
        return _mm256_setr_pd(p[0], p[s], p[2 * s], p[3 * s]);
    }
    QORL_INLINE static Register gather(const double *p, std::ptrdiff_t s) {
        const __m256i index = _mm256_setr_epi64x(0, s, 2 * s, 3 * s);
        return _mm256_i64gather_pd(p, index, 8);
    }
    QORL_INLINE static void scatter(double *p, std::ptrdiff_t s, Register x) {
        const __m128d low = _mm256_castpd256_pd128(x), high = _mm256_extractf128_pd(x, 1);
        _mm_storel_pd(p, low);
        _mm_storeh_pd(p + s, low);
        _mm_storel_pd(p + 2 * s, high);
        _mm_storeh_pd(p + 3 * s, high);
    }
};

template <>
struct Lane<float> {
    using Register = __m256;
    using Bits = std::int32_t;
    static constexpr int count = 8;
    QORL_INLINE static Register broadcast(float x) { return _mm256_set1_ps(x); }
    QORL_INLINE static Register load(const float *p) { return _mm256_loadu_ps(p); }
    QORL_INLINE static void store(float *p, Register x) { _mm256_storeu_ps(p, x); }
    QORL_INLINE static Register add(Register a, Register b) { return _mm256_add_ps(a, b); }
    QORL_INLINE static Register sub(Register a, Register b) { return _mm256_sub_ps(a, b); }
    QORL_INLINE static Register mul(Register a, Register b) { return _mm256_mul_ps(a, b); }
    QORL_INLINE static Register div(Register a, Register b) { return _mm256_div_ps(a, b); }
    QORL_INLINE static Register sqrt(Register a) { return _mm256_sqrt_ps(a); }
    QORL_INLINE static Register fma(Register a, Register b, Register c) { return _mm256_fmadd_ps(a, b, c); }
    QORL_INLINE static Register fms(Register a, Register b, Register c) { return _mm256_fmsub_ps(a, b, c); }
    QORL_INLINE static Register fnma(Register a, Register b, Register c) { return _mm256_fnmadd_ps(a, b, c); }
    QORL_INLINE static Register min(Register a, Register b) { return _mm256_min_ps(a, b); }
    QORL_INLINE static Register max(Register a, Register b) { return _mm256_max_ps(a, b); }
    QORL_INLINE static Register reciprocal_estimate(Register a) { return _mm256_rcp_ps(a); }
    QORL_INLINE static Register reciprocal_sqrt_estimate(Register a) { return _mm256_rsqrt_ps(a); }
    QORL_INLINE static Register round(Register a) {
        return _mm256_round_ps(a, _MM_FROUND_TO_NEAREST_INT | _MM_FROUND_NO_EXC);
    }
    QORL_INLINE static Register truncate(Register a) {
        return _mm256_round_ps(a, _MM_FROUND_TO_ZERO | _MM_FROUND_NO_EXC);
    }
    QORL_INLINE static Register bit_and(Register a, Register b) { return _mm256_and_ps(a, b); }
    QORL_INLINE static Register bit_or(Register a, Register b) { return _mm256_or_ps(a, b); }
    QORL_INLINE static Register bit_xor(Register a, Register b) { return _mm256_xor_ps(a, b); }
    QORL_INLINE static Register bit_andnot(Register a, Register b) { return _mm256_andnot_ps(a, b); }
    template <int Predicate>
    QORL_INLINE static Register compare(Register a, Register b) {
        return _mm256_cmp_ps(a, b, Predicate);
    }
    QORL_INLINE static Register select(Register m, Register a, Register b) { return _mm256_blendv_ps(b, a, m); }
    QORL_INLINE static unsigned sign_bits(Register m) { return static_cast<unsigned>(_mm256_movemask_ps(m)); }
    QORL_INLINE static __m256i to_bits(Register x) { return _mm256_castps_si256(x); }
    QORL_INLINE static Register from_bits(__m256i x) { return _mm256_castsi256_ps(x); }
    QORL_INLINE static Register masked_load(const float *p, __m256i m) { return _mm256_maskload_ps(p, m); }
    QORL_INLINE static void masked_store(float *p, __m256i m, Register x) { _mm256_maskstore_ps(p, m, x); }
    QORL_INLINE static Register collect(const float *p, std::ptrdiff_t s) {
        return _mm256_setr_ps(p[0], p[s], p[2 * s], p[3 * s], p[4 * s], p[5 * s], p[6 * s], p[7 * s]);
    }
    QORL_INLINE static Register gather(const float *p, std::ptrdiff_t s) {
        const __m256i index = _mm256_setr_epi64x(0, s, 2 * s, 3 * s);  // 64 bits, since 7 * s can pass 2^31
        return _mm256_setr_m128(_mm256_i64gather_ps(p, index, 4), _mm256_i64gather_ps(p + 4 * s, index, 4));
    }
    QORL_INLINE static void scatter(float *p, std::ptrdiff_t s, Register x) {
        scatter_half(p, s, _mm256_castps256_ps128(x));
        scatter_half(p + 4 * s, s, _mm256_extractf128_ps(x, 1));
    }

  private:
    QORL_INLINE static void scatter_half(float *p, std::ptrdiff_t s, __m128 x) {
        const auto put = [](float *to, int bits) { std::memcpy(to, &bits, sizeof bits); };
        put(p, _mm_extract_ps(x, 0));
        put(p + s, _mm_extract_ps(x, 1));
        put(p + 2 * s, _mm_extract_ps(x, 2));
        put(p + 3 * s, _mm_extract_ps(x, 3));
    }
};

template <>
struct Lane<std::int64_t> {
    using Register = __m256i;
    using Real = double;
    static constexpr int count = 4;
    QORL_INLINE static Register broadcast(std::int64_t x) { return _mm256_set1_epi64x(x); }
    QORL_INLINE static Register load(const std::int64_t *p) {
        return _mm256_loadu_si256(reinterpret_cast<const __m256i *>(p));
    }
    QORL_INLINE static void store(std::int64_t *p, Register x) {
        _mm256_storeu_si256(reinterpret_cast<__m256i *>(p), x);
    }
    QORL_INLINE static Register mul_low_halves(Register a, Register b) { return _mm256_mul_epu32(a, b); }
    QORL_INLINE static Register swap_halves(Register a) { return _mm256_shuffle_epi32(a, 0xB1); }
    QORL_INLINE static Register low_halves_from(Register a, Register b) { return _mm256_blend_epi32(b, a, 0x55); }
    QORL_INLINE static Register add(Register a, Register b) { return _mm256_add_epi64(a, b); }
    QORL_INLINE static Register sub(Register a, Register b) { return _mm256_sub_epi64(a, b); }
    QORL_INLINE static Register bit_and(Register a, Register b) { return _mm256_and_si256(a, b); }
    QORL_INLINE static Register bit_or(Register a, Register b) { return _mm256_or_si256(a, b); }
    QORL_INLINE static Register bit_xor(Register a, Register b) { return _mm256_xor_si256(a, b); }
    QORL_INLINE static Register shift_left(Register a, int k) { return _mm256_slli_epi64(a, k); }
    QORL_INLINE static Register shift_right(Register a, int k) { return _mm256_srli_epi64(a, k); }
    QORL_INLINE static Register greater(Register a, Register b) { return _mm256_cmpgt_epi64(a, b); }
    QORL_INLINE static Register equal(Register a, Register b) { return _mm256_cmpeq_epi64(a, b); }
};

template <>
struct Lane<std::int32_t> {
    using Register = __m256i;
    using Real = float;
    static constexpr int count = 8;
    QORL_INLINE static Register broadcast(std::int32_t x) { return _mm256_set1_epi32(x); }
    QORL_INLINE static Register load(const std::int32_t *p) {
        return _mm256_loadu_si256(reinterpret_cast<const __m256i *>(p));
    }
    QORL_INLINE static void store(std::int32_t *p, Register x) {
        _mm256_storeu_si256(reinterpret_cast<__m256i *>(p), x);
    }
    QORL_INLINE static Register masked_load(const std::int32_t *p, __m256i m) { return _mm256_maskload_epi32(p, m); }
    QORL_INLINE static void masked_store(std::int32_t *p, __m256i m, Register x) { _mm256_maskstore_epi32(p, m, x); }
    QORL_INLINE static Register add(Register a, Register b) { return _mm256_add_epi32(a, b); }
    QORL_INLINE static Register sub(Register a, Register b) { return _mm256_sub_epi32(a, b); }
    QORL_INLINE static Register bit_and(Register a, Register b) { return _mm256_and_si256(a, b); }
    QORL_INLINE static Register bit_or(Register a, Register b) { return _mm256_or_si256(a, b); }
    QORL_INLINE static Register bit_xor(Register a, Register b) { return _mm256_xor_si256(a, b); }
    QORL_INLINE static Register shift_left(Register a, int k) { return _mm256_slli_epi32(a, k); }
    QORL_INLINE static Register shift_right(Register a, int k) { return _mm256_srli_epi32(a, k); }
    QORL_INLINE static Register shift_right_signed(Register a, int k) { return _mm256_srai_epi32(a, k); }
    QORL_INLINE static Register mul_high_halves(Register a, Register b) { return _mm256_mulhi_epu16(a, b); }
    QORL_INLINE static Register greater(Register a, Register b) { return _mm256_cmpgt_epi32(a, b); }
    QORL_INLINE static Register equal(Register a, Register b) { return _mm256_cmpeq_epi32(a, b); }
};

}  // namespace qorl

#endif
