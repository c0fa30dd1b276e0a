// tanh x, double precision.
//
// Method   Intervals of |x|, a polynomial for each. 1 + |x| rounded to six bits names the interval and, less 1, its
//          centre c: the width grows with 1 + |x| as the distance of the poles does. r = |x| - c is exact. LA, EP:
//          t + r p(r), t = tanh c in one word, p of degree 6. HA: t in two words, p of degree 7; for |x| below 0.36,
//          where r is no small part of the result, the leading word is |x| itself and the row holds tanh x - x.
// Range    all x. From 19.25 on the row is exactly 1. |x| is cut off there: in the index with NaN going to the last
//          row, in r with NaN staying NaN, so that no lane is special. The sign of x is put back last: tanh is odd bit
//          for bit, and tanh x = x where |x| is tiny. Nothing is raised.
// Error    HA 0.5 ulp of the last addition + 2^-4.5 times the roundings of a sum that small + 2^-5.5 of the polynomial;
//          LA half an ulp each for t and the last fma, t being up to twice the result, and 2^-53.2 of the polynomial.
//          Degrees and rows are fitted anew for these bounds.
// Source   the division of the line by the leading bits of a shifted argument: P. T. P. Tang, Table-lookup algorithms
//          for elementary functions and their error analysis, Proc. 10th IEEE Symposium on Computer Arithmetic, 1991.
#include "kernels/tables/tanh_d.hpp"
#include "frame/entry_points.hpp"
#include "frame/poly.hpp"

namespace qorl {
namespace {

constexpr int index_shift = 52 - 5;  // the leading five bits of the fraction stay
constexpr std::int64_t half_step = std::int64_t(1) << (index_shift - 1);
constexpr std::int64_t step_mask = ~((std::int64_t(1) << index_shift) - 1);
constexpr std::int64_t first_index = std::int64_t(1023) << 5;  // that of 1 + |x| = 1

// |x| as its interval, the rounded 1 + |x|, and the distance from the centre.
template <int N>
struct Interval {
    Pack<double, N> absolute, rounded, r;

    QORL_INLINE explicit Interval(Pack<double, N> x) {
        using P = Pack<double, N>;
        const P last(tables::tanh_last_centre);
        absolute = abs(x);
        rounded = real((bits(min(absolute, last) + P(1)) + half_step) & step_mask);
        r = min(last, absolute) - (rounded - P(1));
    }
};

template <Level L>
struct Tanh : OneResult<double> {
    static constexpr int packs = 1;

    template <int N>
    QORL_INLINE static Pack<double, N> body(Pack<double, N> x) {
        using P = Pack<double, N>;
        const Interval<N> at(x);
        const P r = at.r;
        P y;
        if constexpr (L == Level::HA) {
            // 80 bytes a row: 16 times the index and 64 times
            constexpr std::ptrdiff_t row = 80;
            const auto index = bits(at.rounded);
            const RowLookup<N, first_index * row> words(
                tables::tanh_two_word_rows, shift_right(index, index_shift - 4) + shift_right(index, index_shift - 6));
            P base, rest, c1, c2, c3, c4, c5, c6, c7, c8;
            words.pair(8, c7, c8);
            words.pair(6, c5, c6);
            words.pair(4, c3, c4);
            words.pair(2, c1, c2);
            words.pair(0, base, rest);
            const P p = horner(r, std::array{c1, c2, c3, c4, c5, c6, c7, c8});
            y = select(less(at.rounded, tables::tanh_small_bound), at.absolute, base) + fma(r, p, rest);
        } else {
            constexpr std::ptrdiff_t row = 64;
            const RowLookup<N, first_index * row> words(tables::tanh_one_word_rows,
                                                        shift_right(bits(at.rounded), index_shift - 6));
            P t, c1, c2, c3, c4, c5, c6, c7;
            words.pair(6, c6, c7);
            words.pair(4, c4, c5);
            words.pair(2, c2, c3);
            words.pair(0, t, c1);
            y = fma(r, horner(r, std::array{c1, c2, c3, c4, c5, c6, c7}), t);
        }
        return y | (x & P(-0.0));
    }
};

}  // namespace
}  // namespace qorl

QORL_UNARY(d, Tanh, LA, qorl::Tanh<qorl::Level::LA>);
QORL_UNARY(d, Tanh, HA, qorl::Tanh<qorl::Level::HA>);
