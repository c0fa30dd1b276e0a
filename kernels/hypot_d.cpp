// Hypotenuse, double precision: see kernels/hypot.hpp.
#include "kernels/hypot.hpp"

#include "frame/entry_points.hpp"

QORL_BINARY(d, Hypot, LA, qorl::Hypot<double, qorl::Level::LA>);
QORL_BINARY(d, Hypot, HA, qorl::Hypot<double, qorl::Level::HA>);
QORL_BINARY(d, Hypot, EP, qorl::Hypot<double, qorl::Level::EP>);
