// Packs of 256-bit registers: the vocabulary in which kernel bodies are written.
//
// Pack<T, N> is N registers of double, float, int64_t or int32_t. An operation on packs is N instructions next to each
// other, so that a formula written once comes out interleaved stage by stage over the whole block. Mask<T, N> is the
// result of a comparison, of the real type whose lanes it covers. Every fused operation is written as one.
#ifndef QORL_FRAME_VEC_HPP
#define QORL_FRAME_VEC_HPP

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <utility>

#include "frame/lane.hpp"

namespace qorl {

// Calls f(I) for the registers I = 0 .. N - 1, unrolled.
template <int N, class F>
QORL_INLINE void each_register(F &&f) {
    [&]<int... I>(std::integer_sequence<int, I...>) {
        (f(I), ...);
    }
    (std::make_integer_sequence<int, N>{});
}

template <class T, int N>
struct Pack {
    using Ops = Lane<T>;
    using Register = typename Ops::Register;
    static constexpr int registers = N;
    static constexpr int lanes = N * Ops::count;

    Register v[N];

    Pack() = default;
    QORL_INLINE Pack(T value) {  // implicit: a scalar constant is the same number in all lanes
        each_register<N>([&](int i) { v[i] = Ops::broadcast(value); });
    }

    // One of its registers.
    QORL_INLINE Pack<T, 1> part(int i) const {
        Pack<T, 1> r;
        r.v[0] = v[i];
        return r;
    }
    QORL_INLINE void set_part(int i, Pack<T, 1> x) { v[i] = x.v[0]; }

    template <auto F, class... P>
    QORL_INLINE static Pack map(const P &...p) {  // F on each register
        Pack r;
        each_register<N>([&](int i) { r.v[i] = F(p.v[i]...); });
        return r;
    }

    QORL_INLINE friend Pack operator+(Pack a, Pack b) { return map<Ops::add>(a, b); }
    QORL_INLINE friend Pack operator-(Pack a, Pack b) { return map<Ops::sub>(a, b); }
    QORL_INLINE friend Pack operator&(Pack a, Pack b) { return map<Ops::bit_and>(a, b); }
    QORL_INLINE friend Pack operator|(Pack a, Pack b) { return map<Ops::bit_or>(a, b); }
    QORL_INLINE friend Pack operator^(Pack a, Pack b) { return map<Ops::bit_xor>(a, b); }

    // Real packs.
    QORL_INLINE friend Pack operator*(Pack a, Pack b) { return map<Ops::mul>(a, b); }
    QORL_INLINE friend Pack operator/(Pack a, Pack b) { return map<Ops::div>(a, b); }
    QORL_INLINE friend Pack operator-(Pack a) { return a ^ Pack(T(-0.0)); }
    QORL_INLINE friend Pack fma(Pack a, Pack b, Pack c) { return map<Ops::fma>(a, b, c); }    // a b + c
    QORL_INLINE friend Pack fms(Pack a, Pack b, Pack c) { return map<Ops::fms>(a, b, c); }    // a b - c
    QORL_INLINE friend Pack fnma(Pack a, Pack b, Pack c) { return map<Ops::fnma>(a, b, c); }  // c - a b
    QORL_INLINE friend Pack sqrt(Pack a) { return map<Ops::sqrt>(a); }
    QORL_INLINE friend Pack min(Pack a, Pack b) { return map<Ops::min>(a, b); }  // b where either is NaN
    QORL_INLINE friend Pack max(Pack a, Pack b) { return map<Ops::max>(a, b); }
    QORL_INLINE friend Pack abs(Pack a) { return map<Ops::bit_andnot>(Pack(T(-0.0)), a); }
    QORL_INLINE friend Pack round_to_int(Pack a) { return map<Ops::round>(a); }  // to nearest, ties to even
    QORL_INLINE friend Pack truncate(Pack a) { return map<Ops::truncate>(a); }   // to an integer, towards 0
    // The processor's estimates of 1/a and 1/sqrt(a), relative error below 1.5 2^-12; of doubles through single
    // precision, so within its range. Their bits differ between makes of processor.
    QORL_INLINE friend Pack reciprocal_estimate(Pack a) { return map<Ops::reciprocal_estimate>(a); }
    QORL_INLINE friend Pack reciprocal_sqrt_estimate(Pack a) { return map<Ops::reciprocal_sqrt_estimate>(a); }

