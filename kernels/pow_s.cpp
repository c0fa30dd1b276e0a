// Pow and Powr, a^b, single precision: one body (kernels/pow_s.hpp), two scalar functions (kernels/pow_scalar.hpp).
#include "kernels/pow_s.hpp"
#include "frame/entry_points.hpp"

namespace qorl {
namespace {

template <Level L>
struct Powr : PowBodyS<L> {
    static int scalar(float a, float b, float *y) { return powr_scalar(a, b, y); }
};

}  // namespace
}  // namespace qorl

QORL_BINARY(s, Pow, LA, qorl::PowBodyS<qorl::Level::LA>);
QORL_BINARY(s, Pow, HA, qorl::PowBodyS<qorl::Level::HA>);
QORL_BINARY(s, Pow, EP, qorl::PowBodyS<qorl::Level::EP>);
QORL_BINARY(s, Powr, LA, qorl::Powr<qorl::Level::LA>);
QORL_BINARY(s, Powr, HA, qorl::Powr<qorl::Level::HA>);
QORL_BINARY(s, Powr, EP, qorl::Powr<qorl::Level::EP>);
