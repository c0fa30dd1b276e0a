#include "tools/reference/fast.hpp"

#include <cmath>
#include <limits>
#include <numbers>

namespace qorl::reference::fast {
namespace {

constexpr double pi = std::numbers::pi;
constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

// Sine of half * turn / 2 for a periodic argument with the given half period: the argument is brought into a quarter
// period around zero by exact steps, so that the zeros keep their relative accuracy.
double sine_by_period(double x, double half) {
    if (!std::isfinite(x)) return nan;
    double r = std::remainder(x, 2 * half);
    if (std::fabs(r) > half / 2) r = std::copysign(half, r) - r;
    return std::sin(r * (pi / half));
}

double cosine_by_period(double x, double half) {
    if (!std::isfinite(x)) return nan;
    return sine_by_period(half / 2 - std::fabs(std::remainder(x, 2 * half)), half);
}

double tangent_by_period(double x, double half) {
    if (!std::isfinite(x)) return nan;
    return sine_by_period(x, half) / cosine_by_period(x, half);
}

// The positive root of erfc(x) = q for q in (0, 0.5], or of erf(x) = p for p in [0, 0.5), by Halley's iteration.
double refine_erfc(double q) {
    const double t = std::sqrt(-2 * std::log(q / 2));
    double x = (t - (2.515517 + t * (0.802853 + t * 0.010328)) / (1 + t * (1.432788 + t * (0.189269 + t * 0.001308)))) /
               std::numbers::sqrt2;  // Hastings; Abramowitz and Stegun 26.2.23, good to 4.5e-4
    for (int step = 0; step < 3; ++step) {
        const double e = (std::erfc(x) - q) / (2 * std::numbers::inv_sqrtpi * std::exp(-x * x));
        x += e / (1 - x * e);
    }
    return x;
}

double refine_erf(double p) {
    double x = p / (2 * std::numbers::inv_sqrtpi);
    for (int step = 0; step < 4; ++step) {
        const double e = (std::erf(x) - p) / (2 * std::numbers::inv_sqrtpi * std::exp(-x * x));
        x -= e / (1 + x * e);
    }
    return x;
}

}  // namespace

double frac(double x) {
    return std::isfinite(x) ? std::copysign(x - std::trunc(x), x) : nan;
}
double sqr(double x) {
    return x * x;
}
double inv(double x) {
    return 1 / x;
}
double inv_sqrt(double x) {
    return 1 / std::sqrt(x);
}
double inv_cbrt(double x) {
    return 1 / std::cbrt(x);
}
double pow2o3(double x) {
    return sqr(std::cbrt(x));
}
double pow3o2(double x) {
    return x * std::sqrt(x);
}
double exp10(double x) {
    return ::exp10(x);
}

double sinpi(double x) {
    return sine_by_period(x, 1);
}
double cospi(double x) {
    return cosine_by_period(x, 1);
}
double tanpi(double x) {
    return tangent_by_period(x, 1);
}
double sind(double x) {
    return sine_by_period(x, 180);
}
double cosd(double x) {
    return cosine_by_period(x, 180);
}
double tand(double x) {
    return tangent_by_period(x, 180);
}
double asinpi(double x) {
    return std::asin(x) / pi;
}
double acospi(double x) {
    return std::acos(x) / pi;
}
double atanpi(double x) {
    return std::atan(x) / pi;
}

double erfcx(double x) {
    if (x < 20) return std::exp(x * x) * std::erfc(x);  // x * x is exact for a single-precision x
    const double s = 2 * x * x;
    double sum = 1;  // DLMF 7.12.1; the ninth term is below 2^-57
    for (int k = 9; k >= 1; --k) sum = 1 - sum * (2 * k - 1) / s;
    return std::numbers::inv_sqrtpi / x * sum;
}

double erfinv(double x) {
    const double a = std::fabs(x);
    if (!(a <= 1)) return nan;
    if (a == 1) return std::copysign(infinity, x);
    return std::copysign(a < 0.5 ? refine_erf(a) : refine_erfc(1 - a), x);
}

double erfcinv(double x) {
    if (!(x >= 0 && x <= 2)) return nan;
    if (x == 0) return infinity;
    if (x <= 0.5) return refine_erfc(x);
    if (x < 1.5) return erfinv(1 - x);
    return -erfcinv(2 - x);
}

double normal_cdf(double x) {
    return std::erfc(-x / std::numbers::sqrt2) / 2;
}
double inverse_normal_cdf(double x) {
    return -std::numbers::sqrt2 * erfcinv(2 * x);
}

double expint1(double x) {
    return x > 0 ? -std::expint(-x) : nan;
}
double i0(double x) {
    return std::cyl_bessel_i(0.0, std::fabs(x));
}
double i1(double x) {
    return std::copysign(std::cyl_bessel_i(1.0, std::fabs(x)), x);
}

}  // namespace qorl::reference::fast
