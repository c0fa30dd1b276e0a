#include "tools/tables/writer.hpp"

using namespace qorl::tables_tool;

int main() {
    open_header("expm1_d", "Constants of the double-precision e^x - 1.");
    std::printf("\n");
    constant("expm1_shift", 0x1.8p52 + 1023 * 64, "round_shift, with the exponent bias in 64 steps an octave");
    constant("expm1_ep_shift", 0x1.8p52 + 1023 * 128, "the same for 128 steps an octave");
    const auto expm1 = [](const Real &x) { return exp(x) - Real(1); };
    const Real r64 = ln2() / Real(127), r128 = ln2() / Real(254);
    fitted<double>("expm1_poly", {0, 1},
                   {0x1p-1, 0x1.5555555554aa9p-3, 0x1.5555555554808p-5, 0x1.111122bd03805p-7, 0x1.6c16d9e8d018ep-10},
                   "e^r - 1 = r + r^2 (c0 + c1 r + ...)", expm1, Real(0) - r64, r64, Error::relative);
    fitted<double>("expm1_ep_poly", {0, 1}, {0x1.000007cedf0d1p-1, 0x1.55555da9a6fc9p-3},
                   "e^r - 1 = r + r^2 (c0 + c1 r)", expm1, Real(0) - r128, r128, Error::relative);
    close_header();
}
