#include "tools/tables/writer.hpp"

using namespace qorl::tables_tool;

namespace {

// A multiple of 2^-bits, to nearest.
Real on_grid(const Real &x, int bits) {
    const Real grid = exp2(Real(-bits));
    Real r = x / grid;
    mpfr_rint(r.get(), r.get(), MPFR_RNDN);
    return r * grid;
}

// What a base needs: log 2 in two words of few bits, whose products with the exponent are exact.
struct Base {
    static constexpr int hi_bits = 38, lo_bits = 36;

    explicit Base(const Real &e) : log_e(e), two(e * ln2()), two_hi(on_grid(two, hi_bits)) {
        two_lo = (two - two_hi).rounded_to(lo_bits);
    }
    Real log_e, two, two_hi, two_lo;

    // Row R: -(1013 log 2 + log R) as the logarithm of 1/1023 of 2^1023 and that of 1024/R, each in its own two words.
    // So the rows 1024 and 512 cancel the exponents 1023 and 1022 exactly.
    std::vector<double> rows() const {
        std::vector<double> t;
        for (int r = 512; r <= 1024; ++r) {
            const bool power = r == 512;
            const Real rest = log(Real(1024) / Real(r)) * log_e;
            const Real hi = power ? two_hi : on_grid(rest, hi_bits), lo = power ? two_lo : rest - hi;
            t.push_back((hi - Real(1023) * two_hi).to_double());
            t.push_back((lo - Real(1023) * two_lo).to_double());
        }
        return t;
    }
};

std::vector<double> scaled(const std::vector<double> &c, const Real &by) {
    std::vector<double> r;
    for (const double x : c) r.push_back((Real(x) * by).to_double());
    return r;
}

// 1/c to 20 bits, so that its product with 32 bits of the mantissa is exact, and the logarithm of its inverse.
std::vector<double> scalar_rows() {
    std::vector<double> t;
    for (int j = 0; j <= 64; ++j) {
        const Real inverse = (Real(64) / Real(64 + j)).rounded_to(20), exact = Real(0) - log(inverse);
        const Real hi = on_grid(exact, 42);
        t.push_back(inverse.to_double());
        t.push_back(hi.to_double());
        t.push_back((exact - hi).to_double());
    }
    return t;
}

const std::vector<double> ha_poly = {-0x1p-1, 0x1.5555555554443p-2, -0x1.fffffffffb57fp-3, 0x1.9999cd711319ap-3,
                                     -0x1.55559433bcb1bp-3};
const std::vector<double> ep_poly = {0x1.fffffffa0b52fp0, 0x1.55558798c88f7p-1, 0x1.995766387d957p-2,
                                     0x1.32734c4eb56efp-2};

}  // namespace