    // Integer packs.
    QORL_INLINE friend Pack shift_left(Pack a, int k) {
        Pack r;
        each_register<N>([&](int i) { r.v[i] = Ops::shift_left(a.v[i], k); });
        return r;
    }
    QORL_INLINE friend Pack shift_right(Pack a, int k) {  // zeros come in from the left
        Pack r;
        each_register<N>([&](int i) { r.v[i] = Ops::shift_right(a.v[i], k); });
        return r;
    }
    QORL_INLINE friend Pack shift_right_signed(Pack a, int k) {  // copies of the sign come in; 32-bit integers
        Pack r;
        each_register<N>([&](int i) { r.v[i] = Ops::shift_right_signed(a.v[i], k); });
        return r;
    }

    // 32-bit integers as two halves of 16 bits: the high halves of their unsigned products.
    QORL_INLINE friend Pack mul_high_halves(Pack a, Pack b) { return map<Ops::mul_high_halves>(a, b); }

    // 64-bit integers as two halves of 32 bits: the whole unsigned product of the low halves; the halves swapped; the
    // low halves of a with the high ones of b.
    QORL_INLINE friend Pack mul_low_halves(Pack a, Pack b) { return map<Ops::mul_low_halves>(a, b); }
    QORL_INLINE friend Pack swap_halves(Pack a) { return map<Ops::swap_halves>(a); }
    QORL_INLINE friend Pack low_halves_from(Pack a, Pack b) { return map<Ops::low_halves_from>(a, b); }
};

template <class T, int N>
struct Mask {  // T real; all bits of a lane are set or clear, of a sign mask the top bit counts
    Pack<T, N> lanes;
    QORL_INLINE friend Mask operator|(Mask a, Mask b) { return {a.lanes | b.lanes}; }
    QORL_INLINE friend Mask operator&(Mask a, Mask b) { return {a.lanes & b.lanes}; }
};

// Registers From .. From + Count - 1 of a pack, and two packs in a row.
template <int From, int Count, class T, int N>
QORL_INLINE Pack<T, Count> registers(Pack<T, N> x) {
    static_assert(From + Count <= N);
    Pack<T, Count> r;
    each_register<Count>([&](int i) { r.v[i] = x.v[From + i]; });
    return r;
}
template <class T, int M, int N>
QORL_INLINE Pack<T, M + N> join(Pack<T, M> a, Pack<T, N> b) {
    Pack<T, M + N> r;
    each_register<M>([&](int i) { r.v[i] = a.v[i]; });
    each_register<N>([&](int i) { r.v[M + i] = b.v[i]; });
    return r;
}

// Reads and writes. The strided forms take their data from memory straight into vectors and back.
template <int N, class T>
QORL_INLINE Pack<T, N> load(const T *p) {
    Pack<T, N> r;
    each_register<N>([&](int i) { r.v[i] = Lane<T>::load(p + i * Lane<T>::count); });
    return r;
}
template <class T, int N>
QORL_INLINE void store(T *p, Pack<T, N> x) {
    each_register<N>([&](int i) { Lane<T>::store(p + i * Lane<T>::count, x.v[i]); });
}
template <int N, class T>
QORL_INLINE Pack<T, N> collect(const T *p, std::ptrdiff_t stride) {  // by scalar loads
    Pack<T, N> r;
    each_register<N>([&](int i) { r.v[i] = Lane<T>::collect(p + i * Lane<T>::count * stride, stride); });
    return r;
}
template <int N, class T>
QORL_INLINE Pack<T, N> gather(const T *p, std::ptrdiff_t stride) {  // by gather instructions
    Pack<T, N> r;
    each_register<N>([&](int i) { r.v[i] = Lane<T>::gather(p + i * Lane<T>::count * stride, stride); });
    return r;
}
template <class T, int N>
QORL_INLINE void scatter(T *p, std::ptrdiff_t stride, Pack<T, N> x) {
    each_register<N>([&](int i) { Lane<T>::scatter(p + i * Lane<T>::count * stride, stride, x.v[i]); });
}

// The first k lanes of one register, 0 <= k <= lanes; memory behind them is not touched.
template <class T>
struct FirstLanes {
    __m256i mask;
    QORL_INLINE explicit FirstLanes(std::ptrdiff_t k) {
        static constexpr std::array<std::int32_t, 16> ones{-1, -1, -1, -1, -1, -1, -1, -1};  // then eight zeros
        mask = _mm256_loadu_si256(reinterpret_cast<const __m256i *>(
            ones.data() + 8 - k * static_cast<std::ptrdiff_t>(sizeof(T) / sizeof(std::int32_t))));
    }
};
template <class T>
QORL_INLINE Pack<T, 1> load_first(const T *p, FirstLanes<T> first, T safe) {
    Pack<T, 1> r;
    r.v[0] =
        Lane<T>::select(Lane<T>::from_bits(first.mask), Lane<T>::masked_load(p, first.mask), Lane<T>::broadcast(safe));
    return r;
}
template <class T>
QORL_INLINE void store_first(T *p, FirstLanes<T> first, Pack<T, 1> x) {
    Lane<T>::masked_store(p, first.mask, x.v[0]);
}

// The first lanes of one register of 32-bit integers; the others are zero.
QORL_INLINE Pack<std::int32_t, 1> load_first(const std::int32_t *p, FirstLanes<std::int32_t> first) {
    Pack<std::int32_t, 1> r;
    r.v[0] = Lane<std::int32_t>::masked_load(p, first.mask);
    return r;
}

// Bits of real numbers as integers of their width, and back.
template <class T, int N>
QORL_INLINE Pack<typename Lane<T>::Bits, N> bits(Pack<T, N> x) {
    Pack<typename Lane<T>::Bits, N> r;
    each_register<N>([&](int i) { r.v[i] = Lane<T>::to_bits(x.v[i]); });
    return r;
}
template <class I, int N>
QORL_INLINE Pack<typename Lane<I>::Real, N> real(Pack<I, N> x) {
    Pack<typename Lane<I>::Real, N> r;
    each_register<N>([&](int i) { r.v[i] = Lane<typename Lane<I>::Real>::from_bits(x.v[i]); });
    return r;
}

// 64-bit lanes as pairs of floats, the low half first, and back: the same bits.
template <int N>
QORL_INLINE Pack<float, N> float_halves(Pack<std::int64_t, N> x) {
    Pack<float, N> r;
    each_register<N>([&](int i) { r.v[i] = _mm256_castsi256_ps(x.v[i]); });
    return r;
}
template <int N>
QORL_INLINE Pack<std::int64_t, N> join_halves(Pack<float, N> x) {
    Pack<std::int64_t, N> r;
    each_register<N>([&](int i) { r.v[i] = _mm256_castps_si256(x.v[i]); });
    return r;
}

// Comparisons. Those of real numbers are quiet; the first four are false where an operand is NaN.
#define QORL_COMPARE(name, predicate)                                                  \
    template <class T, int N>                                                          \
    QORL_INLINE Mask<T, N> name(Pack<T, N> a, std::type_identity_t<Pack<T, N>> b) {    \
        return {Pack<T, N>::template map<Lane<T>::template compare<predicate>>(a, b)}; \
    }
QORL_COMPARE(less, _CMP_LT_OQ)
QORL_COMPARE(less_equal, _CMP_LE_OQ)
QORL_COMPARE(greater, _CMP_GT_OQ)
QORL_COMPARE(equal, _CMP_EQ_OQ)
QORL_COMPARE(not_less_equal, _CMP_NLE_UQ)  // true where an operand is NaN
QORL_COMPARE(not_equal, _CMP_NEQ_UQ)
#undef QORL_COMPARE

template <class I, int N>
QORL_INLINE Mask<typename Lane<I>::Real, N> int_greater(Pack<I, N> a, std::type_identity_t<Pack<I, N>> b) {
    return {real(Pack<I, N>::template map<Lane<I>::greater>(a, b))};
}
template <class I, int N>
QORL_INLINE Mask<typename Lane<I>::Real, N> int_equal(Pack<I, N> a, std::type_identity_t<Pack<I, N>> b) {
    return {real(Pack<I, N>::template map<Lane<I>::equal>(a, b))};
}

template <class T, int N>
QORL_INLINE Pack<T, N> select(Mask<T, N> m, std::type_identity_t<Pack<T, N>> a, std::type_identity_t<Pack<T, N>> b) {
    return Pack<T, N>::template map<Lane<T>::select>(m.lanes, a, b);  // a where the mask is set
}

// Bit l of the result is lane l of the mask.
template <class T, int N>
QORL_INLINE unsigned lane_bits(Mask<T, N> m) {
    unsigned r = 0;
    each_register<N>([&](int i) { r |= Lane<T>::sign_bits(m.lanes.v[i]) << (i * Lane<T>::count); });
    return r;
}
// True if any lane is set: the registers are or-ed first, one move to the integer side serves the block.
template <class T, int N>
QORL_INLINE bool any(Mask<T, N> m) {
    auto all = m.lanes.v[0];
    each_register<N>([&](int i) { all = Lane<T>::bit_or(all, m.lanes.v[i]); });
    return Lane<T>::sign_bits(all) != 0;
}

// Table reads. Plain loads by integer registers: on the processors at hand faster than gather instructions, and a pair
// of words costs what one word costs.
template <int N>
QORL_INLINE Pack<double, N> lookup(const double *table, Pack<std::int64_t, N> index) {
    Pack<double, N> r;
    each_register<N>([&](int i) {
        const __m128i low = _mm256_castsi256_si128(index.v[i]), high = _mm256_extracti128_si256(index.v[i], 1);
        const __m128d a = _mm_loadh_pd(_mm_load_sd(table + _mm_cvtsi128_si64(low)), table + _mm_extract_epi64(low, 1));
        const __m128d b =
            _mm_loadh_pd(_mm_load_sd(table + _mm_cvtsi128_si64(high)), table + _mm_extract_epi64(high, 1));
        r.v[i] = _mm256_insertf128_pd(_mm256_castpd128_pd256(a), b, 1);
    });
    return r;
}
// The pair of doubles that stands `offset` bytes behind the start of the table, both words at once; 16-byte aligned.
template <int N>
QORL_INLINE void lookup_pair(const double *table, Pack<std::int64_t, N> offset, Pack<double, N> &first,
                             Pack<double, N> &second) {
    const char *base = reinterpret_cast<const char *>(table);
    const auto pair = [base](long long at) { return _mm_load_pd(reinterpret_cast<const double *>(base + at)); };
    each_register<N>([&](int i) {
        const __m128i low = _mm256_castsi256_si128(offset.v[i]), high = _mm256_extracti128_si256(offset.v[i], 1);
        const __m256d a = _mm256_insertf128_pd(_mm256_castpd128_pd256(pair(_mm_cvtsi128_si64(low))),
                                               pair(_mm_cvtsi128_si64(high)), 1);
        const __m256d b = _mm256_insertf128_pd(_mm256_castpd128_pd256(pair(_mm_extract_epi64(low, 1))),
                                               pair(_mm_extract_epi64(high, 1)), 1);
        first.v[i] = _mm256_unpacklo_pd(a, b);
        second.v[i] = _mm256_unpackhi_pd(a, b);
    });
}
// Rows of neighbouring doubles: the indices go to integer registers once, then every two words of a row cost what
// lookup_pair costs. `offset` counts bytes, a multiple of 16, from `Bias` bytes ahead of the table: a constant part of
// the index is free.
template <int N, std::ptrdiff_t Bias>
class RowLookup {
  public:
    QORL_INLINE RowLookup(const double *table, Pack<std::int64_t, N> offset)
        : base_(reinterpret_cast<std::uintptr_t>(table) - static_cast<std::uintptr_t>(Bias)) {
        each_register<N>([&](int i) {
            const __m128i low = _mm256_castsi256_si128(offset.v[i]), high = _mm256_extracti128_si256(offset.v[i], 1);
            at_[i] = {static_cast<std::uintptr_t>(_mm_cvtsi128_si64(low)),
                      static_cast<std::uintptr_t>(_mm_extract_epi64(low, 1)),
                      static_cast<std::uintptr_t>(_mm_cvtsi128_si64(high)),
                      static_cast<std::uintptr_t>(_mm_extract_epi64(high, 1))};
        });
    }
    // The words `word` and `word` + 1, `word` even.
    QORL_INLINE void pair(int word, Pack<double, N> &first, Pack<double, N> &second) const {
        each_register<N>([&](int i) {
            const __m256d a = _mm256_insertf128_pd(_mm256_castpd128_pd256(at(i, 0, word)), at(i, 2, word), 1);
            const __m256d b = _mm256_insertf128_pd(_mm256_castpd128_pd256(at(i, 1, word)), at(i, 3, word), 1);
            first.v[i] = _mm256_unpacklo_pd(a, b);
            second.v[i] = _mm256_unpackhi_pd(a, b);
        });
    }

