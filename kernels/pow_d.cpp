// Pow and Powr, a^b, double precision: one body (kernels/pow_d.hpp), two scalar functions (kernels/pow_scalar.hpp).
#include "kernels/pow_d.hpp"
#include "frame/entry_points.hpp"

namespace qorl {
namespace {

template <Level L>
struct Powr : PowBody<L> {
    static int scalar(double a, double b, double *y) { return powr_scalar(a, b, y); }
};

}  // namespace
}  // namespace qorl

QORL_BINARY(d, Pow, LA, qorl::PowBody<qorl::Level::LA>);
QORL_BINARY(d, Pow, HA, qorl::PowBody<qorl::Level::HA>);
QORL_BINARY(d, Pow, EP, qorl::PowBody<qorl::Level::EP>);
QORL_BINARY(d, Powr, LA, qorl::Powr<qorl::Level::LA>);
QORL_BINARY(d, Powr, HA, qorl::Powr<qorl::Level::HA>);
QORL_BINARY(d, Powr, EP, qorl::Powr<qorl::Level::EP>);