int main() {
    open_header("log_d", "Tables and constants of the double-precision logarithms.");
    std::printf("\n");
    const Base ln{Real(1)}, log10{Real(1) / log(Real(10))}, log2{Real(1) / ln2()};
    constant("ln2_hi", ln.two_hi.to_double(), "ln 2 as a multiple of 2^-38");
    constant("ln2_lo", ln.two_lo.to_double(), "the rest to 36 bits");
    constant("ln2", ln2().to_double(), "ln 2");
    constant("ln2_42_hi", on_grid(ln2(), 42).to_double(), "ln 2 as a multiple of 2^-42");
    constant("ln2_42_lo", (ln2() - on_grid(ln2(), 42)).to_double(), "the rest");
    constant("log10_2_hi", log10.two_hi.to_double(), "log10 2 as a multiple of 2^-38");
    constant("log10_2_lo", log10.two_lo.to_double(), "the rest to 36 bits");
    constant("log10_2", log10.two.to_double(), "log10 2");
    constant("log10_e", log10.log_e.to_double(), "log10 e");
    constant("log10_e_lo", (log10.log_e - Real(log10.log_e.to_double())).to_double(), "the rest");
    constant("log10_e_short", log10.log_e.rounded_to(7).to_double(), "log10 e to 7 bits");
    constant("log2_e", log2.log_e.to_double(), "log2 e");
    constant("log2_e_lo", (log2.log_e - Real(log2.log_e.to_double())).to_double(), "the rest");
    constant("log2_e_short", log2.log_e.rounded_to(9).to_double(), "log2 e to 9 bits");
    table("ln_rows", ln.rows(), "-(1013 ln 2 + ln R), R = 512 .. 1024, in two words, the first a multiple of 2^-38.",
          4);
    table("log10_rows", log10.rows(), "-(1013 log10 2 + log10 R), likewise.", 4);
    table("log2_rows", log2.rows(), "-(1013 + log2 R), likewise.", 4);
    table("log_scalar_rows", scalar_rows(),
          "1/c to 20 bits and its -ln in two words, the first a multiple of 2^-42, c = 1 + j/64, j = 0 .. 64.", 3);

    const auto times = [](const Base &base) {
        return [&base](const Real &x) { return log(Real(1) + x) * base.log_e; };
    };
    const Real u_bound = Real(1.38) * exp2(Real(-10));
    fitted<double>("ln_ha_poly", {0, 1}, ha_poly, "ln(1 + u) = u + u^2 (c0 + c1 u + ...)", times(ln), Real(0) - u_bound,
                   u_bound, Error::absolute);
    const auto with_rest = [](const Base &base, int bits) {
        std::vector<double> c = scaled(ha_poly, base.log_e);
        c.insert(c.begin(), (base.log_e - base.log_e.rounded_to(bits)).to_double());
        return c;
    };
    const auto without_short = [](const Base &base, int bits) {
        const Real first = base.log_e.rounded_to(bits);
        return [&base, first](const Real &x) { return log(Real(1) + x) * base.log_e - first * x; };
    };
    fitted<double>("log10_ha_poly", {0}, with_rest(log10, 7), "log10(1 + u) - log10_e_short u = u (c0 + c1 u + ...)",
                   without_short(log10, 7), Real(0) - u_bound, u_bound, Error::absolute);
    fitted<double>("log2_ha_poly", {0}, with_rest(log2, 9), "log2(1 + u) - log2_e_short u = u (c0 + c1 u + ...)",
                   without_short(log2, 9), Real(0) - u_bound, u_bound, Error::absolute);
    fitted<double>("log_scalar_poly", {0, 1},
                   {-0x1p-1, 0x1.5555555555709p-2, -0x1.00000000004f4p-2, 0x1.9999996c275ffp-3, -0x1.5555550caf1e3p-3,
                    0x1.249dafab6d36cp-3, -0x1.000cfc57f2032p-3},
                   "ln(1 + v) = v + v^2 (c0 + c1 v + ...)", times(ln), Real(-0.00977), Real(0.00977), Error::absolute);

    // In w = z^2, |z| <= (sqrt 2 - 1) / (sqrt 2 + 1) and a little more; at 0 the quotients are given by their limits,
    // so the interval starts just above.
    const Real root = (sqrt(Real(2)) - Real(1)) / (sqrt(Real(2)) + Real(1)) * Real(1.0001);
    const Real w_low = exp2(Real(-30)), w_high = root * root;
    const auto quotient = [](const Real &w) {
        const Real z = sqrt(w);
        return log((Real(1) + z) / (Real(1) - z)) / z;
    };
    fitted<double>("log_odd_poly", {2},
                   {0x1.5555555555592p-1, 0x1.999999997fd37p-2, 0x1.24924941f8d39p-2, 0x1.c71c5202b1b34p-3,
                    0x1.7466405c123a4p-3, 0x1.39a193329980cp-3, 0x1.2f0705acdef18p-3},
                   "ln((1 + z) / (1 - z)) / z = 2 + w (c0 + c1 w + ...), w = z^2", quotient, w_low, w_high,
                   Error::relative);
    fitted<double>("log1p_ep_poly", {2}, {0x1.55557a2b88badp-1, 0x1.995eb3d5e4309p-2, 0x1.31e3a5bf3af41p-2},
                   "ln((1 + z) / (1 - z)) / z = 2 + w (c0 + c1 w + ...), w = z^2", quotient, w_low, w_high,
                   Error::relative);
    const auto times_quotient = [&quotient](const Base &base) {
        return [&quotient, &base](const Real &w) { return quotient(w) * base.log_e; };
    };
    fitted<double>("ln_ep_poly", {}, scaled(ep_poly, ln.log_e), "ln((1 + z) / (1 - z)) / z in w = z^2",
                   times_quotient(ln), w_low, w_high, Error::relative);
    fitted<double>("log10_ep_poly", {}, scaled(ep_poly, log10.log_e), "log10((1 + z) / (1 - z)) / z in w = z^2",
                   times_quotient(log10), w_low, w_high, Error::relative);
    fitted<double>("log2_ep_poly", {}, scaled(ep_poly, log2.log_e), "log2((1 + z) / (1 - z)) / z in w = z^2",
                   times_quotient(log2), w_low, w_high, Error::relative);
    close_header();
}
