// Polynomials by name of scheme, unrolled at compile time; coefficients lowest order first. The argument is a pack or a
// scalar.
#ifndef QORL_FRAME_POLY_HPP
#define QORL_FRAME_POLY_HPP

#include <array>
#include <bit>
#include <cmath>
#include <cstddef>

#include "frame/vec.hpp"

namespace qorl {

namespace detail {
using std::fma;  // for scalars; that of packs is found by its arguments

template <std::size_t Low, std::size_t High, class P, class T, std::size_t Count>
QORL_INLINE P horner_range(P x, const std::array<T, Count> &c) {
    if constexpr (Low == High)
        return P(c[Low]);
    else
        return fma(x, horner_range<Low + 1, High>(x, c), P(c[Low]));
}
template <std::size_t Low, std::size_t High, class P, class T, std::size_t Count, std::size_t Powers>
QORL_INLINE P estrin_range(const std::array<P, Powers> &power, P x, const std::array<T, Count> &c) {
    if constexpr (Low == High) {
        return P(c[Low]);
    } else if constexpr (High == Low + 1) {
        return fma(x, P(c[High]), P(c[Low]));
    } else {
        constexpr std::size_t terms = High - Low + 1, half = std::bit_floor(terms - 1);  // low half: a power of two
        constexpr std::size_t level = static_cast<std::size_t>(std::countr_zero(half)) - 1;
        return fma(power[level], estrin_range<Low + half, High>(power, x, c),
                   estrin_range<Low, Low + half - 1>(power, x, c));
    }
}
}  // namespace detail

// c0 + x (c1 + x (c2 + ...)): fewest operations, one chain.
template <class P, class T, std::size_t Count>
QORL_INLINE P horner(P x, const std::array<T, Count> &c) {
    return detail::horner_range<0, Count - 1>(x, c);
}

// Halves joined by powers x^2, x^4, ...: a short chain for a few operations more.
template <class P, class T, std::size_t Count>
QORL_INLINE P estrin(P x, const std::array<T, Count> &c) {
    std::array<P, 4> power{};  // x^2, x^4, x^8, x^16; those that are not used cost nothing
    power[0] = x * x;
    power[1] = power[0] * power[0];
    power[2] = power[1] * power[1];
    power[3] = power[2] * power[2];
    static_assert(Count <= 32);
    return detail::estrin_range<0, Count - 1>(power, x, c);
}

// Even and odd part as two chains in x^2, joined last: half the chain for two operations more.
template <class P, class T, std::size_t Count>
QORL_INLINE P even_odd(P x, const std::array<T, Count> &c) {
    std::array<T, (Count + 1) / 2> even{};
    std::array<T, Count / 2> odd{};
    for (std::size_t i = 0; i < Count; ++i) (i % 2 == 0 ? even[i / 2] : odd[i / 2]) = c[i];
    const P square = x * x;
    return fma(x, horner(square, odd), horner(square, even));
}

}  // namespace qorl

#endif
