#include "tools/tables/writer.hpp"

using namespace qorl::tables_tool;

int main() {
    open_header("sqrt_s", "Constants of the single-precision square roots.");
    std::printf("\n");
    // One Newton step from 1.5 2^-12 ends up to 3.375 2^-24 below the root, never above: a factor of the half moves the
    // interval by 1.5 2^-24.
    constant("newton_half", static_cast<float>(0.5 * (1 - 3 * 0x1p-24)), "0.5 (1 - 3 2^-24)");
    // 1.5 2^-12 of the estimate, and downwards 2^-11 of its cut to 12 bits
    constexpr double up = 0x1.8p-12, down = 0x1.8p-12 + 0x1p-11;
    fitted<float>(
        "inv_sqrt_s_poly", {1}, {0x1.000006p-1f, 0x1.8061ep-2f}, "(1 - e)^(-1/2) = 1 + e (c0 + c1 e)",
        [](const Real &e) { return Real(1) / sqrt(Real(1) - e); }, Real(-up * (2 + up)), Real(down * (2 - down)),
        Error::absolute);
    close_header();
}
