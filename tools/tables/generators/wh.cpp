// The sets of WH: moduli by one rule, and for each the largest of the small multipliers that is free in its set.
//
// A set is made from its first prime downwards: a prime p is taken if (p - 1) / 2 has no factor in common with
// (q - 1) / 2 of any q taken, so that the periods of the components do not shorten that of their sum, and if one of the
// numbers 112 .. 127 that no other component has is a primitive root of p. Five sets are given, and follow from their
// first primes by this rule; their primes are kept out of the walk that makes the others, down from 16776971.
#include <algorithm>
#include <cstdlib>
#include <numeric>

#include "tools/tables/integers.hpp"
#include "tools/tables/writer.hpp"

namespace {

using Number = std::uint32_t;

struct Set {
    std::vector<Number> moduli, multipliers;
    bool operator==(const Set &) const = default;
};

struct GivenSet {
    std::size_t index;
    Set set;
};
const GivenSet given_sets[] = {
    {0, {{16770647, 16770643, 16770623, 16770617}, {125, 117, 127, 126}}},
    {1, {{16770311, 16770283, 16770263, 16770209}, {127, 126, 125, 123}}},
    {2, {{16769807, 16769771, 16769749, 16769663}, {125, 119, 123, 126}}},
    {136, {{16758587, 16758571, 16758563, 16758527}, {126, 127, 125, 124}}},
    {272, {{16766363, 16766359, 16766327, 16766231}, {126, 127, 125, 124}}},
};
constexpr std::size_t sets = 273, components = 4;
constexpr Number largest = 16776971, least = 16718909;

std::vector<Number> prime_factors(Number n) {
    std::vector<Number> factors;
    for (Number f = 2; f * f <= n; ++f) {
        if (n % f != 0) continue;
        factors.push_back(f);
        while (n % f == 0) n /= f;
    }
    if (n > 1) factors.push_back(n);
    return factors;
}

bool is_prime(Number n) {
    return prime_factors(n) == std::vector<Number>{n};
}

bool is_primitive_root(Number a, Number p) {
    const auto power = [p](std::uint64_t base, Number n) {
        std::uint64_t result = 1;
        for (; n != 0; n /= 2, base = base * base % p)
            if (n % 2 != 0) result = result * base % p;
        return result;
    };
    const std::vector<Number> factors = prime_factors(p - 1);
    return std::none_of(factors.begin(), factors.end(), [&](Number f) { return power(a, (p - 1) / f) == 1; });
}

// The set from `p` downwards without the primes of `reserved`; p moves to the number behind its last prime.
Set walk(Number &p, const std::vector<Number> &reserved) {
    Set set;
    for (; set.moduli.size() < components; --p) {
        if (p < least) std::exit(EXIT_FAILURE);
        if (!is_prime(p) || std::find(reserved.begin(), reserved.end(), p) != reserved.end()) continue;
        const auto coprime = [p](Number q) { return std::gcd((p - 1) / 2, (q - 1) / 2) == 1; };
        if (!std::all_of(set.moduli.begin(), set.moduli.end(), coprime)) continue;
        for (Number a = 127; a >= 112; --a) {
            const auto &taken = set.multipliers;
            if (std::find(taken.begin(), taken.end(), a) != taken.end() || !is_primitive_root(a, p)) continue;
            set.moduli.push_back(p);
            set.multipliers.push_back(a);
            break;
        }
    }
    return set;
}

}  // namespace

int main() {
    std::vector<Set> table(sets);
    std::vector<Number> reserved;
    for (const auto &[index, set] : given_sets) {
        Number p = set.moduli[0];
        if (walk(p, {}) != set) return EXIT_FAILURE;
        table[index] = set;
        reserved.insert(reserved.end(), set.moduli.begin(), set.moduli.end());
    }
    Number p = largest;
    for (Set &set : table)
        if (set.moduli.empty()) set = walk(p, reserved);

    std::vector<Number> moduli, multipliers;
    std::vector<double> inverses;
    for (const Set &set : table) {
        moduli.insert(moduli.end(), set.moduli.begin(), set.moduli.end());
        multipliers.insert(multipliers.end(), set.multipliers.begin(), set.multipliers.end());
        for (const Number m : set.moduli) inverses.push_back(1.0 / m);
    }
    using namespace qorl::tables_tool;
    open_integer_header(
        "generators", "wh",
        "// The sets of the generators WH, four primes in a row, and the multipliers that their streams "
        "begin with.\n");
    integer_table("std::uint32_t", "wh_moduli", "[273 * 4]", moduli, components, "Moduli, all different primes.");
    qorl::tables_tool::table("wh_inverse_moduli", inverses, "1 / modulus.", components);
    integer_table("std::uint8_t", "wh_multipliers", "[273 * 4]", multipliers, 4 * components,
                  "Multipliers, primitive roots.");
    close_integer_header();
}
