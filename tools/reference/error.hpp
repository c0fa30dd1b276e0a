// The error of a result against the exact value, in units in the last place and as a relative error.
#ifndef QORL_TOOLS_REFERENCE_ERROR_HPP
#define QORL_TOOLS_REFERENCE_ERROR_HPP

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "tools/reference/formula.hpp"
#include "tools/reference/real.hpp"

namespace qorl::reference {

// One unit in the last place of the finite number x of type T: the distance to the next number of larger magnitude,
// constant through a binade; the smallest denormal for zeros and denormals.
template <class T>
constexpr double unit_in_last_place(double x) {
    constexpr int digits = std::numeric_limits<T>::digits;
    constexpr int lowest = std::numeric_limits<T>::min_exponent - digits;
    const int exponent = static_cast<int>(std::bit_cast<std::uint64_t>(x) >> 52 & 0x7FF) - 1022 - digits;
    const int e = exponent < lowest ? lowest : exponent;
    return e < -1022 ? std::bit_cast<double>(std::uint64_t{1} << (e + 1074))
                     : std::bit_cast<double>(static_cast<std::uint64_t>(e + 1023) << 52);
}

struct Error {
    double ulp = 0;       // units in the last place of the correctly rounded result
    double relative = 0;  // see relative_error
};

// The relative error of a result of type T from its error in ulp and the size of the exact value in the same unit.
//
// Of a denormal result it is the error beyond the half unit that rounding costs anyway; and a denormal result within
// one unit counts no more than the same number of units of a normal number, however coarse the format is there.
template <class T>
double relative_error(double ulp, double size, bool denormal) {
    if (ulp == 0) return 0;
    const double relative = (denormal && ulp >= 1 ? ulp - 0.5 : ulp) / size;
    if (!(relative >= 0)) return std::numeric_limits<double>::infinity();  // a finite result of a huge value
    return denormal && ulp < 1 ? std::fmin(relative, ulp * std::numeric_limits<T>::epsilon()) : relative;
}

// An exact value as its nearest T and the rest in units, which is all that measuring errors around it needs.
template <class T>
struct Exact {
    bool defined = false;   // the exact value is a finite number
    bool overflow = false;  // it rounds to an infinity; nearest is then the largest finite number
    double nearest = 0;
    double rest = 0;  // (exact - nearest) / unit
    double unit = 0;  // one unit in the last place of nearest, or of the floor below which errors are absolute
    bool denormal = false;

    // An infinite result counts as 2^emax, and as right where the exact value lies beyond; a NaN as infinitely wrong.
    Error error(T result) const {
        constexpr double largest = std::numeric_limits<T>::max();
        if (std::isnan(result)) return {infinity, infinity};
        double ulp = 0;
        if (std::isinf(result)) {
            const double end = std::copysign(largest, result);
            const double beyond = std::copysign(unit_in_last_place<T>(largest) / unit, result);
            if (overflow && end == nearest && std::fabs(rest) >= std::fabs(beyond)) return {};
            ulp = std::fabs((end / 2 - nearest / 2) / unit * 2 + beyond - rest);
        } else {
            const double got = static_cast<double>(result);
            ulp = std::fabs((got - nearest) / unit - rest);
        }
        return {ulp, relative_error<T>(ulp, std::fabs(nearest / unit + rest), denormal)};
    }

    // What a correctly rounded implementation returns.
    T rounded() const {
        return overflow ? std::copysign(std::numeric_limits<T>::infinity(), static_cast<T>(nearest))
                        : static_cast<T>(nearest);
    }

    static constexpr double infinity = std::numeric_limits<double>::infinity();
};

// Evaluates a formula at points of type T. Not shared between threads.
template <class T>
class Evaluator {
  public:
    explicit Evaluator(const Formula &formula) : formula_(formula) {}

    Exact<T> operator()(T a, T b = 0) {
        Exact<T> exact;
        if (!std::isfinite(a) || !std::isfinite(b)) return exact;
        mpfr_set_d(a_, static_cast<double>(a), MPFR_RNDN);
        mpfr_set_d(b_, static_cast<double>(b), MPFR_RNDN);
        formula_.exact(y_, {a_, b_, std::is_same_v<T, float> ? 's' : 'd'});
        if (!mpfr_number_p(y_)) return exact;
        exact.defined = true;
        constexpr double largest = std::numeric_limits<T>::max();
        if constexpr (std::is_same_v<T, float>)
            exact.nearest = static_cast<double>(mpfr_get_flt(y_, MPFR_RNDN));
        else
            exact.nearest = mpfr_get_d(y_, MPFR_RNDN);
        if (std::isinf(exact.nearest)) {
            exact.overflow = true;
            exact.nearest = std::copysign(largest, exact.nearest);
        }
        exact.denormal = std::fabs(exact.nearest) < static_cast<double>(std::numeric_limits<T>::min());
        exact.unit =
            unit_in_last_place<T>(std::fmax(std::fabs(exact.nearest), error_floor(formula_, static_cast<double>(a))));
        mpfr_sub_d(rest_, y_, exact.nearest, MPFR_RNDN);
        mpfr_div_d(rest_, rest_, exact.unit, MPFR_RNDN);
        exact.rest = mpfr_get_d(rest_, MPFR_RNDN);
        return exact;
    }

  private:
    static constexpr mpfr_prec_t precision = 128;
    const Formula &formula_;
    Real a_{53}, b_{53}, y_{precision}, rest_{precision};
};

}  // namespace qorl::reference

#endif
