// The powers A^(2^i) of the companion matrices of both recurrences, by squaring in 128 bits.
#include "tools/tables/integers.hpp"

namespace {

using Entries = std::vector<std::uint32_t>;

Entries powers(Entries matrix, std::uint32_t m) {
    constexpr int count = 193;
    Entries all;
    for (int i = 0; i < count; ++i) {
        all.insert(all.end(), matrix.begin(), matrix.end());
        Entries square;
        for (std::size_t row = 0; row < 3; ++row) {
            for (std::size_t column = 0; column < 3; ++column) {
                unsigned __int128 sum = 0;
                for (std::size_t k = 0; k < 3; ++k)
                    sum += static_cast<unsigned __int128>(matrix[3 * row + k]) * matrix[3 * k + column];
                square.push_back(static_cast<std::uint32_t>(sum % m));
            }
        }
        matrix = square;
    }
    return all;
}

}  // namespace

int main() {
    using namespace qorl::tables_tool;
    open_integer_header("streams", "mrg32k3a_powers",
                        "// Matrices for jumps of MRG32K3A: A^(2^i) modulo the modulus, i = 0 .. 192, nine numbers by "
                        "rows.\n");
    integer_table("std::uint32_t", "mrg32k3a_m1_powers", "[193 * 9]",
                  powers({0, 1, 0, 0, 0, 1, 4294967087 - 810728, 1403580, 0}, 4294967087), 9,
                  "x <- 1403580 x1 - 810728 x0 modulo 2^32 - 209");
    integer_table("std::uint32_t", "mrg32k3a_m2_powers", "[193 * 9]",
                  powers({0, 1, 0, 0, 0, 1, 4294944443 - 1370589, 0, 527612}, 4294944443), 9,
                  "y <- 527612 y2 - 1370589 y0 modulo 2^32 - 22853");
    close_integer_header();
}
