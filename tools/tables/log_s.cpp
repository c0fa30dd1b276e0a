#include "tools/tables/writer.hpp"

using namespace qorl::tables_tool;

namespace {

// 1 / ln base and the rest.
void unit(const char *name, const Real &ln_base, const char *rule) {
    const Real exact = Real(1) / ln_base;
    const float high = exact.to_float();
    constant((std::string(name) + "_unit").c_str(), high, rule);
    constant((std::string(name) + "_unit_lo").c_str(), (exact - Real(static_cast<double>(high))).to_float(),
             "the rest");
}

}  // namespace

int main() {
    open_header("log_s", "Constants of the single-precision logarithms.");
    const Real ln10 = log(Real(10)), exponent_unit(0x1p-23), hi = ln2().rounded_to(16);
    std::printf("\n");
    constant("log_s_low", (exp(ln10 * Real(0.125)) * Real(0.5)).to_float(), "10^(1/8) / 2, the least m");
    constant("log_s_ln2_hi", (hi * exponent_unit).to_float(),
             "2^-23 ln 2 to 16 bits, so that its products with 2^23 e are exact");
    constant("log_s_ln2_lo", ((ln2() - hi) * exponent_unit).to_float(), "the rest");
    constant("log_s_ln2", (ln2() * exponent_unit).to_float(), "2^-23 ln 2");
    constant("log_s_lg2", (ln2() / ln10 * exponent_unit).to_float(), "2^-23 log10 2");
    constant("log_s_one", 0x1p-23f, "2^-23 log2 2");
    unit("log10_s", ln10, "1 / ln 10");
    unit("log2_s", ln2(), "1 / ln 2");

    const Real low(-0.33325), high(0.33354);
    const auto ln = [](const Real &u) { return log(Real(1) + u); };
    const auto lg = [ln10](const Real &u) { return log(Real(1) + u) / ln10; };
    const auto log_2 = [](const Real &u) { return log(Real(1) + u) / ln2(); };
    fitted<float>("log_s_ha_poly", {0, 1, -0.5},
                  {0x1.555556p-2f, -0x1.ffff0ep-3f, 0x1.99980ep-3f, -0x1.55992ap-3f, 0x1.24e66ap-3f, -0x1.f3862cp-4f,
                   0x1.b99f1cp-4f, -0x1.071996p-3f, 0x1.e7c346p-4f},
                  "ln(1 + u) = u - u^2/2 + u^3 (c0 + c1 u + ...)", ln, low, high, Error::relative);
    fitted<float>("ln_s_la_poly", {0},
                  {0x1p0f, -0x1.ffffd2p-2f, 0x1.555504p-2f, -0x1.001524p-2f, 0x1.99d096p-3f, -0x1.501f28p-3f,
                   0x1.1ed6f6p-3f, -0x1.3b8468p-3f, 0x1.1e50cap-3f},
                  "ln(1 + u) = u (c0 + c1 u + ...)", ln, low, high, Error::relative);
    fitted<float>("ln_s_ep_poly", {0}, {0x1.ffd116p-1f, -0x1.ff285p-2f, 0x1.6e7ff8p-2f, -0x1.1c3e32p-2f},
                  "ln(1 + u) = u (c0 + c1 u + ...)", ln, low, high, Error::relative);
    fitted<float>("log10_s_la_poly", {0},
                  {0x1.bcb7b2p-2f, -0x1.bcb78ap-3f, 0x1.28798ep-3f, -0x1.bcdc28p-4f, 0x1.641eb2p-4f, -0x1.23f79p-4f,
                   0x1.ee796cp-5f, -0x1.11fbfp-4f, 0x1.005138p-4f},
                  "log10(1 + u) = u (c0 + c1 u + ...)", lg, low, high, Error::relative);
    fitted<float>("log10_s_ep_poly", {0}, {0x1.bc8ef2p-2f, -0x1.bbfc5ap-3f, 0x1.3e5678p-3f, -0x1.edc7d4p-4f},
                  "log10(1 + u) = u (c0 + c1 u + ...)", lg, low, high, Error::relative);
    fitted<float>("log2_s_la_poly", {0},
                  {0x1.715476p0f, -0x1.715456p-1f, 0x1.ec70c8p-2f, -0x1.717298p-2f, 0x1.2789eap-2f, -0x1.e4f74ap-3f,
                   0x1.9fc41cp-3f, -0x1.c6fbdap-3f, 0x1.953bap-3f},
                  "log2(1 + u) = u (c0 + c1 u + ...)", log_2, low, high, Error::relative);
    fitted<float>("log2_s_ep_poly", {0}, {0x1.7132ap0f, -0x1.70b8ep-1f, 0x1.085fbp-1f, -0x1.9a136ep-2f},
                  "log2(1 + u) = u (c0 + c1 u + ...)", log_2, low, high, Error::relative);
    fitted<float>("log1p_s_ep_poly", {0, 1}, {-0x1.ff4474p-2f, 0x1.543f98p-2f, -0x1.1a058p-2f, 0x1.d0aa1ep-3f},
                  "ln(1 + u) = u + u^2 (c0 + c1 u + ...)", ln, low, high, Error::relative);
    fitted<float>(
        "log1p_s_inverse", {}, {0x1.0f8862p0f, -0x1.1feb5cp0f}, "1/(1 + u)",
        [](const Real &u) { return Real(1) / (Real(1) + u); }, low, high, Error::absolute);
    close_header();
}