  private:
    QORL_INLINE __m128d at(int i, std::size_t lane, int word) const {
        return _mm_load_pd(reinterpret_cast<const double *>(base_ + at_[i][lane]) + word);
    }

    std::uintptr_t base_;
    std::array<std::uintptr_t, 4> at_[N];
};
// As lookup_pair, with the indices going through memory instead of integer registers, which is faster where the vector
// side is the busy one. The offset of a lane is twice the 16 bits from byte `Byte` on of its key, less `Bias`. All keys
// are put first, so that none is read while its store is still on the way.
template <int N, int Byte, std::ptrdiff_t Bias>
class KeyedPairs {
  public:
    QORL_INLINE void put(int i, Pack<double, 1> key) { store(reinterpret_cast<double *>(keys_[i]), key); }
    QORL_INLINE Pack<double, 1> key(int i) const { return load<1>(reinterpret_cast<const double *>(keys_[i])); }
    QORL_INLINE void pair(const double *table, int i, Pack<double, 1> &first, Pack<double, 1> &second) const {
        const __m256d a = _mm256_insertf128_pd(_mm256_castpd128_pd256(at(table, i, 0)), at(table, i, 2), 1);
        const __m256d b = _mm256_insertf128_pd(_mm256_castpd128_pd256(at(table, i, 1)), at(table, i, 3), 1);
        first.v[0] = _mm256_unpacklo_pd(a, b);
        second.v[0] = _mm256_unpackhi_pd(a, b);
    }

