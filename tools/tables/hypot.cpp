#include "tools/tables/writer.hpp"

using namespace qorl::tables_tool;

int main() {
    open_header("hypot", "Constants of the hypotenuse.");
    // 1 - s y^2 of an estimate y of 1/sqrt(s)
    const Real error = Real(0x1.8p-12), bound = error + error + error * error;
    const auto root = [](const Real &e) { return Real(1) / sqrt(Real(1) - e); };
    const char *const function = "(1 - e)^(-1/2) = 1 + e (c0 + c1 e + ...)";
    fitted<double>("hypot_d_la_poly", {1},
                   {0x1.ffffffffffe71p-2, 0x1.7fffffffffd02p-2, 0x1.40000b13da38dp-2, 0x1.18000d712afbcp-2}, function,
                   root, Real(0) - bound, bound, Error::relative);
    fitted<double>("hypot_d_ep_poly", {1}, {0x1.00000438485f9p-1, 0x1.800009d8ec8ebp-2}, function, root,
                   Real(0) - bound, bound, Error::relative);
    fitted<float>("hypot_s_la_poly", {1}, {0x1.000004p-1f, 0x1.80000ap-2f}, function, root, Real(0) - bound, bound,
                  Error::relative);
    close_header();
}
