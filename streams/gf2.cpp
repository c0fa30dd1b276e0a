// x^n mod p over GF(2): squaring and multiplying by x on the bits of n from the top.
//
// Method   Words of 64 bits, bit i the coefficient of x^i. With L the words that hold deg p bits, p and every remainder
//          are multiplied by the power of x that brings the leading term of p to x^(64 L): p = x^(64 L) + p0. Then
//          parts of a polynomial by powers of x^(64 L) are runs of words, and the square of x^s r, moved down by s
//          bits, is x^s r^2.
//          A square is a spread: its even coefficients are those of the root, the odd ones are zero.
//          Reduction is Barrett's, which is exact for polynomials: with u = x^(128 L) div p = x^(64 L) + u0 and
//          a = h x^(64 L) + l, the quotient is h + (h u0 div x^(64 L)), and the remainder l plus the low L words of
//          quotient times p0. Both products are Karatsuba's.
// Source   Barrett, CRYPTO '86; Karatsuba and Ofman 1962; Brent and Zimmermann, Modern Computer Arithmetic,
//          1.3 and 2.4.
#include "streams/gf2.hpp"

#include <algorithm>
#include <bit>
#include <cstring>

#include "frame/carryless.hpp"
#include "qorl/hux.h"
#include "streams/streams.hpp"

namespace qorl {
namespace {

using Word = std::uint64_t;

// Up to this many words the plain product is faster than Karatsuba's.
constexpr std::size_t plain_words = 10;

constexpr Word spread(std::uint32_t half) {
    Word x = half;
    x = (x | x << 16) & 0x0000FFFF0000FFFF;
    x = (x | x << 8) & 0x00FF00FF00FF00FF;
    x = (x | x << 4) & 0x0F0F0F0F0F0F0F0F;
    x = (x | x << 2) & 0x3333333333333333;
    return (x | x << 1) & 0x5555555555555555;
}

void add(Word *r, const Word *a, std::size_t n) {
    for (std::size_t i = 0; i < n; ++i) r[i] ^= a[i];
}

void add(Word *r, const Word *a, const Word *b, std::size_t n) {
    for (std::size_t i = 0; i < n; ++i) r[i] = a[i] ^ b[i];
}

struct Portable {
    // r[0, n] += a b[0, n).
    static void add_multiple(Word *r, Word a, const Word *b, std::size_t n) {
        using Pair = unsigned __int128;
        Pair multiples[16] = {0, a};
        for (int w = 2; w < 16; ++w) multiples[w] = multiples[w / 2] << 1 ^ multiples[w % 2];
        for (std::size_t j = 0; j < n; ++j) {
            Pair product = multiples[b[j] >> 60];
            for (int shift = 56; shift >= 0; shift -= 4) product = product << 4 ^ multiples[b[j] >> shift & 15];
            r[j] ^= static_cast<Word>(product);
            r[j + 1] ^= static_cast<Word>(product >> 64);
        }
    }

    // r[0, 2 n) = a[0, n) b[0, n).
    static void multiply(Word *r, const Word *a, const Word *b, std::size_t n) {
        std::fill_n(r, 2 * n, Word{0});
        for (std::size_t i = 0; i < n; ++i) add_multiple(r + i, a[i], b, n);
    }
};

struct Hardware {
    QORL_CARRYLESS static void add_multiple(Word *r, Word a, const Word *b, std::size_t n) {
        const WordPair factor = WordPair::load_one(&a);
        WordPair carry;
        for (std::size_t j = 0; j < n; ++j) {
            const WordPair sum = carry ^ carryless_product<0, 0>(factor, WordPair::load_one(b + j));
            r[j] ^= sum.low();
            carry = high_word(sum);
        }
        r[n] ^= carry.low();
    }

