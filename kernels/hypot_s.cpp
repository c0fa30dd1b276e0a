// Hypotenuse, single precision: see kernels/hypot.hpp.
#include "kernels/hypot.hpp"

#include "frame/entry_points.hpp"

QORL_BINARY(s, Hypot, LA, qorl::Hypot<float, qorl::Level::LA>);
QORL_BINARY(s, Hypot, HA, qorl::Hypot<float, qorl::Level::HA>);
QORL_BINARY(s, Hypot, EP, qorl::Hypot<float, qorl::Level::EP>);
