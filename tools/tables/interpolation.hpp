// Polynomials by interpolation at Chebyshev points, for tables with a polynomial a row.
//
// At these points the error is within a small factor of the least possible on the interval, and the coefficients follow
// from the function alone, so that a table of many rows is a rule and no list of fits.
#ifndef QORL_TOOLS_TABLES_INTERPOLATION_HPP
#define QORL_TOOLS_TABLES_INTERPOLATION_HPP

#include <cstddef>
#include <vector>

#include "tools/tables/writer.hpp"

namespace qorl::tables_tool {

// The coefficients, lowest order first, of the polynomial of `count` terms that agrees with f at the Chebyshev points
// of [low, high]: Newton's divided differences, multiplied out.
template <class F>
std::vector<Real> interpolate(F f, const Real &low, const Real &high, int count) {
    std::vector<Real> x, d;
    for (int i = 0; i < count; ++i) {
        const double point = std::cos(3.141592653589793 * (i + 0.5) / count);
        x.push_back((low + high) * Real(0.5) + (high - low) * Real(0.5 * point));
        d.push_back(f(x.back()));
    }
    const std::size_t n = d.size();
    for (std::size_t order = 1; order < n; ++order)
        for (std::size_t i = n - 1; i >= order; --i) d[i] = (d[i] - d[i - 1]) / (x[i] - x[i - order]);
    std::vector<Real> c(n, Real(0));
    for (std::size_t i = n; i-- > 0;) {  // c = c (x - x_i) + d_i
        for (std::size_t k = n - 1; k > 0; --k) c[k] = c[k - 1] - c[k] * x[i];
        c[0] = d[i] - c[0] * x[i];
    }
    return c;
}

}  // namespace qorl::tables_tool

#endif
