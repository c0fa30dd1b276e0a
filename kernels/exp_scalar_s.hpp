// b^x for one float outside the range of the vector bodies, by way of double precision.
//
// Method   b^x = e^(x ln b), the double-precision exponential of kernels/exp_scalar.hpp, rounded to single once.
// Error    x ln b is off by |x ln b| 2^-52, below 2^-45 here: 0.5001 ulp, denormal results included.
#ifndef QORL_KERNELS_EXP_SCALAR_S_HPP
#define QORL_KERNELS_EXP_SCALAR_S_HPP

#include "kernels/exp_scalar.hpp"
#include "kernels/tables/exp_s.hpp"

namespace qorl {

// Where results end: the largest x with a finite one, the least with one above zero, the least with a normal one.
struct ExpBounds {
    float overflow, underflow, denormal;
};
inline constexpr ExpBounds exp_s_bounds{tables::exp_s_overflow_bound, tables::exp_s_underflow_bound,
                                        tables::exp_s_denormal_bound};
inline constexpr ExpBounds exp2_s_bounds{tables::exp2_s_overflow_bound, tables::exp2_s_underflow_bound,
                                         tables::exp2_s_denormal_bound};
inline constexpr ExpBounds exp10_s_bounds{tables::exp10_s_overflow_bound, tables::exp10_s_underflow_bound,
                                          tables::exp10_s_denormal_bound};

// The part of a scalar function that needs no exponential: true if it has set the result and the status.
inline bool exp_limits(float x, const ExpBounds &bounds, float *y, int *status) {
    *status = 0;
    if (!std::isfinite(x)) {
        *y = x == -std::numeric_limits<float>::infinity() ? 0.0f : x * x;
    } else if (x > bounds.overflow) {
        *y = std::numeric_limits<float>::infinity();
        *status = 3;
    } else if (x < bounds.underflow) {
        *y = 0.0f;
        *status = 4;
    } else {
        return false;
    }
    return true;
}

inline float exp_by_double(double x) {
    return static_cast<float>(assemble(exp_parts(x)));
}

// The scalar function of b^x.
inline int exp_scalar_by_double(float x, double ln_base, const ExpBounds &bounds, float *y) {
    int status;
    if (exp_limits(x, bounds, y, &status)) return status;
    *y = exp_by_double(static_cast<double>(x) * ln_base);
    return x < bounds.denormal ? 4 : 0;
}

}  // namespace qorl

#endif
