#include <bit>

#include "tools/tables/writer.hpp"

using namespace qorl::tables_tool;

namespace {

// The float next to x in a direction of rounding.
float directed(const Real &x, mpfr_rnd_t direction) {
    return mpfr_get_flt(x.get(), direction);
}

// The ends of the range of b^x.
void bounds(const char *function, const Real &ln_base) {
    const auto named = [function](const char *bound) { return std::string(function) + bound; };
    const Real log_2 = ln2() / ln_base, top = exp2(Real(128)) - exp2(Real(103)), none = Real(-150) * log_2;
    constant(named("_overflow_bound").c_str(), directed(log(top) / ln_base, MPFR_RNDD),
             "the largest x with a finite result");
    float least = directed(none, MPFR_RNDU);
    if (mpfr_cmp_d(none.get(), static_cast<double>(least)) == 0) least = std::nextafter(least, 0.0f);
    constant(named("_underflow_bound").c_str(), least, "the least x with a result above zero");
    const float normal = directed(Real(-126) * log_2, MPFR_RNDU);
    constant(named("_denormal_bound").c_str(), normal, "the least x with a normal result");
    constant(named("_fast_bound").c_str(), -normal, "the bodies take |x| up to here");
}

// A step of a reduction: its reciprocal, and the step in two words, the second one times `unit`.
void step(const char *name, const std::string &what, const Real &size, const Real &unit, const char *rest) {
    const std::string stem = std::string("exp_s_") + name;
    const float hi = size.to_float();
    constant((std::string("exp_s_per_") + name).c_str(), (Real(1) / size).to_float(), ("1 / (" + what + ")").c_str());
    constant((stem + "_hi").c_str(), hi, what.c_str());
    constant((stem + "_lo").c_str(), ((size - Real(static_cast<double>(hi))) * unit).to_float(), rest);
}

// 2^(j/8), j below 8: the rounded value, its bits less j 2^20, and the rest relative to the value.
void eighths() {
    std::vector<float> high, low;
    for (int j = 0; j < 8; ++j) {
        const Real exact = exp2(Real(j) / Real(8));
        const float value = exact.to_float();
        high.push_back(std::bit_cast<float>(std::bit_cast<int>(value) - (j << 20)));
        low.push_back((exact / Real(static_cast<double>(value)) - Real(1)).to_float());
    }
    polynomial("exp2_eighths", high, "2^(j/8), its bits less j 2^20: adding N 2^20 makes 2^(N/8), j = N mod 8.");
    polynomial("exp2_eighths_lo", low, "What 2^(j/8) has beyond its rounded value, relative to this.");
}

}  // namespace

int main() {
    open_header("exp_s", "Tables and constants of the single-precision exponential family.");
    const Real ln10 = log(Real(10));
    std::printf("\n");
    constant("exp_s_shift", 0x1.8p23f, "rounds to an integer, which the low bits then hold");
    constant("exp2_s_shift", 0x1.8p20f, "rounds to a multiple of 1/8, which the low bits then hold");
    step("ln2", "ln 2", ln2(), Real(1), "the rest");
    step("ln2_8", "ln 2 / 8", ln2() / Real(8), Real(1), "the rest");
    step("lg2_8", "log10 2 / 8", ln2() / ln10 / Real(8), ln10, "the rest, times ln 10");
    constant("exp2_s_slope", ln2().to_float(), "ln 2");
    constant("exp10_s_slope", ln10.to_float(), "ln 10");
    constant("exp_s_ln2", ln2().to_double(), "ln 2, for the scalar function");
    constant("exp_s_ln10", ln10.to_double(), "ln 10, for the scalar function");
    std::printf("\n");
    bounds("exp_s", Real(1));
    bounds("exp2_s", ln2());
    bounds("exp10_s", ln10);
    std::printf("\n");
    constant("expm1_s_least", directed(Real(-26) * ln2(), MPFR_RNDD), "-26 ln 2: from here down the result is -1");
    constant("expm1_s_fast_bound", (Real(127.5) * ln2()).to_float() - 0x1p-10f,
             "127.5 ln 2 less a margin: up to here N is at most 127");
    constant("expm1_s_ha_shift", 0x1.8p23f + 127, "exp_s_shift, with the exponent bias in its low bits");
    eighths();

    const auto e_to_x = [](const Real &x) { return exp(x); };
    const auto two_to_x = [](const Real &x) { return exp2(x); };
    const auto ten_to_x = [ln10](const Real &x) { return exp(x * ln10); };
    const Real whole = ln2() / Real(1.998), eighth = ln2() / Real(15.996);
    fitted<float>("exp_s_ha_poly", {1, 1}, {0x1p-1f, 0x1.555c76p-3f, 0x1.555da8p-5f},
                  "e^r = 1 + r + r^2 (c0 + c1 r + ...)", e_to_x, Real(0) - eighth, eighth, Error::absolute);
    fitted<float>("exp_s_la_poly", {},
                  {1, 0x1.fffff6p-1f, 0x1.fffdc2p-2f, 0x1.555a7p-3f, 0x1.573b4cp-5f, 0x1.0fa77ap-7f}, "e^r", e_to_x,
                  Real(0) - whole, whole, Error::relative);
    fitted<float>("exp_s_ep_poly", {}, {1, 0x1.000ce2p0f, 0x1.021e76p-1f, 0x1.52483cp-3f}, "e^r", e_to_x,
                  Real(0) - whole, whole, Error::relative);
    const Real eighth_2 = Real(1) / Real(15.996), eighth_10 = eighth / ln10;
    fitted<float>("exp2_s_poly", {1, ln2().to_float()}, {0x1.ebfbep-3f, 0x1.c6ba0cp-5f, 0x1.3b3266p-7f},
                  "2^r = 1 + r ln 2 + r^2 (c0 + c1 r + ...), ln 2 rounded", two_to_x, Real(0) - eighth_2, eighth_2,
                  Error::absolute);
    fitted<float>("exp10_s_poly", {1, ln10.to_float()}, {0x1.53524cp1f, 0x1.0475cap1f, 0x1.2bdebp0f},
                  "10^r = 1 + r ln 10 + r^2 (c0 + c1 r + ...), ln 10 rounded", ten_to_x, Real(0) - eighth_10, eighth_10,
                  Error::absolute);
    const auto expm1 = [](const Real &x) { return exp(x) - Real(1); };
    fitted<float>("expm1_s_ha_poly", {0, 1, 0.5},
                  {0x1.555554p-3f, 0x1.5554f2p-5f, 0x1.1111ccp-7f, 0x1.6d4104p-10f, 0x1.9fbdccp-13f},
                  "e^r - 1 = r + r^2/2 + r^3 (c0 + c1 r + ...)", expm1, Real(0) - whole, whole, Error::relative);
    fitted<float>("expm1_s_la_poly", {0, 1},
                  {0x1.fffffep-2f, 0x1.5554bp-3f, 0x1.555674p-5f, 0x1.1227f6p-7f, 0x1.6bebf4p-10f},
                  "e^r - 1 = r + r^2 (c0 + c1 r + ...)", expm1, Real(0) - whole, whole, Error::relative);
    fitted<float>("expm1_s_ep_poly", {0, 1}, {0x1.00022cp-1f, 0x1.57092ap-3f, 0x1.54de4cp-5f},
                  "e^r - 1 = r + r^2 (c0 + c1 r + ...)", expm1, Real(0) - whole, whole, Error::relative);
    close_header();
}
