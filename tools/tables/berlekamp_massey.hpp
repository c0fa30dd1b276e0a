// The shortest linear recurrence over GF(2) that a sequence of bits follows. Source   Massey, "Shift-register synthesis
// and BCH decoding", IEEE Transactions on Information Theory 15(1), 1969.
#ifndef QORL_TOOLS_TABLES_BERLEKAMP_MASSEY_HPP
#define QORL_TOOLS_TABLES_BERLEKAMP_MASSEY_HPP

#include <bitset>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace qorl::tables_tool {

// Exponents of the terms of its characteristic polynomial, ascending. The sequence is next_bit() `length` times, for
// polynomials of degree length / 2 at most.
template <std::size_t Length, class NextBit>
std::vector<std::uint32_t> characteristic_exponents(NextBit next_bit) {
    using Bits = std::bitset<Length / 2 + 1>;
    // s(n) + sum c(i) s(n - i) = 0 for i = 1 .. degree. `other` is the c of before the last change of degree, moved up
    // by the steps since then; bit i of `before` is s(n - i).
    struct Work {
        Bits c = 1, other = 1, before;
    };
    const auto work = std::make_unique<Work>();
    auto &[c, other, before] = *work;
    std::size_t degree = 0;
    for (std::size_t n = 0; n < Length; ++n) {
        before <<= 1;
        before[0] = next_bit();
        other <<= 1;
        if ((c & before).count() % 2 == 0) continue;
        const Bits last = c;
        c ^= other;
        if (2 * degree > n) continue;
        degree = n + 1 - degree;
        other = last;
    }
    std::vector<std::uint32_t> exponents;
    for (std::size_t i = degree + 1; i-- > 0;)
        if (c[i]) exponents.push_back(static_cast<std::uint32_t>(degree - i));
    return exponents;
}

}  // namespace qorl::tables_tool

#endif
