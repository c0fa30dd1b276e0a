// Recurrences of third order: the two of MRG32K3A, and arithmetic modulo their moduli.
#ifndef QORL_STREAMS_MATRIX_HPP
#define QORL_STREAMS_MATRIX_HPP

#include <cstdint>

namespace qorl {

// x3 <- row[0] x2 + row[1] x1 + row[2] x0 modulo m.
struct ThirdOrder {
    std::uint32_t m;
    std::uint32_t row[3];
};

inline constexpr ThirdOrder mrg32k3a_x{4294967087, {0, 1403580, 4294967087 - 810728}};
inline constexpr ThirdOrder mrg32k3a_y{4294944443, {527612, 0, 4294944443 - 1370589}};

struct AnyModulus {
    std::uint32_t value;
    constexpr std::uint64_t operator()() const { return value; }
};

template <std::uint32_t Value>
struct FixedModulus {
    constexpr std::uint64_t operator()() const { return Value; }
};

// On numbers below the modulus. For one that is a constant of the type the compiler divides by multiplication.
template <class Modulus>
struct ModularArithmetic {
    Modulus m{};

    constexpr std::uint32_t reduced(std::uint64_t a) const { return static_cast<std::uint32_t>(a % m()); }
    constexpr std::uint32_t sum(std::uint32_t a, std::uint32_t b) const {
        const std::uint64_t r = std::uint64_t{a} + b;
        return static_cast<std::uint32_t>(r >= m() ? r - m() : r);
    }
    constexpr std::uint32_t negative(std::uint32_t a) const { return a == 0 ? 0 : static_cast<std::uint32_t>(m() - a); }
    constexpr std::uint32_t product(std::uint32_t a, std::uint32_t b) const { return reduced(std::uint64_t{a} * b); }
};

}  // namespace qorl

#endif
