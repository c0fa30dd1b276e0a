// tanh x, single precision.
//
// Method   Eight intervals of |x|, whose polynomials are looked up coefficient by coefficient with permutes of a
//          register. LA, HA: the exponent and one bit of 1 + 1.64 |x| name the interval, so that its width grows with
//          |x| as the distance of the poles does; c0 + r (c1 + ...), r = |x| - centre exact. The centres are chosen
//          so that c0 is all but a float. LA: degree 6. HA: degree 8, c1 all but a float too, and c0 + c1 r in two
//          words. EP: the exponent and two bits of 1 + 0.70 |x|, and |x| times a polynomial of degree 2 in |x|.
// Range    all x. |x| is cut off at 9.125 (EP 4.25), where the polynomials give 1 exactly; NaN passes through: no lane
//          is special. The sign of x is put back last. tanh is odd bit for bit, and at HA and LA tanh x = x where |x|
//          is tiny. Nothing is raised.
// Error    HA 0.5 ulp of the last addition + the rounding of r^2 (c2 + ...), at most a tenth of the result; LA 2^-23.5
//          of the polynomials and the roundings of p and the last fma; EP 2^-11.26, the distance from 1 at the end.
//          Intervals and degrees are fitted anew for permutes.
// Source   S. Gal, B. Bachelis, An accurate elementary mathematical library for the IEEE floating point standard, ACM
//          TOMS 17(1), 1991, for the centres; the error of a fused operation by two more: S. Boldo, J.-M. Muller, Exact
//          and approximated error of the FMA, IEEE Trans. Computers 60(2), 2011.
#include "kernels/tables/tanh_s.hpp"
#include "frame/entry_points.hpp"
#include "frame/poly.hpp"

namespace qorl {
namespace {

// One word for each lane from every row of eight, by the low three bits of the index.
template <int N, std::size_t Words>
QORL_INLINE std::array<Pack<float, N>, Words> lookup_each(const std::array<std::array<float, 8>, Words> &rows,
                                                          Pack<std::int32_t, N> index) {
    std::array<Pack<float, N>, Words> words;
    each_register<static_cast<int>(Words)>([&](int w) { words[w] = lookup8(rows[w], index); });
    return words;
}

// The terms from word First of a row on.
template <std::size_t First, class P, std::size_t Words>
QORL_INLINE std::array<P, Words - First> terms(const std::array<P, Words> &row) {
    std::array<P, Words - First> c;
    each_register<static_cast<int>(Words - First)>([&](int i) { c[i] = row[i + First]; });
    return c;
}

template <Level L>
struct Tanh : OneResult<float> {
    static constexpr int packs = 2;

    template <int N>
    QORL_INLINE static Pack<float, N> body(Pack<float, N> x) {
        using P = Pack<float, N>;
        using namespace tables;
        if constexpr (L == Level::EP) {
            const P a = min(P(tanh_ep_end), abs(x));  // NaN passes as the second operand
            const auto index = shift_right(bits(fma(a, P(tanh_ep_scale), P(1))), 23 - 2);
            return (a * horner(a, lookup_each(tanh_ep_rows, index))) | (x & P(-0.0f));
        } else {
            const P a = min(P(tanh_end), abs(x));  // NaN passes as the second operand
            const auto index = shift_right(bits(fma(a, P(tanh_scale), P(1))), 23 - 1);
            P y;
            if constexpr (L == Level::HA) {
                const auto row = lookup_each(tanh_ha_rows, index);
                const P r = a - row[0], c0 = row[1], c1 = row[2];
                // c0 + c1 r = lead + rest
                const P lead = fma(c1, r, c0);
                const P rest = fma(c1, r, c0 - lead);
                y = lead + fma(r * r, horner(r, terms<3>(row)), rest);
            } else {
                const auto row = lookup_each(tanh_la_rows, index);
                y = horner(a - row[0], terms<1>(row));
            }
            return y | (x & P(-0.0f));
        }
    }
};

}  // namespace
}  // namespace qorl

QORL_UNARY(s, Tanh, LA, qorl::Tanh<qorl::Level::LA>);
QORL_UNARY(s, Tanh, HA, qorl::Tanh<qorl::Level::HA>);
QORL_UNARY(s, Tanh, EP, qorl::Tanh<qorl::Level::EP>);