    // Word k of the product is a sum over the products of words i and k - i, which never leaves the registers.
    QORL_CARRYLESS static void multiply(Word *r, const Word *a, const Word *b, std::size_t n) {
        WordPair carry;
        for (std::size_t k = 0; k + 1 < 2 * n; ++k) {
            std::size_t i = k < n ? 0 : k - n + 1;
            const std::size_t end = std::min(k + 1, n);
            WordPair even = carry, odd;
            for (; i + 2 <= end; i += 2) {
                const WordPair x = WordPair::load(a + i), y = WordPair::load(b + k - i - 1);
                even = even ^ carryless_product<0, 1>(x, y);
                odd = odd ^ carryless_product<1, 0>(x, y);
            }
            if (i < end) odd = odd ^ carryless_product<0, 0>(WordPair::load_one(a + i), WordPair::load_one(b + k - i));
            const WordPair sum = even ^ odd;
            r[k] = sum.low();
            carry = high_word(sum);
        }
        r[2 * n - 1] = carry.low();
    }
};

// r[0, 2 n) = a[0, n) b[0, n). With h the words of the lower half, rounded up, `scratch` takes 4 h words and what the
// product of h words takes: not more than 4 n and 4 for each halving.
template <class Products>
void multiply(Word *r, const Word *a, const Word *b, std::size_t n, Word *scratch) {
    if (n <= plain_words) return Products::multiply(r, a, b, n);
    const std::size_t h = (n + 1) / 2, rest = n - h;
    Word *const a_sum = scratch, *const b_sum = a_sum + h, *const middle = b_sum + h, *const deeper = middle + 2 * h;
    const auto halves_sum = [h, rest](Word *sum, const Word *x) {
        std::copy_n(x, h, sum);
        add(sum, x + h, rest);
    };
    halves_sum(a_sum, a);
    halves_sum(b_sum, b);
    multiply<Products>(r, a, b, h, deeper);
    multiply<Products>(r + 2 * h, a + h, b + h, rest, deeper);
    multiply<Products>(middle, a_sum, b_sum, h, deeper);
    add(middle, r, 2 * h);
    add(middle, r + 2 * h, 2 * rest);
    add(r + h, middle, 2 * h);
}

// Remainders modulo one polynomial, with the arrays that the work needs.
template <class Products>
class Modulus {
  public:
    static constexpr std::size_t words(std::int64_t degree) { return (static_cast<std::size_t>(degree) + 63) / 64; }
    // Of the memory that an object works in.
    static constexpr std::size_t workspace_words(std::int64_t degree) {
        return 9 * words(degree) + scratch_words(words(degree));
    }

    Modulus(std::int64_t degree, std::int32_t terms, const std::uint32_t *exponents, Word *workspace)
        : size_(words(degree)),
          shift_(64 * size_ - static_cast<std::size_t>(degree)),
          low_(workspace),
          inverse_(low_ + size_),
          value_(inverse_ + size_),
          square_(value_ + size_),
          product_(square_ + 2 * size_),
          multiple_(product_ + 2 * size_),
          scratch_(multiple_ + 2 * size_) {
        std::fill_n(low_, size_, Word{0});
        for (std::int32_t t = 0; t < terms; ++t) {
            const std::size_t bit = exponents[t] + shift_;
            if (bit < 64 * size_) low_[bit / 64] ^= Word{1} << bit % 64;
        }
        invert();
    }

    // The value becomes x^n, n below the degree.
    void set_power(std::uint64_t n) {
        std::fill_n(value_, size_, Word{0});
        const std::size_t bit = n + shift_;
        value_[bit / 64] = Word{1} << bit % 64;
    }

    void square() {
        for (std::size_t i = 0; i < size_; ++i) {
            square_[2 * i] = spread(static_cast<std::uint32_t>(value_[i]));
            square_[2 * i + 1] = spread(static_cast<std::uint32_t>(value_[i] >> 32));
        }
        if (shift_ != 0) move_down(square_, 2 * size_, shift_);
        Word *const high = square_ + size_;
        multiply<Products>(product_, high, inverse_, size_, scratch_);
        add(high, product_ + size_, size_);  // the quotient
        multiply<Products>(multiple_, high, low_, size_, scratch_);
        add(value_, square_, multiple_, size_);
    }

    void times_x() {
        const bool carry = value_[size_ - 1] >> 63 != 0;
        for (std::size_t i = size_ - 1; i > 0; --i) value_[i] = value_[i] << 1 | value_[i - 1] >> 63;
        value_[0] <<= 1;
        if (carry) add(value_, low_, size_);
    }

