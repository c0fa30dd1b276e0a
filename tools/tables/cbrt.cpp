#include <bit>
#include <cstdint>

#include "tools/tables/writer.hpp"

using namespace qorl::tables_tool;

namespace {

Real power(const Real &x, int numerator) {  // x^(numerator/3)
    return exp(log(x) * Real(numerator) / Real(3));
}

// The y whose bits, less a third of those of x, are the bits of an estimate of x^(-1/3).
Real start(int bias) {
    const Real value = Real(4 * bias) / Real(3) - Real(bias) - Real(2) / Real(9);
    const int exponent = static_cast<int>(std::floor(value.to_double()));
    return (value - Real(exponent) + Real(1)) * exp2(Real(exponent));
}

// The least and largest x y^3 of the single-precision estimate y: over three octaves, in which the upper halves of the
// bits decide on y, so that the ends of each run of x with the same upper half are enough.
void cube_range(float start_s, Real *low, Real *high) {
    *low = Real(1);
    *high = Real(0);
    for (std::uint32_t upper = 0x3F80; upper < 0x3F80 + 3 * 0x80; ++upper) {
        const std::uint32_t third = (upper * 0x5555 >> 16) << 16;
        const Real y(static_cast<double>(std::bit_cast<float>(std::bit_cast<std::uint32_t>(start_s) - third)));
        for (const std::uint32_t lower : {0x0000u, 0xFFFFu}) {
            const Real cube = Real(static_cast<double>(std::bit_cast<float>(upper << 16 | lower))) * y * y * y;
            if (cube.to_double() < low->to_double()) *low = cube;
            if (cube.to_double() > high->to_double()) *high = cube;
        }
    }
}

}  // namespace

int main() {
    open_header("cbrt", "Constants of the cube roots.");
    std::printf("\n");
    const Real start_d = start(1023), start_s = start(127);
    constant("cbrt_d_start", start_d.to_double(), "has the bits (4/3 1023 - 2/9) 2^52");
    constant("cbrt_s_start", start_s.to_float(), "has the bits (4/3 127 - 2/9) 2^23");

    const auto third = [](const Real &w) { return power(w, -1); };
    const auto two_thirds = [](const Real &w) { return power(w, -2); };
    const auto rest_third = [](const Real &r) { return power(Real(1) - r, -1); };
    const auto rest_two_thirds = [](const Real &r) { return power(Real(1) - r, -2); };
    const char *const w_third = "w^(-1/3)", *const w_two_thirds = "w^(-2/3)",
                      *const r_third = "(1 - r)^(-1/3) = 1 + r (c0 + c1 r)",
                      *const r_two_thirds = "(1 - r)^(-2/3) = 1 + r (c0 + c1 r)";

    const Real low_d = Real(2) / Real(3), high_d = Real(64) / Real(81) * (Real(1) + Real(0x1p-19));
    fitted<double>("cbrt_d_third", {},
                   {0x1.ec66161e96159p0, -0x1.fc8c3189673e6p0, 0x1.8fb0f6abb7c8dp0, -0x1.003ca08dbff5dp-1}, w_third,
                   third, low_d, high_d, Error::relative);
    fitted<double>("cbrt_d_ep_third", {},
                   {0x1.1c7d94dbe4a71p1, -0x1.e9d32cd258134p1, 0x1.81422dc0c01cp2, -0x1.72ecdc612b9adp2,
                    0x1.8829a2d223a48p1, -0x1.5e19408652d74p-1},
                   w_third, third, low_d, high_d, Error::relative);
    fitted<double>("cbrt_d_ep_two_thirds", {},
                   {0x1.1c9b574d43f53p2, -0x1.87f06c449fdb2p3, 0x1.51198b9d3669p4, -0x1.512241e440063p4,
                    0x1.6bffda3088b6p3, -0x1.494cb93c0565dp1},
                   w_two_thirds, two_thirds, low_d, high_d, Error::relative);
    // 1 - w p(w)^3, and three times the cut of y to half its bits
    const Real least_r_d = Real(-3) * exp2(Real(-20.02)), largest_r_d = Real(3) * exp2(Real(-25)) - least_r_d;
    fitted<double>("cbrt_d_rest_third", {1}, {0x1.5555555559fa8p-2, 0x1.c71c741e0d037p-3}, r_third, rest_third,
                   least_r_d, largest_r_d, Error::relative);
    fitted<double>("cbrt_d_rest_two_thirds", {1}, {0x1.555555555bf83p-1, 0x1.1c71c8c842ee1p-1}, r_two_thirds,
                   rest_two_thirds, least_r_d, largest_r_d, Error::relative);

    Real low_s, high_s;
    cube_range(start_s.to_float(), &low_s, &high_s);
    fitted<float>("cbrt_s_third", {}, {0x1.b8ee44p0f, -0x1.2ad89cp0f, 0x1.cdf7p-2f}, w_third, third, low_s, high_s,
                  Error::relative);
    fitted<float>("cbrt_s_ep_two_thirds", {}, {0x1.5cafb6p1f, -0x1.79ead6p1f, 0x1.3f4f3cp0f}, w_two_thirds, two_thirds,
                  low_s, high_s, Error::relative);
    const Real least_r_s = Real(-3) * exp2(Real(-14.8)), largest_r_s = Real(3) * exp2(Real(-11)) - least_r_s;
    fitted<float>("cbrt_s_rest_third", {1}, {0x1.555548p-2f, 0x1.c7e2d4p-3f}, r_third, rest_third, least_r_s,
                  largest_r_s, Error::relative);
    fitted<float>("cbrt_s_rest_two_thirds", {1}, {0x1.555544p-1f, 0x1.1cff8p-1f}, r_two_thirds, rest_two_thirds,
                  least_r_s, largest_r_s, Error::relative);
    close_header();
}
