#include "tools/tables/writer.hpp"

using namespace qorl::tables_tool;

namespace {

float rounded_down(const Real &x) {
    const float f = x.to_float();
    return (Real(static_cast<double>(f)) - x).to_double() > 0 ? std::nextafter(f, 0.0f) : f;
}

// Functions of the square y of r.
Real sinh_over_r(const Real &y) {
    const Real r = sqrt(y);
    return (exp(r) - Real(1) / exp(r)) * Real(0.5) / r;
}
Real cosh_of_root(const Real &y) {
    const Real r = sqrt(y);
    return (exp(r) + Real(1) / exp(r)) * Real(0.5);
}

Real square_end() {
    const Real r(0.34661);
    return r * r;
}
template <class T>
void sinh_fit(const std::string &level, const std::vector<T> &sinh) {
    fitted<T>(("sinh_" + level + "_poly_s").c_str(), {1}, sinh, "sinh(r) = r (1 + y (c0 + c1 y + ...)), y = r^2",
              sinh_over_r, Real(0), square_end(), Error::relative);
}
template <class T>
void fits(const std::string &level, const std::vector<T> &sinh, const std::vector<T> &cosh) {
    sinh_fit(level, sinh);
    fitted<T>(("cosh_" + level + "_poly_s").c_str(), {1}, cosh, "cosh(r) = 1 + y (c0 + c1 y + ...), y = r^2",
              cosh_of_root, Real(0), square_end(), Error::relative);
}

}  // namespace

int main() {
    open_header("cosh_sinh_s", "Constants and polynomials of the single-precision hyperbolic sine and cosine.");
    std::printf("\n");
    const Real hi = ln2().rounded_to(16);
    constant("sinh_cosh_per_ln2_s", (Real(1) / ln2()).to_float(), "1 / ln 2");
    constant("sinh_cosh_ln2_s", ln2().to_float(), "ln 2");
    constant("sinh_cosh_ln2_rest_s", (ln2() - Real(static_cast<double>(ln2().to_float()))).to_float(),
             "what that lacks");
    constant("sinh_cosh_ln2_hi_s", hi.to_float(), "ln 2 to 16 bits, so that its products with n are exact");
    constant("sinh_cosh_ln2_lo_s", (ln2() - hi).to_float(), "the rest");
    constant("sinh_cosh_shift_s", 0x1.8p23f + 126, "rounds to an integer n; the low bits then hold n + 126");
    constant("sinh_cosh_per_ln2_d", (Real(1) / ln2()).to_double(), "1 / ln 2");
    constant("sinh_cosh_ln2_d", ln2().to_double(), "ln 2");
    constant("sinh_cosh_shift_d", 0x1.8p52 + 1022, "rounds to an integer n; the low bits then hold n + 1022");
    constant("sinh_cosh_fast_bound", rounded_down(Real(126) * ln2()), "126 ln 2: up to here 2^(-n-1) is no denormal");
    constant("sinh_cosh_overflow_bound", rounded_down(log(Real(0x1.ffffffp128))), "the largest x with a finite result");
    fits<double>("wide", {0x1.5555557387dc3p-3, 0x1.1110b1c325f3cp-7, 0x1.a16ff27e97ecp-13},
                 {0x1.00000043faeeep-1, 0x1.55547eccb513dp-5, 0x1.6d9791e4cfa89p-10});
    sinh_fit<float>("ha", {0x1.555556p-3f, 0x1.1110b2p-7f, 0x1.a16ff2p-13f});
    fits<float>("la", {0x1.5554bp-3f, 0x1.122802p-7f}, {0x1p-1f, 0x1.55547ep-5f, 0x1.6d9792p-10f});
    fits<float>("ep", {0x1.57094ep-3f}, {0x1.02218ap-1f});
    close_header();
}
