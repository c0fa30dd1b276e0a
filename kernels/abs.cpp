// |x|, single and double precision: clears the sign bit. Exact; raises nothing.
//
// The addition of zero changes no number and quiets a signalling NaN; the masked tail does without it.
#include "frame/entry_points.hpp"

namespace qorl {
namespace {

template <class T, int Packs>
struct Abs : OneResult<T> {
    static constexpr int packs = Packs;
    template <int N>
    static Pack<T, N> body(Pack<T, N> x) {
        return abs(x) + Pack<T, N>(0);
    }
    template <int N>
    static Pack<T, N> tail_body(Pack<T, N> x) {
        return abs(x);
    }
};

}  // namespace
}  // namespace qorl

QORL_UNARY(s, Abs, LA, qorl::Abs<float, 2>);
QORL_UNARY(d, Abs, LA, qorl::Abs<double, 2>);
