#include "tools/tables/writer.hpp"

using namespace qorl::tables_tool;

int main() {
    open_header("cosh_sinh_d", "Constants of the double-precision hyperbolic cosine and sine.");
    std::printf("\n");
    const Real hi = ln2().rounded_to(42);
    constant("cosh_per_ln2", (Real(1) / ln2()).to_double(), "1 / ln 2");
    constant("cosh_ln2_hi", hi.to_double(), "ln 2 to 42 bits, so that its products with n are exact");
    constant("cosh_ln2_lo", (ln2() - hi).to_double(), "the rest");
    constant("cosh_shift", 0x1.8p52 + 1022,
             "rounds to an integer, the low bits of the sum are the exponent of 2^(n-1)");
    const Real r = ln2() / Real(1.99), zero(0);
    const auto coshm1 = [](const Real &x) { return cosh(sqrt(x)) - Real(1); };
    const auto sinh_quotient = [](const Real &x) { return sinh(sqrt(x)) / sqrt(x); };
    const auto fit_coshm1 = [&](const char *name, const std::vector<double> &c) {
        fitted<double>(name, {0}, c, "cosh r - 1 = c0 x + c1 x^2 + ..., x = r^2,", coshm1, zero, r * r,
                       Error::absolute);
    };
    const auto fit_sinh = [&](const char *name, const std::vector<double> &c) {
        fitted<double>(name, {1}, c, "sinh(r) / r = 1 + c0 x + c1 x^2 + ..., x = r^2,", sinh_quotient, zero, r * r,
                       Error::relative);
    };
    fit_coshm1("coshm1_poly", {0x1.000000000000cp-1, 0x1.555555554fc1dp-5, 0x1.6c16c18687a2cp-10, 0x1.a019943495af6p-16,
                               0x1.28b27cdecc31dp-22});
    fit_sinh("sinh_poly", {0x1.5555555555559p-3, 0x1.111111110f59fp-7, 0x1.a01a01b05e675p-13, 0x1.71ddf70375b9fp-19,
                           0x1.af6139a41eccfp-26});
    fit_coshm1("coshm1_ep_poly", {0x1.00000046037f4p-1, 0x1.55547a8a90cb2p-5, 0x1.6d9b5f635b5f9p-10});
    fit_sinh("sinh_ep_poly", {0x1.555555746f0ebp-3, 0x1.1110afdefa2a1p-7, 0x1.a173533b655f1p-13});
    close_header();
}