  private:
    QORL_INLINE __m128d at(const double *table, int i, int lane) const {
        std::uint16_t half_offset;
        std::memcpy(&half_offset, keys_[i] + sizeof(double) * static_cast<std::size_t>(lane) + Byte,
                    sizeof half_offset);
        const std::uintptr_t base = reinterpret_cast<std::uintptr_t>(table) - static_cast<std::uintptr_t>(Bias);
        return _mm_load_pd(reinterpret_cast<const double *>(base + 2 * std::uintptr_t{half_offset}));
    }

    alignas(32) char keys_[N][sizeof(__m256d)];
};
// One of eight floats or 32-bit integers, by the low three bits of each index.
template <int N>
QORL_INLINE Pack<float, N> lookup8(const std::array<float, 8> &table, Pack<std::int32_t, N> index) {
    const __m256 eight = _mm256_loadu_ps(table.data());
    Pack<float, N> r;
    each_register<N>([&](int i) { r.v[i] = _mm256_permutevar8x32_ps(eight, index.v[i]); });
    return r;
}
template <int N>
QORL_INLINE Pack<std::int32_t, N> lookup8(const std::array<std::int32_t, 8> &table, Pack<std::int32_t, N> index) {
    return bits(lookup8(std::bit_cast<std::array<float, 8>>(table), index));
}

// 32-bit integers as floats, rounded to nearest.
template <int N>
QORL_INLINE Pack<float, N> to_float(Pack<std::int32_t, N> x) {
    Pack<float, N> r;
    each_register<N>([&](int i) { r.v[i] = _mm256_cvtepi32_ps(x.v[i]); });
    return r;
}

// Integers from 0 to 2^52 - 1 as doubles, exactly: 2^52 + x is written down.
template <int N>
QORL_INLINE Pack<double, N> below_2_to_52_to_double(Pack<std::int64_t, N> x) {
    return real(x | 0x4330000000000000) - 0x1p52;
}
// 32-bit words as doubles, exactly: signed, and unsigned. Register 2 i and 2 i + 1 of the wide pack are the halves of
// register i.
template <int N>
QORL_INLINE Pack<double, 2 * N> to_double(Pack<std::int32_t, N> x) {
    Pack<double, 2 * N> r;
    each_register<N>([&](int i) {
        r.v[2 * i] = _mm256_cvtepi32_pd(_mm256_castsi256_si128(x.v[i]));
        r.v[2 * i + 1] = _mm256_cvtepi32_pd(_mm256_extracti128_si256(x.v[i], 1));
    });
    return r;
}
template <int N>
QORL_INLINE Pack<double, 2 * N> unsigned_to_double(Pack<std::int32_t, N> x) {
    Pack<std::int64_t, 2 * N> wide;
    each_register<N>([&](int i) {
        wide.v[2 * i] = _mm256_cvtepu32_epi64(_mm256_castsi256_si128(x.v[i]));
        wide.v[2 * i + 1] = _mm256_cvtepu32_epi64(_mm256_extracti128_si256(x.v[i], 1));
    });
    return below_2_to_52_to_double(wide);
}
// Unsigned 64-bit integers as doubles, rounded to nearest: x = h 2^32 + l, of which 2^84 + h 2^32 and 2^52 + l are
// written down; the subtraction is exact, the sum is rounded.
template <int N>
QORL_INLINE Pack<double, N> unsigned_to_double(Pack<std::int64_t, N> x) {
    const auto high = real(shift_right(x, 32) | 0x4530000000000000);
    const auto low = real(low_halves_from(x, 0x4330000000000000));
    return (high - (0x1p84 + 0x1p52)) + low;
}
// The low halves of 64-bit integers, in order.
template <int N>
QORL_INLINE Pack<std::int32_t, N / 2> low_halves(Pack<std::int64_t, N> x) {
    static_assert(N % 2 == 0);
    Pack<std::int32_t, N / 2> r;
    each_register<N / 2>([&](int i) {
        const __m256 a = _mm256_castsi256_ps(x.v[2 * i]), b = _mm256_castsi256_ps(x.v[2 * i + 1]);
        r.v[i] = _mm256_permute4x64_epi64(_mm256_castps_si256(_mm256_shuffle_ps(a, b, 0x88)), 0xD8);
    });
    return r;
}
// Lanes of a beside those of b, as words: two registers, a0 b0 a2 b2 and a1 b1 a3 b3, for each of a and b. That is a
// sequence of pairs whose members stand in lanes 0, 2, 1, 3.
template <int N>
QORL_INLINE Pack<std::int32_t, 2 * N> pair_lanes(Pack<std::int64_t, N> a, Pack<std::int64_t, N> b) {
    Pack<std::int32_t, 2 * N> r;
    each_register<N>([&](int i) {
        r.v[2 * i] = _mm256_unpacklo_epi64(a.v[i], b.v[i]);
        r.v[2 * i + 1] = _mm256_unpackhi_epi64(a.v[i], b.v[i]);
    });
    return r;
}

// Whole numbers as 32-bit integers, one of each of the four packs in turn: a0 b0 c0 d0 a1 b1 c1 d1 ...
template <int N>
QORL_INLINE Pack<std::int32_t, 2 * N> interleave_integers(Pack<double, N> a, Pack<double, N> b, Pack<double, N> c,
                                                          Pack<double, N> d) {
    Pack<std::int32_t, 2 * N> r;
    each_register<N>([&](int i) {
        const __m128i ai = _mm256_cvttpd_epi32(a.v[i]), bi = _mm256_cvttpd_epi32(b.v[i]);
        const __m128i ci = _mm256_cvttpd_epi32(c.v[i]), di = _mm256_cvttpd_epi32(d.v[i]);
        const __m128i ab = _mm_unpacklo_epi32(ai, bi), cd = _mm_unpacklo_epi32(ci, di);  // of lanes 0 and 1
        const __m128i ab_high = _mm_unpackhi_epi32(ai, bi), cd_high = _mm_unpackhi_epi32(ci, di);
        r.v[2 * i] = _mm256_setr_m128i(_mm_unpacklo_epi64(ab, cd), _mm_unpackhi_epi64(ab, cd));
        r.v[2 * i + 1] = _mm256_setr_m128i(_mm_unpacklo_epi64(ab_high, cd_high), _mm_unpackhi_epi64(ab_high, cd_high));
    });
    return r;
}

// Single to double precision and back: register 2 i and 2 i + 1 of the wide pack are the halves of register i.
template <int N>
QORL_INLINE Pack<double, 2 * N> widen(Pack<float, N> x) {
    Pack<double, 2 * N> r;
    each_register<N>([&](int i) {
        r.v[2 * i] = _mm256_cvtps_pd(_mm256_castps256_ps128(x.v[i]));
        r.v[2 * i + 1] = _mm256_cvtps_pd(_mm256_extractf128_ps(x.v[i], 1));
    });
    return r;
}
template <int N>
QORL_INLINE Pack<float, N / 2> narrow(Pack<double, N> x) {
    static_assert(N % 2 == 0);
    Pack<float, N / 2> r;
    each_register<N / 2>(
        [&](int i) { r.v[i] = _mm256_setr_m128(_mm256_cvtpd_ps(x.v[2 * i]), _mm256_cvtpd_ps(x.v[2 * i + 1])); });
    return r;
}

// Doubles put together from two 32-bit words, and taken apart again, by instructions that stay inside the halves of a
// register: the lanes of register i of the words are 0 1 4 5 of register 2 i of the doubles, then 2 3 6 7 of the next.
template <int N>
QORL_INLINE Pack<double, 2 * N> join_words(Pack<std::int32_t, N> low, Pack<std::int32_t, N> high) {
    Pack<double, 2 * N> r;
    each_register<N>([&](int i) {
        r.v[2 * i] = _mm256_castsi256_pd(_mm256_unpacklo_epi32(low.v[i], high.v[i]));
        r.v[2 * i + 1] = _mm256_castsi256_pd(_mm256_unpackhi_epi32(low.v[i], high.v[i]));
    });
    return r;
}
template <int Odd, int N>
QORL_INLINE Pack<std::int32_t, (N + 1) / 2> words(Pack<double, N> x) {  // the last of an odd number stands twice
    constexpr int pick = Odd == 0 ? _MM_SHUFFLE(2, 0, 2, 0) : _MM_SHUFFLE(3, 1, 3, 1);
    Pack<std::int32_t, (N + 1) / 2> r;
    each_register<(N + 1) / 2>([&](int i) {
        const __m256 first = _mm256_castpd_ps(x.v[2 * i]);
        const __m256 second = _mm256_castpd_ps(x.v[2 * i + 1 < N ? 2 * i + 1 : 2 * i]);
        r.v[i] = _mm256_castps_si256(_mm256_shuffle_ps(first, second, pick));
    });
    return r;
}
template <int N>
QORL_INLINE Pack<std::int32_t, (N + 1) / 2> low_words(Pack<double, N> x) {
    return words<0>(x);
}
template <int N>
QORL_INLINE Pack<std::int32_t, (N + 1) / 2> high_words(Pack<double, N> x) {
    return words<1>(x);
}
// N registers of doubles from their high words, the low words zero.
template <int N>
QORL_INLINE Pack<double, N> from_high_words(Pack<std::int32_t, (N + 1) / 2> high) {
    const auto joined = join_words(Pack<std::int32_t, (N + 1) / 2>(0), high);
    Pack<double, N> r;
    each_register<N>([&](int i) { r.v[i] = joined.v[i]; });
    return r;
}
// What a test of doubles by their high words gives: a mask in the order of high_words. It takes half the instructions
// of a test lane by lane, as long as only whether any lane is set is asked for.
template <int N>
struct HighWordMask {
    Mask<float, (N + 1) / 2> words;

    QORL_INLINE friend bool any(HighWordMask m) { return any(m.words); }
    QORL_INLINE friend unsigned lane_bits(HighWordMask m) {
        return lane_bits(Mask<double, N>{from_high_words<N>(bits(m.words.lanes))});
    }
};
// Single to double precision in the order of join_words.
template <int N>
QORL_INLINE Pack<double, 2 * N> widen_as_joined(Pack<float, N> x) {
    each_register<N>([&](int i) {
        const __m256d pairs = _mm256_castps_pd(x.v[i]);
        x.v[i] = _mm256_castpd_ps(_mm256_permute4x64_pd(pairs, _MM_SHUFFLE(3, 1, 2, 0)));
    });
    return widen(x);
}

}  // namespace qorl

#endif
