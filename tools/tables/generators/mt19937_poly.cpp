// The characteristic polynomial of MT19937, from the low bits of the words of its recurrence.
#include "tools/tables/berlekamp_massey.hpp"
#include "tools/tables/integers.hpp"

int main() {
    using namespace qorl::tables_tool;
    std::vector<std::uint32_t> x = {1};
    while (x.size() < 624) x.push_back(1812433253 * (x.back() ^ x.back() >> 30) + static_cast<std::uint32_t>(x.size()));
    const auto low_bit = [&x] {
        const std::size_t k = x.size() - 624;
        const std::uint32_t y = (x[k] & 0x80000000) | (x[k + 1] & 0x7FFFFFFF);
        x.push_back(x[k + 397] ^ y >> 1 ^ (y % 2 != 0 ? 0x9908B0DF : 0));
        return x.back() % 2 != 0;
    };
    open_integer_header("generators", "mt19937_poly",
                        "// The characteristic polynomial of MT19937, of degree 19937.\n");
    integer_table("std::uint32_t", "mt19937_poly", "[135]", characteristic_exponents<40100>(low_bit), 15,
                  "Exponents of its terms.");
    close_integer_header();
}