    // The value as 32-bit words, zeros behind it.
    void store(std::uint32_t *out, std::size_t count) {
        if (shift_ != 0) move_down(value_, size_, shift_);
        const std::size_t filled = std::min(count, 2 * size_);
        std::memcpy(out, value_, filled * sizeof(std::uint32_t));
        std::fill_n(out + filled, count - filled, 0u);
    }

  private:
    static constexpr std::size_t scratch_words(std::size_t n) {
        return n <= plain_words ? 0 : 4 * ((n + 1) / 2) + scratch_words((n + 1) / 2);
    }

    static void move_down(Word *a, std::size_t n, std::size_t bits) {  // 1 to 63
        for (std::size_t i = 0; i + 1 < n; ++i) a[i] = a[i] >> bits | a[i + 1] << (64 - bits);
        a[n - 1] >>= bits;
    }

    // u0, by long division of x^(128 L) by p a word at a time. The words of the quotient follow from the leading words
    // of the remainder by the same rule for L = 1, in which the inverse is that of x^64 + the first word of p0.
    void invert() {
        const Word top = low_[size_ - 1];
        Word first = 0, rest = top;  // x^128 div (x^64 + top), a bit at a time
        for (int bit = 63; bit >= 0; --bit) {
            const bool one = rest >> 63 != 0;
            rest <<= 1;
            if (one) {
                rest ^= top;
                first |= Word{1} << bit;
            }
        }
        Word *const remainder = square_;
        std::fill_n(remainder, size_, Word{0});
        std::copy_n(low_, size_, remainder + size_);
        for (std::size_t k = size_; k-- > 0;) {
            const Word leading = remainder[k + size_];
            Word product[2];
            Products::multiply(product, &leading, &first, 1);
            inverse_[k] = leading ^ product[1];
            Products::add_multiple(remainder + k, inverse_[k], low_, size_);
        }
    }

    std::size_t size_, shift_;
    Word *low_, *inverse_, *value_, *square_, *product_, *multiple_, *scratch_;
};

template <class Products>
std::int32_t power_of_x(std::uint64_t n, std::int64_t degree, std::int32_t terms, const std::uint32_t *exponents,
                        std::int32_t words, std::uint32_t *out) {
    Block<Word> workspace(Modulus<Products>::workspace_words(degree));
    if (workspace.data() == nullptr) return HuxStatusOutOfMemory;
    Modulus<Products> modulus(degree, terms, exponents, workspace.data());
    // As many leading bits of n as give a power below the degree are there at once.
    int bits = 0;
    std::uint64_t leading = n;
    for (; leading >= static_cast<std::uint64_t>(degree); leading >>= 1) ++bits;
    modulus.set_power(leading);
    while (bits-- > 0) {
        modulus.square();
        if ((n >> bits & 1) != 0) modulus.times_x();
    }
    modulus.store(out, static_cast<std::size_t>(words));
    return HuxStatusOk;
}

}  // namespace

std::int32_t power_of_x(Carryless kind, std::uint64_t n, std::int64_t degree, std::int32_t terms,
                        const std::uint32_t *exponents, std::int32_t words, std::uint32_t *out) {
    if (n < static_cast<std::uint64_t>(degree)) {
        std::fill_n(out, words, 0u);
        out[n / 32] = 1u << n % 32;
        return HuxStatusOk;
    }
    return kind == Carryless::hardware ? power_of_x<Hardware>(n, degree, terms, exponents, words, out)
                                       : power_of_x<Portable>(n, degree, terms, exponents, words, out);
}

}  // namespace qorl

int32_t __huxPolyRem(uint64_t n, int64_t degree, int32_t terms, const uint32_t *exponents, int32_t words,
                     uint32_t *out) {
    const bool hardware = qorl_serv_processor_has(QORL_PROCESSOR_CLMUL) != 0;
    return qorl::power_of_x(hardware ? qorl::Carryless::hardware : qorl::Carryless::portable, n, degree, terms,
                            exponents, words, out);
}
