#include "tools/tables/writer.hpp"

using namespace qorl::tables_tool;

int main() {
    open_header("expm1_d", "Constants of the double-precision e^x - 1.");
    std::printf("\n");
    constant("expm1_shift", 0x1.8p52 + 1023 * 64, "round_shift, with the exponent bias in 64 steps an octave");
    constant("expm1_ep_shift", 0x1.8p52 + 1023 * 128, "the same for 128 steps an octave");
    constant("expm1_ha_shift", 0x1.8p52 + 1023, "the same for whole octaves");
    const Real ln2_hi = ln2().rounded_to(40);
    constant("expm1_per_ln2", (Real(1) / ln2()).to_double(), "1 / ln 2");
    constant("expm1_offset", 0x1.ep-5, "moves the ends of r upwards, to -0.288 and 0.405");
    constant("expm1_ln2_hi", ln2_hi.to_double(), "ln 2 to 40 bits, so that its products with N are exact");
    constant("expm1_ln2_lo", (ln2() - ln2_hi).to_double(), "the rest");
    const auto expm1 = [](const Real &x) { return exp(x) - Real(1); };
    const Real r64 = ln2() / Real(127), r128 = ln2() / Real(254);
    fitted<double>("expm1_poly", {0, 1},
                   {0x1p-1, 0x1.5555555554aa9p-3, 0x1.5555555554808p-5, 0x1.111122bd03805p-7, 0x1.6c16d9e8d018ep-10},
                   "e^r - 1 = r + r^2 (c0 + c1 r + ...)", expm1, Real(0) - r64, r64, Error::relative);
    const Real half = ln2() / Real(2);
    fitted<double>("expm1_ha_poly", {0, 1, 0.5},
                   {0x1.5555555555553p-3, 0x1.555555555562cp-5, 0x1.1111111111ce3p-7, 0x1.6c16c16bad92ep-10,
                    0x1.a01a019b6025p-13, 0x1.a01a0448e08f1p-16, 0x1.71de3d6ebee93p-19, 0x1.27dd4e4187dep-22,
                    0x1.aebe8aaceb9bp-26, 0x1.2f6ff18b3fad7p-29},
                   "e^r - 1 = r + r^2/2 + r^3 (c0 + c1 r + ...)", expm1, Real(0.058) - half, Real(0.059) + half,
                   Error::relative);
    fitted<double>("expm1_ep_poly", {0, 1}, {0x1.000007cedf0d1p-1, 0x1.55555da9a6fc9p-3},
                   "e^r - 1 = r + r^2 (c0 + c1 r)", expm1, Real(0) - r128, r128, Error::relative);
    close_header();
}
