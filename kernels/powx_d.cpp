// Powx, a^b with one b for the whole call, double precision: kernels/powx.hpp on the bodies of kernels/pow_d.hpp.
#include "frame/entry_points.hpp"
#include "kernels/pow_d.hpp"
#include "kernels/powx.hpp"

QORL_SLOTS(d, Inv);
QORL_SLOTS(d, Sqrt);
QORL_SLOTS(d, InvSqrt);
QORL_SLOTS(d, Pow3o2);
QORL_SLOTS(d, Pow2o3);
QORL_SLOTS(d, Cbrt);
QORL_SLOTS(d, InvCbrt);

namespace qorl {
namespace {

struct Functions {
    static constexpr Slots inv{qorl_ttab_dInv, qorl_ttab_dInvI};
    static constexpr Slots sqrt{qorl_ttab_dSqrt, qorl_ttab_dSqrtI};
    static constexpr Slots inv_sqrt{qorl_ttab_dInvSqrt, qorl_ttab_dInvSqrtI};
    static constexpr Slots pow3o2{qorl_ttab_dPow3o2, qorl_ttab_dPow3o2I};
    static constexpr Slots pow2o3{qorl_ttab_dPow2o3, qorl_ttab_dPow2o3I};
    static constexpr Slots cbrt{qorl_ttab_dCbrt, qorl_ttab_dCbrtI};
    static constexpr Slots inv_cbrt{qorl_ttab_dInvCbrt, qorl_ttab_dInvCbrtI};
};

template <Level L>
using PowxOf = Powx<PowBody<L>, Functions, L>;

}  // namespace
}  // namespace qorl

QORL_ARRAY_SCALAR(d, Powx, LA, qorl::PowxOf<qorl::Level::LA>);
QORL_ARRAY_SCALAR(d, Powx, HA, qorl::PowxOf<qorl::Level::HA>);
QORL_ARRAY_SCALAR(d, Powx, EP, qorl::PowxOf<qorl::Level::EP>);
