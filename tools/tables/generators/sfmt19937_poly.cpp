// The characteristic polynomial of SFMT19937, from a bit of each of its elements of 128 bits.
#include <array>

#include "tools/tables/berlekamp_massey.hpp"
#include "tools/tables/integers.hpp"

namespace {

__extension__ using Number = unsigned __int128;
using Words = std::array<std::uint32_t, 4>;

template <class F>
Words each_word(const Words &a, F f) {
    return {f(a[0], 0), f(a[1], 1), f(a[2], 2), f(a[3], 3)};
}

Number number(const Words &a) {
    return Number{a[3]} << 96 | Number{a[2]} << 64 | Number{a[1]} << 32 | a[0];
}

// w[k + 156].
Words step(const Words *w) {
    constexpr Words mask = {0xDFFFFFEF, 0xDDFECB7F, 0xBFFAFFFF, 0xBFFFFFF6};
    const Words b = each_word(w[122], [&](std::uint32_t x, std::size_t k) { return x >> 11 & mask[k]; });
    const Words d = each_word(w[155], [](std::uint32_t x, std::size_t) { return x << 18; });
    const Number a = number(w[0]), r = a ^ a << 8 ^ number(b) ^ number(w[154]) >> 8 ^ number(d);
    return {static_cast<std::uint32_t>(r), static_cast<std::uint32_t>(r >> 32), static_cast<std::uint32_t>(r >> 64),
            static_cast<std::uint32_t>(r >> 96)};
}

}  // namespace

int main() {
    using namespace qorl::tables_tool;
    std::vector<Words> w;
    std::uint32_t x = 1;
    const auto next_word = [&x](std::uint32_t, std::size_t) { return x = 1812433253 * (x ^ x >> 30) + 1; };
    while (w.size() < 156) w.push_back(each_word({}, next_word));
    const auto low_bit = [&w] {
        w.push_back(step(&w[w.size() - 156]));
        return w.back()[0] % 2 != 0;
    };
    open_integer_header("generators", "sfmt19937_poly",
                        "// The characteristic polynomial of SFMT19937, of degree 19968.\n");
    integer_table("std::uint32_t", "sfmt19937_poly", "[6711]", characteristic_exponents<40100>(low_bit), 15,
                  "Exponents of its terms.");
    close_integer_header();
}
