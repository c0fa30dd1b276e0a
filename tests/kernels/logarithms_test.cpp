// Special values, thresholds and exact points of the logarithm family.
#include "tests/kernels/special_values.hpp"

namespace qorl::test {
namespace {

constexpr Row rows[] = {
    {"", "", {}, 0, 0},
};

}  // namespace

extern const std::span<const Row> logarithm_rows = rows;

}  // namespace qorl::test
