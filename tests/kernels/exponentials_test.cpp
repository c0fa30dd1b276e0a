// Special values, thresholds and exact points of the exponential family.
#include <cmath>
#include <cstdint>
#include <functional>
#include <limits>

#include "tests/kernels/special_values.hpp"

namespace qorl::test {
namespace {

constexpr Row rows[] = {
    {"Exp Exp2 Exp10 Expm1 Cosh Sinh Tanh", "sd", {nan}, nan, 0},
    {"Exp Exp2 Exp10 Expm1 Cosh Sinh Tanh", "sd", {-nan}, nan, 0},
    {"Exp Exp2 Exp10 Expm1 Cosh Sinh", "sd", {inf}, inf, 0},
    {"Exp Exp2 Exp10", "sd", {-inf}, 0, 0},
    {"Expm1 Tanh", "sd", {-inf}, -1, 0},
    {"Cosh", "sd", {-inf}, inf, 0},
    {"Sinh", "sd", {-inf}, -inf, 0},
    {"Tanh", "sd", {inf}, 1, 0},

    {"Exp Exp2 Exp10 Cosh", "sd", {0.0}, 1, 0},
    {"Exp Exp2 Exp10 Cosh", "sd", {-0.0}, 1, 0},
    {"Expm1 Sinh Tanh", "sd", {0.0}, 0.0, 0},
    {"Expm1 Sinh Tanh", "sd", {-0.0}, -0.0, 0},

    {"Exp Exp2 Exp10 Cosh", "s", {FLT_TRUE_MIN}, 1, 0},
    {"Exp Exp2 Exp10 Cosh", "s", {-FLT_MIN / 2}, 1, 0},
    {"Exp Exp2 Exp10 Cosh", "d", {DBL_TRUE_MIN}, 1, 0},
    {"Exp Exp2 Exp10 Cosh", "d", {-DBL_MIN / 2}, 1, 0},
    {"Expm1 Sinh Tanh", "s", {FLT_TRUE_MIN}, near, 0},
    {"Expm1 Sinh Tanh", "s", {-FLT_MIN / 2}, near, 0},
    {"Expm1 Sinh Tanh", "s", {FLT_MIN}, near, 0},
    {"Expm1 Sinh Tanh", "d", {DBL_TRUE_MIN}, near, 0},
    {"Expm1 Sinh Tanh", "d", {-DBL_MIN / 2}, near, 0},
    {"Expm1 Sinh Tanh", "d", {DBL_MIN}, near, 0},
    {"Expm1 Sinh Tanh", "sd", {0x1p-30}, near, 0},
    {"Expm1 Sinh Tanh", "sd", {-0x1p-60}, near, 0},

    {"Exp Exp2 Exp10 Expm1 Cosh Sinh", "s", {FLT_MAX}, inf, 3},
    {"Exp Exp2 Exp10 Expm1 Cosh Sinh", "d", {DBL_MAX}, inf, 3},
    {"Exp Exp2 Exp10 Expm1 Cosh Sinh", "d", {1e15}, inf, 3},
    {"Exp Exp2 Exp10 Expm1 Cosh Sinh", "sd", {2000}, inf, 3},
    {"Exp Exp2 Exp10", "s", {-FLT_MAX}, 0, 4},
    {"Exp Exp2 Exp10", "d", {-DBL_MAX}, 0, 4},
    {"Exp Exp2 Exp10", "d", {-1e17}, 0, 4},
    {"Exp Exp2 Exp10", "sd", {-2000}, 0, 4},
    {"Expm1", "sd", {-1000}, -1, 0},
    {"Expm1", "s", {-FLT_MAX}, -1, 0},
    {"Expm1", "d", {-DBL_MAX}, -1, 0},
    {"Cosh", "d", {-DBL_MAX}, inf, 3},
    {"Sinh", "d", {-DBL_MAX}, -inf, 3},
    {"Cosh", "s", {-FLT_MAX}, inf, 3},
    {"Sinh", "s", {-FLT_MAX}, -inf, 3},
    {"Tanh", "sd", {1e30}, 1, 0},
    {"Tanh", "sd", {-1e30}, -1, 0},
    {"Tanh", "d", {1e300}, 1, 0},

    {"Exp", "d", {709.782712893384}, near, 0},
    {"Exp", "d", {0x1.62e42fefa39fp+9}, inf, 3},  // the next one
    {"Exp", "d", {708.4}, near, 0},
    {"Exp", "d", {-745.1332191019411}, DBL_TRUE_MIN, 4},
    {"Exp", "d", {-0x1.74910d52d3052p+9}, 0, 4},
    {"Exp", "s", {0x1.62e42ep+6}, near, 0},  // 88.72283
    {"Exp", "s", {0x1.62e43p+6}, inf, 3},
    {"Exp", "s", {-0x1.9fe368p+6}, near, 4},  // -103.97208
    {"Exp", "s", {-0x1.9fe36ap+6}, 0, 4},
    {"Exp2", "d", {1023.5}, near, 0},
    {"Exp2", "d", {-1074}, DBL_TRUE_MIN, 4},
    {"Exp2", "d", {-1075}, 0, 4},
    {"Exp2", "s", {-149}, FLT_TRUE_MIN, 4},
    {"Exp2", "s", {-150}, 0, 4},
    {"Cosh Sinh", "d", {710.4}, near, 0},
};

// The last x, going from `inside` to `outside`, for which the statement holds.
template <class T>
T last(T inside, T outside, const std::function<bool(T)> &holds) {
    for (;;) {
        const T middle = inside / 2 + outside / 2;
        if (middle == inside || middle == outside || std::nextafter(inside, outside) == outside) break;
        (holds(middle) ? inside : outside) = middle;
    }
    while (holds(std::nextafter(inside, outside))) inside = std::nextafter(inside, outside);
    return inside;
}

// Overflow and underflow begin where the exact result leaves the range of the type, on either side of that number.
template <class T>
void check_thresholds(const Function &function, bool negative_overflows, bool underflows) {
    using L = std::numeric_limits<T>;
    const auto value = [&](T x) { return exact(function, x); };
    const auto is_finite = [&](T x) { return std::isfinite(static_cast<T>(value(x))); };
    const auto is_normal = [&](T x) { return value(x) >= static_cast<long double>(L::min()); };
    const auto is_positive = [&](T x) { return static_cast<T>(value(x)) > 0; };
    const auto sweep = [&](T from, T to, std::int32_t status) {
        for (int i = 0; i <= 200 && !testing::Test::HasFailure(); ++i)
            check<T>(function, from + (to - from) * static_cast<T>(i / 200.0), 0, near, status, Lanes::some);
    };
    for (const T sign : {T(1), T(-1)}) {
        if (sign < 0 && !negative_overflows) continue;
        const T top = last<T>(sign, sign * 2000, is_finite), beyond = std::nextafter(top, sign * 2000);
        check<T>(function, top, 0, near, 0);
        check<T>(function, beyond, 0, static_cast<double>(static_cast<T>(value(beyond))), 3);
        sweep(top * T(0.97), top, 0);
    }
    if (!underflows) return;
    const T least_normal = last<T>(-1, -2000, is_normal), least = last<T>(-1, -2000, is_positive);
    check<T>(function, least_normal, 0, near, 0);
    check<T>(function, std::nextafter(least_normal, T(-2000)), 0, near, 4);
    check<T>(function, least, 0, near, 4);
    check<T>(function, std::nextafter(least, T(-2000)), 0, 0, 4);
    sweep(least_normal * T(0.97), least_normal, 0);
    sweep(std::nextafter(least_normal, T(-2000)), least, 4);
}

class Ranged : public testing::TestWithParam<Function> {};

TEST_P(Ranged, ThresholdsStandWhereTheExactResultLeavesTheRange) {
    const Function &function = GetParam();
    const bool negative = lists("Cosh Sinh", function.name), underflows = lists("Exp Exp2 Exp10", function.name);
    in_fresh_thread(
        [&] { for_type(function, [&]<class T>(T) { check_thresholds<T>(function, negative, underflows); }); });
}

INSTANTIATE_TEST_SUITE_P(Landed, Ranged, testing::ValuesIn(landed("Exp Exp2 Exp10 Expm1 Cosh Sinh")), case_name);

TEST(Exp2, IsExactForIntegers) {
    for (const Function &function : landed("Exp2")) {
        in_fresh_thread([&] {
            for_type(function, [&]<class T>(T) {
                using L = std::numeric_limits<T>;
                std::vector<T> x;
                for (int i = L::min_exponent - L::digits; i < L::max_exponent; ++i) x.push_back(static_cast<T>(i));
                for (const Level level : levels) {
                    const std::vector<T> y = results(function, level, x);
                    for (std::size_t i = 0; i < x.size(); ++i)
                        EXPECT_EQ(y[i], std::ldexp(T(1), static_cast<int>(x[i])));
                }
            });
        });
    }
}

}  // namespace

extern const std::span<const Row> exponential_rows = rows;

}  // namespace qorl::test
