#include "tools/mersenne/characteristic.hpp"

#include <immintrin.h>

#include <array>

namespace qorl::mersenne {
namespace {

constexpr int bases = bits_of_word + 1;  // of the bits of a, then the part that is free of a

std::array<Polynomial, bases> make_bases() {
    const auto by_upper = [](const Polynomial &p) { return p << words ^ p << middle; };
    const auto by_lower = [](const Polynomial &p) { return p << (words - 1) ^ p << (middle - 1); };
    std::array<Polynomial, bases> base;
    Polynomial power = 1;
    for (int j = bits_of_word - 1; j >= lower_bits; --j, power = by_upper(power)) base[j] = power;
    for (int j = lower_bits - 1; j >= 0; --j, power = by_lower(power)) base[j] = power;
    base[bits_of_word] = power;
    return base;
}
const std::array<Polynomial, bases> base = make_bases();

// p modulo f of degree d.
std::uint32_t residue(const Polynomial &p, std::uint32_t f, int d) {
    std::uint32_t r = 0;
    for (int k = degree; k >= 0; --k) {
        r = r << 1 | static_cast<std::uint32_t>(p[static_cast<std::size_t>(k)]);
        if ((r >> d & 1) != 0) r ^= f;
    }
    return r;
}

constexpr int degree_of(std::uint32_t f) {
    return 31 - __builtin_clz(f);
}

bool divides(std::uint32_t f, std::uint32_t g) {
    const int d = degree_of(f);
    for (int k = degree_of(g) - d; k >= 0; --k)
        if ((g >> (k + d) & 1) != 0) g ^= f << k;
    return g == 0;
}

constexpr int length = (degree + 63) / 64;   // 64-bit words of a residue
constexpr int shift = 64 * length - degree;  // brings the leading coefficient to a word's edge
using Words = std::array<std::uint64_t, length>;

// Squaring modulo p t^shift = t^(64 length) + low(t), whose quotients are whole words.
class Modulus {
  public:
    explicit Modulus(const Polynomial &p) {
        for (int k = 0; k < degree; ++k)
            if (p[static_cast<std::size_t>(k)]) low_[(k + shift) / 64] ^= std::uint64_t{1} << ((k + shift) % 64);
        // t^128 / (t^64 + top) without its leading term, by long division
        std::uint64_t rest = low_[length - 1];
        for (int k = 63; k >= 0; --k) {
            const bool carry = rest >> 63 != 0;
            rest <<= 1;
            if (carry) {
                inverse_ |= std::uint64_t{1} << k;
                rest ^= low_[length - 1];
            }
        }
    }

    [[gnu::target("pclmul,sse4.1")]] void square(Words &x) const {
        std::array<std::uint64_t, 2 * length> s;
        for (int i = 0; i < length; ++i) {
            const __m128i v = _mm_cvtsi64_si128(static_cast<long long>(x[i]));
            const __m128i square = _mm_clmulepi64_si128(v, v, 0);
            s[2 * i] = static_cast<std::uint64_t>(_mm_cvtsi128_si64(square));
            s[2 * i + 1] = static_cast<std::uint64_t>(_mm_extract_epi64(square, 1));
        }
        for (int i = 2 * length - 1; i > 0; --i) s[i] = s[i] << shift | s[i - 1] >> (64 - shift);
        s[0] <<= shift;
        const __m128i inverse = _mm_cvtsi64_si128(static_cast<long long>(inverse_));
        for (int i = 2 * length - 1; i >= length; --i) {
            const __m128i top = _mm_cvtsi64_si128(static_cast<long long>(s[i]));
            const __m128i q = _mm_xor_si128(top, _mm_srli_si128(_mm_clmulepi64_si128(top, inverse, 0), 8));
            std::uint64_t *const at = s.data() + (i - length);
            std::uint64_t carry = 0;
            for (int k = 0; k < length; ++k) {
                const __m128i part = _mm_clmulepi64_si128(q, _mm_cvtsi64_si128(static_cast<long long>(low_[k])), 0);
                at[k] ^= static_cast<std::uint64_t>(_mm_cvtsi128_si64(part)) ^ carry;
                carry = static_cast<std::uint64_t>(_mm_extract_epi64(part, 1));
            }
        }
        for (int i = 0; i < length; ++i) x[i] = s[i] >> shift | (i + 1 < length ? s[i + 1] << (64 - shift) : 0);
    }

  private:
    Words low_{};
    std::uint64_t inverse_ = 0;
};

}  // namespace

Polynomial characteristic(std::uint32_t a) {
    Polynomial p = base[bits_of_word];
    for (int j = 0; j < bits_of_word; ++j)
        if ((a >> j & 1) != 0) p ^= base[j];
    return p;
}

TrialDivision::TrialDivision() {
    constexpr int largest = 14;
    std::vector<std::uint32_t> irreducible;
    for (std::uint32_t f = 2; degree_of(f) <= largest; ++f) {
        bool composite = false;
        for (const std::uint32_t g : irreducible) {
            if (2 * degree_of(g) > degree_of(f)) break;
            if (divides(g, f)) {
                composite = true;
                break;
            }
        }
        if (!composite) irreducible.push_back(f);
    }
    for (const std::uint32_t f : irreducible) {
        Divisor &divisor = divisors_.emplace_back();
        for (int j = 0; j < bits_of_word; ++j)
            divisor.of_bit[j] = static_cast<std::uint16_t>(residue(base[j], f, degree_of(f)));
        divisor.of_rest = static_cast<std::uint16_t>(residue(base[bits_of_word], f, degree_of(f)));
    }
    fixed_.resize(divisors_.size());
}

void TrialDivision::fix(std::uint32_t fixed) {
    for (std::size_t i = 0; i < divisors_.size(); ++i) {
        fixed_[i] = divisors_[i].of_rest;
        for (int j = 0; j < bits_of_word; ++j)
            if ((j < 16 || j == 31) && (fixed >> j & 1) != 0) fixed_[i] ^= divisors_[i].of_bit[j];
    }
}

bool TrialDivision::has_small_factor(std::uint32_t candidate) const {
    for (std::size_t i = 0; i < divisors_.size(); ++i) {
        std::uint16_t r = fixed_[i];
        for (std::uint32_t free = candidate & 0x7FFF0000; free != 0; free &= free - 1)
            r ^= divisors_[i].of_bit[__builtin_ctz(free)];
        if (r == 0) return true;
    }
    return false;
}

bool is_irreducible(const Polynomial &p) {
    const bool has_root = !p[0] || p.count() % 2 == 0;
    if (has_root || !p[degree]) return false;
    const Modulus modulus(p);
    Words x{2};
    for (int k = 0; k < degree; ++k) modulus.square(x);
    return x == Words{2};
}

}  // namespace qorl::mersenne
