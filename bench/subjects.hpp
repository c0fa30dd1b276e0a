// What is measured: for every real function of the entry list the arguments and the name under which peers have it.
#ifndef QORL_BENCH_SUBJECTS_HPP
#define QORL_BENCH_SUBJECTS_HPP

#include <iterator>
#include <string_view>

#include "frame/entries.hpp"

namespace qorl::bench {

struct Range {
    double low, high;
};

// A function under one range of arguments. `c_name` is the name in C's mathematical library, from which the names of
// the peers' symbols follow by rule (peers.cpp); peers that have no such symbol are not in the contest. `a` and `b` are
// the ranges of the arguments; where the second is passed by value, it is b.low. `tag` tells two ranges apart.
struct Subject {
    std::string_view function;
    std::string_view c_name;
    Range a;
    Range b = {0.0, 0.0};
    std::string_view tag = "";
};

inline constexpr Subject subjects[] = {
    {"Ceil", "ceil", {-1000, 1000}},
    {"Floor", "floor", {-1000, 1000}},
    {"Frac", "", {-1000, 1000}},
    {"NearbyInt", "nearbyint", {-1000, 1000}},
    {"Rint", "rint", {-1000, 1000}},
    {"Round", "round", {-1000, 1000}},
    {"Trunc", "trunc", {-1000, 1000}},
    {"Abs", "fabs", {-1000, 1000}},
    {"Inv", "", {0.01, 1000}},
    {"Sqrt", "sqrt", {0.01, 1000}},
    {"InvSqrt", "rsqrt", {0.01, 1000}},
    {"Cbrt", "cbrt", {-1000, 1000}},
    {"InvCbrt", "", {0.01, 1000}},
    {"Exp", "exp", {-10, 10}},
    {"Ln", "log", {0.01, 1000}},
    {"Log10", "log10", {0.01, 1000}},
    {"Cos", "cos", {-10, 10}},
    {"Cos", "cos", {-9000, 9000}, {}, "wide"},
    {"Sin", "sin", {-10, 10}},
    {"Sin", "sin", {-9000, 9000}, {}, "wide"},
    {"Tan", "tan", {-10, 10}},
    {"Acos", "acos", {-1, 1}},
    {"Acosh", "acosh", {1, 1000}},
    {"Asin", "asin", {-1, 1}},
    {"Asinh", "asinh", {-10, 10}},
    {"Atan", "atan", {-10, 10}},
    {"Atanh", "atanh", {-0.999, 0.999}},
    {"Cosh", "cosh", {-10, 10}},
    {"Sinh", "sinh", {-10, 10}},
    {"Tanh", "tanh", {-5, 5}},
    {"Erf", "erf", {-3, 3}},
    {"Erfc", "erfc", {-3, 5}},
    {"ErfInv", "", {-0.999, 0.999}},
    {"Sqr", "", {-1000, 1000}},
    {"Expm1", "expm1", {-5, 5}},
    {"Log1p", "log1p", {-0.9, 10}},
    {"Pow3o2", "", {0.01, 1000}},
    {"Pow2o3", "", {-1000, 1000}},
    {"ErfcInv", "", {0.001, 1.999}},
    {"CdfNorm", "", {-4, 4}},
    {"CdfNormInv", "", {0.001, 0.999}},
    {"LGamma", "lgamma", {0.5, 20}},
    {"TGamma", "tgamma", {0.5, 20}},
    {"ExpInt1", "", {0.01, 20}},
    {"Sinpi", "sinpi", {-10, 10}},
    {"Cospi", "cospi", {-10, 10}},
    {"Tanpi", "tanpi", {-10, 10}},
    {"Acospi", "acospi", {-1, 1}},
    {"Asinpi", "asinpi", {-1, 1}},
    {"Atanpi", "atanpi", {-10, 10}},
    {"Exp2", "exp2", {-10, 10}},
    {"Exp10", "exp10", {-10, 10}},
    {"Log2", "log2", {0.01, 1000}},
    {"Sind", "", {-720, 720}},
    {"Cosd", "", {-720, 720}},
    {"Tand", "", {-720, 720}},
    {"Logb", "logb", {0.01, 1000}},
    {"Erfcx", "", {-2, 10}},
    {"I0", "", {-10, 10}},
    {"I1", "", {-10, 10}},
    {"J0", "j0", {-20, 20}},
    {"J1", "j1", {-20, 20}},
    {"Y0", "y0", {0.1, 20}},
    {"Y1", "y1", {0.1, 20}},
    {"Jn", "jn", {-20, 20}, {3, 3}},
    {"Yn", "yn", {0.1, 20}, {3, 3}},
    {"Div", "", {-1000, 1000}, {0.01, 1000}},
    {"Pow", "pow", {0.1, 10}, {-5, 5}},
    {"Atan2", "atan2", {-10, 10}, {-10, 10}},
    {"Hypot", "hypot", {-1000, 1000}, {-1000, 1000}},
    {"Add", "", {-1000, 1000}, {-1000, 1000}},
    {"Sub", "", {-1000, 1000}, {-1000, 1000}},
    {"Mul", "", {-1000, 1000}, {-1000, 1000}},
    {"Atan2pi", "atan2pi", {-10, 10}, {-10, 10}},
    {"CopySign", "copysign", {-1000, 1000}, {-1000, 1000}},
    {"NextAfter", "nextafter", {-1000, 1000}, {-1000, 1000}},
    {"Fdim", "fdim", {-1000, 1000}, {-1000, 1000}},
    {"Fmax", "fmax", {-1000, 1000}, {-1000, 1000}},
    {"Fmin", "fmin", {-1000, 1000}, {-1000, 1000}},
    {"MaxMag", "fmaxmag", {-1000, 1000}, {-1000, 1000}},
    {"MinMag", "fminmag", {-1000, 1000}, {-1000, 1000}},
    {"Powr", "pow", {0.1, 10}, {-5, 5}},
    {"Remainder", "remainder", {-1000, 1000}, {1, 10}},
    {"Fmod", "fmod", {-1000, 1000}, {1, 10}},
    {"Powx", "pow", {0.1, 10}, {2.7, 2.7}},
    {"SinCos", "sincos", {-10, 10}},
    {"SinCos", "sincos", {-9000, 9000}, {}, "wide"},
    {"Modf", "modf", {-1000, 1000}},
    {"SinCospi", "sincospi", {-10, 10}},
    {"LinearFrac", "", {0.1, 10}, {0.1, 10}},
};

// Whether every real unit-stride function has its line; the pack entries move data and are not measured.
constexpr bool every_function_is_a_subject() {
    for (const Entry &entry : entries) {
        const bool real = entry.type == 's' || entry.type == 'd';
        if (!real || entry.form == Form::strided || entry.shape == Shape::pack) continue;
        bool found = false;
        for (const Subject &subject : subjects) found = found || subject.function == entry.function;
        if (!found) return false;
    }
    return true;
}
static_assert(every_function_is_a_subject());
static_assert([] {
    for (const Subject &subject : subjects)
        if (find_entry('d', subject.function) == nullptr || find_entry('s', subject.function) == nullptr) return false;
    return true;
}());

}  // namespace qorl::bench

#endif
