// The harness of the special-value tests. A family's file lists rows (arguments, result, status) and holds the tests
// that are particular to its functions; the rows of all families run in special_values.cpp.
#ifndef QORL_TESTS_KERNELS_SPECIAL_VALUES_HPP
#define QORL_TESTS_KERNELS_SPECIAL_VALUES_HPP

#include <gtest/gtest.h>

#include <cfloat>
#include <cstdint>
#include <limits>
#include <span>
#include <string_view>
#include <vector>

#include "qorl/zet.h"
#include "tests/frame/any_shape.hpp"
#include "tests/frame/fresh_thread.hpp"

namespace qorl::test {

inline constexpr double inf = std::numeric_limits<double>::infinity(), nan = std::numeric_limits<double>::quiet_NaN();
// As an expected result: what the high-precision reference gives, within the level's error.
inline constexpr double near = 0x1.2468p-999;

// What functions give for an argument or two. A result that a level is free to miss by its error is `near`; 0 stands
// for +0. The arguments are rounded to the type.
struct Row {
    const char *functions;  // names parted by blanks
    const char *types;      // "s", "d" or "sd"
    double in[2];           // the second of functions of two arguments only
    double expected;
    std::int32_t status;
    const char *levels = "LA HA EP";
};

// The rows of the families.
extern const std::span<const Row> exponential_rows, logarithm_rows, power_rows, root_rows, arithmetic_rows;

bool lists(std::string_view names, std::string_view name);  // whether `name` is one of the names

// The functions of these names whose kernels stand.
std::vector<Function> landed(std::string_view names);

// Name of a test of one function.
inline std::string case_name(const testing::TestParamInfo<Function> &test) {
    return name_of(test.param);
}

// The exact result, by the high-precision reference of tools/reference rounded to 64 bits.
long double exact(const Function &function, double a, double b = 0);

// Puts the arguments into one lane after another between ordinary values, unit-stride and strided: the result and the
// status must be the expected ones each time, and without error handling the same result with no status.
enum class Lanes { every, some };
template <class T>
void check(const Function &function, T a, T b, double expected, std::int32_t status, Lanes lanes = Lanes::every,
           const char *levels_to_check = "LA HA EP");
extern template void check(const Function &, float, float, double, std::int32_t, Lanes, const char *);
extern template void check(const Function &, double, double, double, std::int32_t, Lanes, const char *);

// The results of n arguments at one level, of a function of one argument.
template <class T>
std::vector<T> results(const Function &function, Level level, const std::vector<T> &x) {
    std::vector<T> y(x.size());
    call(*find_entry(function.type, function.name), level, static_cast<std::int32_t>(x.size()),
         Arguments<T>{{x.data()}, {y.data()}});
    return y;
}

}  // namespace qorl::test

#endif
