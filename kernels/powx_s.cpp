// Powx, a^b with one b for the whole call, single precision: kernels/powx.hpp on the bodies of kernels/pow_s.hpp.
#include "frame/entry_points.hpp"
#include "kernels/pow_s.hpp"
#include "kernels/powx.hpp"

QORL_SLOTS(s, Inv);
QORL_SLOTS(s, Sqrt);
QORL_SLOTS(s, InvSqrt);
QORL_SLOTS(s, Pow3o2);
QORL_SLOTS(s, Pow2o3);
QORL_SLOTS(s, Cbrt);
QORL_SLOTS(s, InvCbrt);

namespace qorl {
namespace {

struct Functions {
    static constexpr Slots inv{qorl_ttab_sInv, qorl_ttab_sInvI};
    static constexpr Slots sqrt{qorl_ttab_sSqrt, qorl_ttab_sSqrtI};
    static constexpr Slots inv_sqrt{qorl_ttab_sInvSqrt, qorl_ttab_sInvSqrtI};
    static constexpr Slots pow3o2{qorl_ttab_sPow3o2, qorl_ttab_sPow3o2I};
    static constexpr Slots pow2o3{qorl_ttab_sPow2o3, qorl_ttab_sPow2o3I};
    static constexpr Slots cbrt{qorl_ttab_sCbrt, qorl_ttab_sCbrtI};
    static constexpr Slots inv_cbrt{qorl_ttab_sInvCbrt, qorl_ttab_sInvCbrtI};
};

template <Level L>
using PowxOf = Powx<PowBodyS<L>, Functions, L>;

}  // namespace
}  // namespace qorl

QORL_ARRAY_SCALAR(s, Powx, LA, qorl::PowxOf<qorl::Level::LA>);
QORL_ARRAY_SCALAR(s, Powx, HA, qorl::PowxOf<qorl::Level::HA>);
QORL_ARRAY_SCALAR(s, Powx, EP, qorl::PowxOf<qorl::Level::EP>);
