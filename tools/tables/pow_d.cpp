#include <bit>
#include <cstdint>
#include <cstdlib>

#include "tools/tables/writer.hpp"

using namespace qorl::tables_tool;

namespace {

constexpr int first_r = 512, last_r = 1024;
const Real unit(1024);

// log(1024/R) for R from 512 to 1024, one word each.
std::vector<double> logs() {
    std::vector<double> t;
    for (int r = first_r; r <= last_r; ++r) t.push_back(log(unit / Real(r)).to_double());
    return t;
}

// log2 x: a multiple of 2^-41, so that its sum with an exponent is exact, and the rounded rest.
std::pair<double, double> log2_words(const Real &x) {
    const Real exact = log(x) / ln2();
    const double high = std::nearbyint((exact * Real(0x1p41)).to_double()) * 0x1p-41;
    return {high, (exact - Real(high)).to_double()};
}

std::vector<double> log2_pairs() {
    std::vector<double> t;
    for (int r = first_r; r <= last_r; ++r) {
        const auto [high, low] = log2_words(unit / Real(r));
        t.insert(t.end(), {high, low});
    }
    return t;
}

// e^(x j), j below m, one word each.
std::vector<double> powers(const Real &x, int m) {
    std::vector<double> t;
    for (int j = 0; j < m; ++j) t.push_back(exp(x * Real(j)).to_double());
    return t;
}

// Rows of 1/c, log2 c as above, and a zero for each of the 512 parts of a binade that begins with la_least. 1/c is 1
// where u = m/c - 1 stays below la_largest_u then, and otherwise the multiple of 2^-10 (2^-9 below 1) that keeps u
// least.
constexpr std::int64_t la_least = 0x3FE6A40000000000, la_part = std::int64_t{1} << 43;
constexpr double la_largest_u = 1.51 * 0x1p-10;
std::vector<double> la_rows() {
    std::vector<double> t;
    for (int k = 0; k < 512; ++k) {
        const double low = std::bit_cast<double>(la_least + k * la_part);
        const double high = std::bit_cast<double>(la_least + (k + 1) * la_part);
        const auto largest_u = [&](double inverse) {
            return std::max(std::fabs(low * inverse - 1), std::fabs(high * inverse - 1));
        };
        const double step = high <= 1 ? 0x1p-9 : 0x1p-10;
        const double below = std::floor(2 / (low + high) / step) * step, above = below + step;
        const double nearest = largest_u(below) < largest_u(above) ? below : above;
        const double inverse = largest_u(1) < la_largest_u ? 1 : nearest;
        const auto [log, log_low] = log2_words(Real(1) / Real(inverse));
        t.insert(t.end(), {inverse, log, log_low, 0.0});
        // What the body counts on: u in the interval of the polynomial, and the difference of log2 m, once rounded, and
        // log2 c a number of 53 bits.
        const double sum = std::min(std::fabs(std::log2(low)), std::fabs(std::log2(high)));
        const double bits_53 = std::ldexp(2, std::ilogb(sum));
        if (largest_u(inverse) >= la_largest_u || (inverse != 1 && largest_u(inverse) / std::log(2.0) > bits_53))
            std::abort();
    }
    return t;
}

// 2^(j/m), j below m, as pairs: the rounded value and the rounded rest.
std::vector<double> exp2_pairs(int m) {
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
    open_header("pow_d", "Tables and constants of the double-precision powers.");
    std::printf("\n");
    const Real log2_e = Real(1) / ln2(), step = ln2() / Real(2048);
    constant("pow_log2_e", log2_e.to_double(), "1 / ln 2");
    const double pow_log2_e_low = (log2_e - Real(log2_e.to_double())).to_double();
    constant("pow_log2_e_low", pow_log2_e_low, "the rest");
    constant("pow_ln2", ln2().to_double(), "ln 2");
    constant("pow_2048_per_ln2", (Real(1) / step).to_double(), "2048 / ln 2");
    constant("pow_ln2_2048", step.to_double(), "ln 2 / 2048");
    table("pow_log2_pairs", log2_pairs(), "log2(1024/R), R = 512 .. 1024: a multiple of 2^-41 and the rounded rest.",
          2);
    constant("pow_la_least", std::bit_cast<double>(la_least), "where the binade of the following rows begins");
    table("pow_la_rows", la_rows(), "1/c, log2 c as a multiple of 2^-41 and the rounded rest, 0.", 4);
    table("pow_logs", logs(), "log(1024/R), R = 512 .. 1024.", 4);
    table("pow_exp2_pairs", exp2_pairs(128), "2^(j/128) in two words: the rounded value and the rounded rest.", 2);
    table("pow_exp2_256", powers(ln2() / Real(256), 256), "2^(j/256).", 4);
    table("pow_exp2_2048", powers(step, 2048), "2^(j/2048).", 4);

    // |u| is below 1.376 2^-10 + 2^-23 after the reduction by an estimate, and below 1.48 2^-10 by the rows.
    const Real u(1.38 * 0x1p-10), la_u(la_largest_u), f128(0x1.00001p-8), f256(0x1.00001p-9),
        r2048 = step * Real(0.50001);
    const auto log1p = [](const Real &x) { return log(Real(1) + x); };
    const auto log2_rest = [&](const Real &x) { return log(Real(1) + x) / ln2() - x * Real(log2_e.to_double()); };
    const auto exp2_of = [](const Real &x) { return exp2(x); };
    const auto negative = [](const Real &x) { return Real(0) - x; };
    // Coefficients from the third order on are kept doubled: they are multiplied by u^3/2.
    fitted<double>(
        "pow_ln_poly", {},
        {0x1.5555555555555p-1, -0x1.fffffffffe22p-2, 0x1.999999999576p-2, -0x1.555582b1dfc9bp-2, 0x1.24928106b7dd4p-2},
        "2 (log(1 + u) - u + u^2/2) / u^3",
        [](const Real &x) { return Real(2) * (log(Real(1) + x) - x + x * x * Real(0.5)) / (x * x * x); }, negative(u),
        u, Error::absolute);
    fitted<double>("pow_la_log2_poly", {0},
                   {pow_log2_e_low, -0x1.71547652b82fep-1, 0x1.ec709dc39e673p-2, -0x1.71547652b42bfp-2,
                    0x1.2776eeeec0543p-2, -0x1.ec71033803105p-3},
                   "log2(1 + u) - u pow_log2_e = u (c0 + c1 u + ...)", log2_rest, negative(la_u), la_u,
                   Error::absolute);
    fitted<double>("pow_ep_ln_poly", {0}, {1, -0x1.fffffffffeffap-2, 0x1.555569870124dp-2, -0x1.00001cba52797p-2},
                   "log(1 + u) = u (c0 + c1 u + ...)", log1p, negative(u), u, Error::relative);
    fitted<double>(
        "pow_exp2_poly", {1},
        {0x1.62e42fefa39efp-1, 0x1.ebfbdff82c362p-3, 0x1.c6b08d7049e99p-5, 0x1.3b2abe02b4354p-7, 0x1.5d8806304e4e2p-10},
        "2^f = 1 + f (c0 + c1 f + ...)", exp2_of, negative(f128), f128, Error::absolute);
    fitted<double>("pow_la_exp2_poly", {1},
                   {0x1.62e42fefa39b9p-1, 0x1.ebfbdff82c55ap-3, 0x1.c6b090da19a5bp-5, 0x1.3b2ab91238b32p-7},
                   "2^f = 1 + f (c0 + c1 f + ...)", exp2_of, negative(f256), f256, Error::absolute);
    fitted<double>(
        "pow_ep_exp_poly", {}, {1, 1, 0x1p-1}, "e^r", [](const Real &x) { return exp(x); }, negative(r2048), r2048,
        Error::absolute);
    close_header();
}
