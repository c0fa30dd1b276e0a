#include "tools/tables/writer.hpp"

using namespace qorl::tables_tool;

int main() {
    open_header("sqrt_d", "Polynomials of the double-precision square roots.");
    // s = (1 + d) / sqrt(x), |d| below 1.5 2^-12 of the estimate + 2^-21 of the cut argument + 2^-20 of the cut
    // estimate
    constexpr double d = 0x1.8p-12 + 0x1p-21 + 0x1p-20;
    const Real low(-d * (2 + d)), high(d * (2 - d));
    const auto inv_sqrt = [](const Real &e) { return Real(1) / sqrt(Real(1) - e); };
    fitted<double>("inv_sqrt_poly", {1},
                   {0x1.ffffffffffe6bp-2, 0x1.80000000000b5p-2, 0x1.40000b291f462p-2, 0x1.1800037270987p-2},
                   "(1 - e)^(-1/2) = 1 + e (c0 + c1 e + ...)", inv_sqrt, low, high, Error::absolute);
    fitted<double>("inv_sqrt_short_poly", {1}, {0x1.00000440708cep-1, 0x1.8000038b09b19p-2},
                   "(1 - e)^(-1/2) = 1 + e (c0 + c1 e)", inv_sqrt, low, high, Error::absolute);
    close_header();
}
