// Cube root, inverse cube root and the power 2/3, double precision: see kernels/cbrt.hpp.
#include "kernels/cbrt.hpp"

#include "frame/entry_points.hpp"

namespace {

template <qorl::Level L>
using Cbrt = qorl::CubeRoot<double, qorl::Root::cbrt, L>;
template <qorl::Level L>
using InvCbrt = qorl::CubeRoot<double, qorl::Root::inv_cbrt, L>;
template <qorl::Level L>
using Pow2o3 = qorl::CubeRoot<double, qorl::Root::pow2o3, L>;

}  // namespace

QORL_UNARY(d, Cbrt, LA, Cbrt<qorl::Level::LA>);
QORL_UNARY(d, Cbrt, HA, Cbrt<qorl::Level::HA>);
QORL_UNARY(d, Cbrt, EP, Cbrt<qorl::Level::EP>);
QORL_UNARY(d, InvCbrt, LA, InvCbrt<qorl::Level::LA>);
QORL_UNARY(d, InvCbrt, HA, InvCbrt<qorl::Level::HA>);
QORL_UNARY(d, InvCbrt, EP, InvCbrt<qorl::Level::EP>);
QORL_UNARY(d, Pow2o3, LA, Pow2o3<qorl::Level::LA>);
QORL_UNARY(d, Pow2o3, HA, Pow2o3<qorl::Level::HA>);
QORL_UNARY(d, Pow2o3, EP, Pow2o3<qorl::Level::EP>);
