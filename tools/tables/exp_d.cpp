#include "tools/tables/writer.hpp"

using namespace qorl::tables_tool;

namespace {

// 2^(j/m), j below m, one word each.
std::vector<double> powers(int m) {
    std::vector<double> t;
    for (int j = 0; j < m; ++j) t.push_back(exp2(Real(j) / Real(m)).to_double());
    return t;
}

// The same as pairs: the rounded value, then the rounded rest.
std::vector<double> pairs(int m) {
    std::vector<double> t;
    for (int j = 0; j < m; ++j) {
        const Real exact = exp2(Real(j) / Real(m));
        t.push_back(exact.to_double());
        t.push_back((exact - Real(t.back())).to_double());
    }
    return t;
}

}  // namespace

int main() {
    open_header("exp_d", "Tables and constants of the double-precision exponential family.");
    std::printf("\n");
    constant("round_shift", 0x1.8p52, "rounds to an integer, which the low bits then hold");
    const Real step64 = ln2() / Real(64), step128 = ln2() / Real(128), step1024 = ln2() / Real(1024);
    constant("exp_64_per_ln2", (Real(1) / step64).to_double(), "64 / ln 2");
    constant("exp_128_per_ln2", (Real(1) / step128).to_double(), "128 / ln 2");
    constant("exp_1024_per_ln2", (Real(1) / step1024).to_double(), "1024 / ln 2");
    const Real hi64 = step64.rounded_to(36), hi1024 = step1024.rounded_to(36);
    constant("exp_ln2_64_hi", hi64.to_double(), "ln 2 / 64 to 36 bits, so that its products with N are exact");
    constant("exp_ln2_64_lo", (step64 - hi64).to_double(), "the rest");
    constant("exp_ln2_128", step128.to_double(), "ln 2 / 128");
    constant("exp_ln2_1024_hi", hi1024.to_double(), "ln 2 / 1024 to 36 bits");
    constant("exp_ln2_1024_lo", (step1024 - hi1024).to_double(), "the rest");
    table("exp2_pairs_64", pairs(64), "2^(j/64) in two words: the rounded value and the rounded rest.", 2);
    table("exp2_128", powers(128), "2^(j/128).", 4);
    table("exp2_1024", powers(1024), "2^(j/1024).", 4);
    const auto e_to_x = [](const Real &x) { return exp(x); };
    const auto expm1 = [](const Real &x) { return exp(x) - Real(1); };
    const Real r64 = ln2() / Real(127), r1024 = ln2() / Real(2040), r128 = ln2() / Real(254);
    fitted<double>("exp_ha_poly", {0, 1},
                   {0x1.fffffffffdaa7p-2, 0x1.555555555432cp-3, 0x1.5555744191844p-5, 0x1.111127101df29p-7},
                   "e^r - 1 = r + r^2 (c0 + c1 r + ...)", expm1, Real(0) - r64, r64, Error::absolute);
    fitted<double>("exp_scalar_poly", {0, 1},
                   {0x1p-1, 0x1.5555555554894p-3, 0x1.555555555456dp-5, 0x1.111123f63ca4dp-7, 0x1.6c16db9c93dccp-10},
                   "e^r - 1 = r + r^2 (c0 + c1 r + ...)", expm1, Real(0) - r64, r64, Error::absolute);
    fitted<double>("exp_la_poly", {}, {1, 1, 0x1.000000223b22dp-1, 0x1.5555557663d7bp-3}, "e^r", e_to_x,
                   Real(0) - r1024, r1024, Error::absolute);
    fitted<double>("exp_ep_poly", {}, {1, 1, 0x1.00000a69661d6p-1}, "e^r", e_to_x, Real(0) - r128, r128,
                   Error::absolute);
    close_header();
}
