// Special values of the functions that do one operation of the processor.
#include "tests/kernels/special_values.hpp"

namespace qorl::test {
namespace {

constexpr Row rows[] = {
    {"Abs", "sd", {nan}, nan, 0},
    {"Abs", "sd", {-nan}, nan, 0},
    {"Abs", "sd", {inf}, inf, 0},
    {"Abs", "sd", {-inf}, inf, 0},
    {"Abs", "sd", {0.0}, 0.0, 0},
    {"Abs", "sd", {-0.0}, 0.0, 0},
    {"Abs", "d", {-DBL_TRUE_MIN}, DBL_TRUE_MIN, 0},
    {"Abs", "s", {-FLT_MAX}, FLT_MAX, 0},
};

// The sum that quiets a signalling NaN stands in the block loop; the tail clears the sign and nothing else.
TEST(Abs, QuietsSignallingNaNInBlocksOnly) {
    constexpr std::uint64_t signalling = 0xFFF0000000000123, quiet_bit = 0x0008000000000000;
    const std::vector<double> x(16 + 3, from_bits<double>(signalling));
    const std::vector<double> y = results({'d', "Abs", 0, 0, 0}, Level::HA, x);
    for (std::size_t i = 0; i < y.size(); ++i)
        EXPECT_EQ(bits(y[i]), (signalling & ~(1ull << 63)) | (i < 16 ? quiet_bit : 0)) << i;
}

}  // namespace

extern const std::span<const Row> arithmetic_rows = rows;

}  // namespace qorl::test
