// Special values, thresholds and exact points of the roots, the reciprocal and the hypotenuse.
#include "tests/kernels/special_values.hpp"

namespace qorl::test {
namespace {

constexpr Row rows[] = {
    {"", "", {}, 0, 0},
};

}  // namespace

extern const std::span<const Row> root_rows = rows;

}  // namespace qorl::test
