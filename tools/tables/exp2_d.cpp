#include "tools/tables/writer.hpp"

using namespace qorl::tables_tool;

int main() {
    open_header("exp2_d", "Constants of the double-precision powers of 2 and 10.");
    std::printf("\n");
    constant("exp2_shift", 0x1.8p46, "rounds to a multiple of 1/64, which the low bits then hold");
    const Real ln10 = log(Real(10)), step = ln2() / ln10 / Real(64), hi = step.rounded_to(36);
    constant("exp10_64_per_lg2", (Real(1) / step).to_double(), "64 / log10 2");
    constant("exp10_lg2_64_hi", hi.to_double(), "log10(2) / 64 to 36 bits, so that its products with N are exact");
    constant("exp10_lg2_64_lo", (step - hi).to_double(), "the rest");
    const Real half = Real(1) / Real(128), half10 = step * Real(64) / Real(127);
    const auto exp2m1 = [](const Real &x) { return exp2(x) - Real(1); };
    const auto exp10m1 = [ln10](const Real &x) { return exp(x * ln10) - Real(1); };
    fitted<double>(
        "exp2_poly", {0},
        {0x1.62e42fefa39efp-1, 0x1.ebfbdff82a2c5p-3, 0x1.c6b08d7047e69p-5, 0x1.3b2ad317df6bbp-7, 0x1.5d881d535758cp-10},
        "2^r - 1 = r (c0 + c1 r + ...)", exp2m1, Real(0) - half, half, Error::absolute);
    fitted<double>(
        "exp10_poly", {0},
        {0x1.26bb1bbb55516p1, 0x1.53524c73cd1a6p1, 0x1.0470591de1859p1, 0x1.2bd77bca63b7bp0, 0x1.142a1895375eap-1},
        "10^r - 1 = r (c0 + c1 r + ...)", exp10m1, Real(0) - half10, half10, Error::absolute);
    close_header();
}
