// The characteristic polynomials of the generators of the MT2203 family, and the search for irreducible ones.
//
// The recurrence x[k+69] = x[k+34] + (upper 27 bits of x[k], lower 5 bits of x[k+1]) A, with the matrix A given by the
// word a, has degree 69 * 32 - 5 = 2203. Its characteristic polynomial is linear in the bits a_j of a:
//
//   (t^69+t^34)^27 (t^68+t^33)^5 + sum_{j<5} a_j (t^69+t^34)^27 (t^68+t^33)^(4-j) + sum_{j>=5} a_j (t^69+t^34)^(31-j)
//
// Source: M. Matsumoto, T. Nishimura, Mersenne Twister, ACM TOMACS 8(1), 1998, appendix A, with r = 5 in place of 31.
#ifndef QORL_TOOLS_MERSENNE_CHARACTERISTIC_HPP
#define QORL_TOOLS_MERSENNE_CHARACTERISTIC_HPP

#include <bitset>
#include <cstdint>
#include <vector>

namespace qorl::mersenne {

inline constexpr int degree = 2203, bits_of_word = 32, lower_bits = 5, words = 69, middle = 34;

using Polynomial = std::bitset<degree + 1>;  // bit k is the coefficient of t^k

// The characteristic polynomial of the recurrence with matrix word a.
Polynomial characteristic(std::uint32_t a);

// Finds matrix words whose polynomial has no factor of degree 14 or less. Each residue is linear in the bits of the
// word, so a candidate costs a few exclusive ors for each divisor until one divides it.
class TrialDivision {
  public:
    TrialDivision();
    // For candidates that agree with `fixed` in the lower 16 bits and bit 31.
    void fix(std::uint32_t fixed);
    bool has_small_factor(std::uint32_t candidate) const;

  private:
    struct Divisor {
        std::uint16_t of_bit[bits_of_word], of_rest;  // residues
    };
    std::vector<Divisor> divisors_;
    std::vector<std::uint16_t> fixed_;
};

// Whether the polynomial is irreducible. For a polynomial p without linear factors whose degree is a prime q, that is
// so just when t^(2^q) = t modulo p. The processor needs carry-less multiplication.
bool is_irreducible(const Polynomial &p);

}  // namespace qorl::mersenne

#endif
