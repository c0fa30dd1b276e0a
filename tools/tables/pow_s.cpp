#include <bit>
#include <cstdint>

#include "tools/tables/writer.hpp"

using namespace qorl::tables_tool;

namespace {

// The mantissas fall into eight cells of 2^20 steps each by their bits, from `first` up. For those below 1 the
// reciprocals are multiples of 1/16, for those above 1 of 1/32: then m / c - 1 has no more bits than a float.
constexpr float first = 0x1.696p-1f;
constexpr float reciprocals[] = {1.375f, 1.25f, 1.1875f, 1.0625f, 1.0f, 0.90625f, 0.8125f, 0.75f};

float at(int cell) {
    return std::bit_cast<float>(std::bit_cast<std::int32_t>(first) + (cell << 20));
}

// 2^(j/8), j below 8.
std::vector<float> eighths() {
    std::vector<float> t;
    for (int j = 0; j < 8; ++j) t.push_back(exp2(Real(j) / Real(8)).to_float());
    return t;
}

}  // namespace

int main() {
    open_header("pow_s", "Tables and constants of the single-precision powers.");
    const double bias = 384;
    double low = 0, high = 0;
    std::vector<double> logarithms;
    for (int cell = 0; cell < 8; ++cell) {
        const double c = static_cast<double>(reciprocals[cell]);
        low = std::min(low, static_cast<double>(at(cell)) * c - 1);
        high = std::max(high, static_cast<double>(std::nextafter(at(cell + 1), 0.0f)) * c - 1);
        logarithms.push_back((Real(bias) - log(Real(c)) / ln2()).to_double());
    }

    std::printf("\n");
    constant("pow_s_first", first, "the least mantissa; its bits and 2^20 times 0 to 7 more begin the cells");
    constant("pow_s_bias", bias, "in the table of logarithms");
    constant("pow_s_shift", 0x1.8p20,
             "rounds to a multiple of 2^-32, so that the words hold integer part and fraction");
    constant("pow_s_ha_round", 0x1p-4, "added to it where the fraction is cut to eighths");
    constant("pow_s_la_round", 0.5, "and where it is cut to integers");
    constant("pow_s_fraction_unit", 0x1p-32f, "of the fraction's word");
    polynomial("pow_s_reciprocals", std::vector<float>(std::begin(reciprocals), std::end(reciprocals)),
               "1 / c for a cell of mantissas.");
    polynomial("pow_s_logarithms", logarithms, "The bias + log2 c.");
    polynomial("pow_s_eighths", eighths(), "2^(j/8).");

    const auto log2_ratio = [](const Real &r) { return log(Real(1) + r) / (r * ln2()); };
    const Real half(0.5001), low_r(low), high_r(high);
    fitted<double>("pow_s_ha_log2", {},
                   {0x1.71547652b8122p0, -0x1.7154765b52e3cp-1, 0x1.ec709dd8fa1e8p-2, -0x1.7153e4ebf0fbap-2,
                    0x1.27763a9c83e15p-2, -0x1.eed6816b70d9dp-3, 0x1.a83af7f978033p-3},
                   "log2(1 + r) / r", log2_ratio, low_r, high_r, Error::relative);
    fitted<double>("pow_s_la_log2", {},
                   {0x1.715476541f91ap0, -0x1.71547657b6181p-1, 0x1.ec70330094975p-2, -0x1.71540b2b3a65ap-2,
                    0x1.28a350dc7efc6p-2, -0x1.ee88ce782628p-3},
                   "log2(1 + r) / r", log2_ratio, low_r, high_r, Error::relative);

    const Real root = exp2(Real(-0.5));
    std::printf("\n");
    constant("pow_s_ep_first", root.to_float(), "sqrt(1/2), the least mantissa at EP");
    constant("pow_s_ep_shift", 0x1.8p23f, "rounds to an integer, which the low bits then hold");
    constant("pow_s_ep_bound", 125.5f, "the EP body takes |b log2 a| up to here");
    fitted<float>("pow_s_ep_log2", {},
                  {0x1.71548ep0f, -0x1.71569p-1f, 0x1.ec295cp-2f, -0x1.6fff4p-2f, 0x1.2ecd54p-2f, -0x1.13c764p-2f,
                   0x1.5f6b26p-3f},
                  "log2(1 + f) / f", log2_ratio, root - Real(1), root * Real(2) - Real(1), Error::relative);
    const auto power = [](const Real &f) { return exp2(f); };
    fitted<float>("pow_s_la_exp2", {},
                  {1, 0x1.62e42ap-1f, 0x1.ebf9bcp-3f, 0x1.c6b754p-5f, 0x1.3ceab4p-7f, 0x1.5bb9e4p-10f}, "2^f", power,
                  Real(0) - half, half, Error::relative);
    fitted<float>("pow_s_ep_exp2", {}, {1, 0x1.62f5fep-1f, 0x1.f00cb6p-3f, 0x1.c2a1aep-5f}, "2^f", power,
                  Real(0) - half, half, Error::relative);
    close_header();
}
