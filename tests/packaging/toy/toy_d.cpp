// A stand-in for J0, which has one kernel in all slots: x^2, and the domain error for a negative x.
#include "frame/entry_points.hpp"

namespace qorl {
namespace {

struct Toy : OneResult<double> {
    static constexpr int packs = 2;
    template <int N>
    static Pack<double, N> body(Pack<double, N> x) {
        return x * x;
    }
    template <int N>
    static Mask<double, N> special(Pack<double, N> x) {
        return less(x, 0.0);
    }
    [[gnu::noinline]] static int scalar(double, double *y) {
        *y = -1.0;
        return 1;
    }
};

}  // namespace
}  // namespace qorl

QORL_UNARY(d, J0, LA, qorl::Toy);
