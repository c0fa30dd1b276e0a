// Special values, thresholds and exact points of the power functions.
#include "tests/kernels/special_values.hpp"

namespace qorl::test {
namespace {

constexpr Row rows[] = {
    {"", "", {}, 0, 0},
};

}  // namespace

extern const std::span<const Row> power_rows = rows;

}  // namespace qorl::test
