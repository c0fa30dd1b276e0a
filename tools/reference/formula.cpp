#include "tools/reference/formula.hpp"

#include <arb.h>
#include <arb_hypgeom.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

#include "tools/reference/fast.hpp"
#include "tools/reference/real.hpp"

namespace qorl::reference {
namespace {

constexpr mpfr_rnd_t nearest = MPFR_RNDN;
constexpr mpfr_prec_t guard = 32;  // extra bits of intermediate results

// An Arb function at a point, in growing precision until the ball is small enough.
template <void (*function)(arb_t, const arb_t, slong)>
void by_arb(mpfr_ptr y, mpfr_srcptr x) {
    arb_t in, out;
    arb_init(in);
    arb_init(out);
    arf_set_mpfr(arb_midref(in), x);
    mpfr_set_nan(y);
    const slong wanted = static_cast<slong>(mpfr_get_prec(y)) + 4;
    for (slong precision = wanted + 32; precision <= 1 << 15; precision *= 2) {
        function(out, in, precision);
        if (arb_rel_accuracy_bits(out) >= wanted) {
            arf_get_mpfr(y, arb_midref(out), nearest);
            break;
        }
    }
    arb_clear(in);
    arb_clear(out);
}

template <int order>
void bessel_i(arb_t y, const arb_t x, slong precision) {
    arb_t nu;
    arb_init(nu);
    arb_set_si(nu, order);
    arb_hypgeom_bessel_i(y, nu, x, precision);
    arb_clear(nu);
}

// erfcinv(x), with the reflection that keeps Arb in the half where it converges quickly.
void inverse_erfc(mpfr_ptr y, mpfr_srcptr x) {
    if (mpfr_cmp_ui(x, 0) <= 0 || mpfr_cmp_ui(x, 2) >= 0) return mpfr_set_nan(y);
    if (mpfr_cmp_d(x, 0.5) < 0) return by_arb<arb_hypgeom_erfcinv>(y, x);
    Real z(1200);  // 1 - x exactly
    mpfr_ui_sub(z, 1, x, nearest);
    by_arb<arb_hypgeom_erfinv>(y, z);
}

// exp(x^2) erfc(x); above 2^20 the asymptotic series, whose tenth term is below 2^-400 (DLMF 7.12.1).
void scaled_erfc(mpfr_ptr y, mpfr_srcptr x) {
    const mpfr_prec_t precision = mpfr_get_prec(y) + guard;
    Real square(precision), t(precision);
    if (mpfr_cmp_ui(x, 1 << 20) < 0) {
        mpfr_set_prec(square, 128);  // exact
        mpfr_sqr(square, x, nearest);
        mpfr_exp(t, square, nearest);
        Real erfc(precision);
        mpfr_erfc(erfc, x, nearest);
        mpfr_mul(y, t, erfc, nearest);
        return;
    }
    mpfr_sqr(square, x, nearest);
    mpfr_mul_2ui(square, square, 1, nearest);
    Real sum(precision);
    mpfr_set_ui(sum, 1, nearest);
    for (unsigned long k = 10; k >= 1; --k) {  // 1 - 1/(2x^2) (1 - 3/(2x^2) (1 - ...))
        mpfr_mul_ui(sum, sum, 2 * k - 1, nearest);
        mpfr_div(sum, sum, square, nearest);
        mpfr_ui_sub(sum, 1, sum, nearest);
    }
    mpfr_const_pi(t, nearest);
    mpfr_rec_sqrt(t, t, nearest);
    mpfr_div(t, t, x, nearest);
    mpfr_mul(y, sum, t, nearest);
}

void normal_cdf(mpfr_ptr y, mpfr_srcptr x) {
    Real t(mpfr_get_prec(y) + guard + 16);  // erfc magnifies the argument's error by x^2
    mpfr_sqrt_ui(t, 2, nearest);
    mpfr_div(t, x, t, nearest);
    mpfr_neg(t, t, nearest);
    mpfr_erfc(y, t, nearest);
    mpfr_div_2ui(y, y, 1, nearest);
}

void inverse_normal_cdf(mpfr_ptr y, mpfr_srcptr x) {
    Real t(64), root(mpfr_get_prec(y) + guard), r(mpfr_get_prec(y) + guard);
    mpfr_mul_2ui(t, x, 1, nearest);
    inverse_erfc(r, t);
    mpfr_sqrt_ui(root, 2, nearest);
    mpfr_mul(y, r, root, nearest);
    mpfr_neg(y, y, nearest);
}

void log_gamma(mpfr_ptr y, mpfr_srcptr x) {
    int sign = 0;
    mpfr_lgamma(y, &sign, x, nearest);
}

void exponential_integral_e1(mpfr_ptr y, mpfr_srcptr x) {
    if (mpfr_sgn(x) <= 0) return mpfr_set_nan(y);
    Real t(mpfr_get_prec(x));
    mpfr_neg(t, x, nearest);
    mpfr_eint(y, t, nearest);
    mpfr_neg(y, y, nearest);
}

void next_after(mpfr_ptr y, const Arguments &x) {
    const double a = mpfr_get_d(x.a, nearest), b = mpfr_get_d(x.b, nearest);
    mpfr_set_d(y, x.type == 's' ? std::nextafter(static_cast<float>(a), static_cast<float>(b)) : std::nextafter(a, b),
               nearest);
}

// The larger (sign 1) or smaller (sign -1) in magnitude; of equal magnitudes the larger or smaller.
void by_magnitude(mpfr_ptr y, const Arguments &x, int sign) {
    const int order = mpfr_cmpabs(x.a, x.b) * sign;
    if (order == 0)
        (sign > 0 ? mpfr_max : mpfr_min)(y, x.a, x.b, nearest);
    else
        mpfr_set(y, order > 0 ? x.a : x.b, nearest);
}

template <int (*function)(mpfr_ptr, long, mpfr_srcptr, mpfr_rnd_t)>
void of_order(mpfr_ptr y, const Arguments &x) {
    if (mpfr_fits_slong_p(x.b, nearest) && mpfr_integer_p(x.b))
        function(y, mpfr_get_si(x.b, nearest), x.a, nearest);
    else
        mpfr_set_nan(y);
}

template <int (*function)(mpfr_ptr, mpfr_srcptr, unsigned long, mpfr_rnd_t)>
void in_degrees(mpfr_ptr y, const Arguments &x) {
    function(y, x.a, 360, nearest);
}

// The plain MPFR functions of one and two arguments.
template <int (*function)(mpfr_ptr, mpfr_srcptr, mpfr_rnd_t)>
void one(mpfr_ptr y, const Arguments &x) {
    function(y, x.a, nearest);
}
template <int (*function)(mpfr_ptr, mpfr_srcptr, mpfr_srcptr, mpfr_rnd_t)>
void two(mpfr_ptr y, const Arguments &x) {
    function(y, x.a, x.b, nearest);
}
template <void (*function)(mpfr_ptr, mpfr_srcptr)>
void own(mpfr_ptr y, const Arguments &x) {
    function(y, x.a);
}

constexpr auto none = Symmetry::none, odd = Symmetry::odd, even = Symmetry::even;

const Formula table[] = {
    // Rounding and arithmetic.
    {"Ceil", 1, none, [](mpfr_ptr y, const Arguments &x) { mpfr_rint_ceil(y, x.a, nearest); }, std::ceil},
    {"Floor", 1, none, [](mpfr_ptr y, const Arguments &x) { mpfr_rint_floor(y, x.a, nearest); }, std::floor},
    {"Frac", 1, odd, one<mpfr_frac>, fast::frac},
    {"NearbyInt", 1, odd, [](mpfr_ptr y, const Arguments &x) { mpfr_rint(y, x.a, nearest); }, std::nearbyint},
    {"Rint", 1, odd, [](mpfr_ptr y, const Arguments &x) { mpfr_rint(y, x.a, nearest); }, std::nearbyint},
    {"Round", 1, odd, [](mpfr_ptr y, const Arguments &x) { mpfr_rint_round(y, x.a, nearest); }, std::round},
    {"Trunc", 1, odd, [](mpfr_ptr y, const Arguments &x) { mpfr_rint_trunc(y, x.a, nearest); }, std::trunc},
    {"Abs", 1, even, one<mpfr_abs>, std::fabs},
    {"Sqr", 1, even, one<mpfr_sqr>, fast::sqr},
    {"Logb", 1, even,
     [](mpfr_ptr y, const Arguments &x) {
         if (!mpfr_regular_p(x.a)) return mpfr_set_nan(y);
         mpfr_set_si(y, mpfr_get_exp(x.a) - 1, nearest);
     },
     std::logb},
    {"Add", 2, none, two<mpfr_add>},
    {"Sub", 2, none, two<mpfr_sub>},
    {"Mul", 2, none, two<mpfr_mul>},
    {"Div", 2, none, two<mpfr_div>},
    {"Fmod", 2, none, two<mpfr_fmod>},
    {"Remainder", 2, none, two<mpfr_remainder>},
    {"Fdim", 2, none, two<mpfr_dim>},
    {"Fmax", 2, none, two<mpfr_max>},
    {"Fmin", 2, none, two<mpfr_min>},
    {"MaxMag", 2, none, [](mpfr_ptr y, const Arguments &x) { by_magnitude(y, x, 1); }},
    {"MinMag", 2, none, [](mpfr_ptr y, const Arguments &x) { by_magnitude(y, x, -1); }},
    {"CopySign", 2, none, [](mpfr_ptr y, const Arguments &x) { mpfr_copysign(y, x.a, x.b, nearest); }},
    {"NextAfter", 2, none, next_after},

    // Powers and roots.
    {"Inv", 1, odd, [](mpfr_ptr y, const Arguments &x) { mpfr_ui_div(y, 1, x.a, nearest); }, fast::inv},
    {"Sqrt", 1, none, one<mpfr_sqrt>, std::sqrt},
    {"InvSqrt", 1, none, one<mpfr_rec_sqrt>, fast::inv_sqrt},
    {"Cbrt", 1, odd, one<mpfr_cbrt>, std::cbrt},
    {"InvCbrt", 1, odd,
     [](mpfr_ptr y, const Arguments &x) {
         Real t(mpfr_get_prec(y) + guard);
         mpfr_cbrt(t, x.a, nearest);
         mpfr_ui_div(y, 1, t, nearest);
     },
     fast::inv_cbrt},
    {"Pow2o3", 1, even,
     [](mpfr_ptr y, const Arguments &x) {
         Real t(mpfr_get_prec(y) + guard);
         mpfr_cbrt(t, x.a, nearest);
         mpfr_sqr(y, t, nearest);
     },
     fast::pow2o3},
    {"Pow3o2", 1, none,
     [](mpfr_ptr y, const Arguments &x) {
         Real t(mpfr_get_prec(y) + guard);
         mpfr_sqrt(t, x.a, nearest);
         mpfr_mul(y, t, x.a, nearest);
     },
     fast::pow3o2},
    {"Pow", 2, none, two<mpfr_pow>},
    {"Powx", 2, none, two<mpfr_pow>},
    {"Powr", 2, none, two<mpfr_powr>},
    {"Hypot", 2, none, two<mpfr_hypot>},

    // Exponentials and logarithms.
    {"Exp", 1, none, one<mpfr_exp>, std::exp},
    {"Exp2", 1, none, one<mpfr_exp2>, std::exp2},
    {"Exp10", 1, none, one<mpfr_exp10>, fast::exp10},
    {"Expm1", 1, none, one<mpfr_expm1>, std::expm1},
    {"Cosh", 1, even, one<mpfr_cosh>, std::cosh},
    {"Sinh", 1, odd, one<mpfr_sinh>, std::sinh},
    {"Tanh", 1, odd, one<mpfr_tanh>, std::tanh},
    {"Acosh", 1, none, one<mpfr_acosh>, std::acosh},
    {"Asinh", 1, odd, one<mpfr_asinh>, std::asinh},
    {"Atanh", 1, odd, one<mpfr_atanh>, std::atanh},
    {"Ln", 1, none, one<mpfr_log>, std::log},
    {"Log10", 1, none, one<mpfr_log10>, std::log10},
    {"Log2", 1, none, one<mpfr_log2>, std::log2},
    {"Log1p", 1, none, one<mpfr_log1p>, std::log1p},

    // Trigonometric functions.
    {"Sin", 1, odd, one<mpfr_sin>, std::sin},
    {"Cos", 1, even, one<mpfr_cos>, std::cos},
    {"Tan", 1, odd, one<mpfr_tan>, std::tan},
    {"Sind", 1, odd, in_degrees<mpfr_sinu>, fast::sind},
    {"Cosd", 1, even, in_degrees<mpfr_cosu>, fast::cosd},
    {"Tand", 1, odd, in_degrees<mpfr_tanu>, fast::tand},
    {"Sinpi", 1, odd, one<mpfr_sinpi>, fast::sinpi},
    {"Cospi", 1, even, one<mpfr_cospi>, fast::cospi},
    {"Tanpi", 1, odd, one<mpfr_tanpi>, fast::tanpi},
    {"Asin", 1, odd, one<mpfr_asin>, std::asin},
    {"Acos", 1, none, one<mpfr_acos>, std::acos},
    {"Atan", 1, odd, one<mpfr_atan>, std::atan},
    {"Asinpi", 1, odd, one<mpfr_asinpi>, fast::asinpi},
    {"Acospi", 1, none, one<mpfr_acospi>, fast::acospi},
    {"Atanpi", 1, odd, one<mpfr_atanpi>, fast::atanpi},
    {"Atan2", 2, none, two<mpfr_atan2>},
    {"Atan2pi", 2, none, two<mpfr_atan2pi>},

    // Error and normal functions.
    {"Erf", 1, odd, one<mpfr_erf>, std::erf},
    {"Erfc", 1, none, one<mpfr_erfc>, std::erfc},
    {"Erfcx", 1, none, own<scaled_erfc>, fast::erfcx},
    {"ErfInv", 1, odd, own<by_arb<arb_hypgeom_erfinv>>, fast::erfinv},
    {"ErfcInv", 1, none, own<inverse_erfc>, fast::erfcinv},
    {"CdfNorm", 1, none, own<normal_cdf>, fast::normal_cdf},
    {"CdfNormInv", 1, none, own<inverse_normal_cdf>, fast::inverse_normal_cdf},

    // Special functions.
    {"LGamma", 1, none, own<log_gamma>, std::lgamma, Floor::constant},
    {"TGamma", 1, none, one<mpfr_gamma>, std::tgamma},
    {"ExpInt1", 1, none, own<exponential_integral_e1>, fast::expint1},
    {"I0", 1, even, own<by_arb<bessel_i<0>>>, fast::i0},
    {"I1", 1, odd, own<by_arb<bessel_i<1>>>, fast::i1},
    {"J0", 1, even, one<mpfr_j0>, ::j0, Floor::amplitude},
    {"J1", 1, odd, one<mpfr_j1>, ::j1, Floor::amplitude},
    {"Y0", 1, none, one<mpfr_y0>, ::y0, Floor::amplitude},
    {"Y1", 1, none, one<mpfr_y1>, ::y1, Floor::amplitude},
    {"Jn", 2, none, of_order<mpfr_jn>, nullptr, Floor::amplitude},
    {"Yn", 2, none, of_order<mpfr_yn>, nullptr, Floor::amplitude},
};

}  // namespace

std::span<const Formula> formulas() {
    return table;
}

const Formula *find_formula(std::string_view name) {
    const auto found = std::ranges::find(table, name, &Formula::name);
    return found == std::end(table) ? nullptr : found;
}

std::vector<const Formula *> formulas_of(const Entry &entry) {
    if (entry.type != 's' && entry.type != 'd') return {};
    if (entry.function == "SinCos") return {find_formula("Sin"), find_formula("Cos")};
    if (entry.function == "SinCospi") return {find_formula("Sinpi"), find_formula("Cospi")};
    if (entry.function == "Modf") return {find_formula("Trunc"), find_formula("Frac")};
    const Formula *formula = find_formula(entry.function);
    return formula == nullptr ? std::vector<const Formula *>{} : std::vector<const Formula *>{formula};
}

double error_floor(const Formula &formula, double a) {
    switch (formula.floor) {
        case Floor::none:
            return 0;
        case Floor::constant:
            return 0.25;
        case Floor::amplitude:  // of the oscillation, sqrt(2 / (pi x)); the first zero, of Y0, is at 0.89
            return std::fabs(a) < 0.5 ? 0 : 0.25 * std::sqrt(2 / (std::numbers::pi * std::fabs(a)));
    }
    return 0;
}

void release_thread() {
    flint_cleanup();
    mpfr_free_cache();
}

}  // namespace qorl::reference
