// Cube root, inverse cube root and the power 2/3, single precision: see kernels/cbrt.hpp.
#include "kernels/cbrt.hpp"

#include "frame/entry_points.hpp"

namespace {

template <qorl::Level L>
using Cbrt = qorl::CubeRoot<float, qorl::Root::cbrt, L>;
template <qorl::Level L>
using InvCbrt = qorl::CubeRoot<float, qorl::Root::inv_cbrt, L>;
template <qorl::Level L>
using Pow2o3 = qorl::CubeRoot<float, qorl::Root::pow2o3, L>;

}  // namespace

QORL_UNARY(s, Cbrt, LA, Cbrt<qorl::Level::LA>);
QORL_UNARY(s, Cbrt, HA, Cbrt<qorl::Level::HA>);
QORL_UNARY(s, Cbrt, EP, Cbrt<qorl::Level::EP>);
QORL_UNARY(s, InvCbrt, LA, InvCbrt<qorl::Level::LA>);
QORL_UNARY(s, InvCbrt, HA, InvCbrt<qorl::Level::HA>);
QORL_UNARY(s, InvCbrt, EP, InvCbrt<qorl::Level::EP>);
QORL_UNARY(s, Pow2o3, LA, Pow2o3<qorl::Level::LA>);
QORL_UNARY(s, Pow2o3, HA, Pow2o3<qorl::Level::HA>);
QORL_UNARY(s, Pow2o3, EP, Pow2o3<qorl::Level::EP>);
