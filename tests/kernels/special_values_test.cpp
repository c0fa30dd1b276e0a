// Special values, ranges and statuses of the kernels, at every level and in every lane of blocks and tail.
#include <gtest/gtest.h>

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <cstdint>
#include <functional>
#include <limits>
#include <numeric>
#include <random>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "qorl/zet.h"
#include "tests/frame/any_shape.hpp"
#include "tests/frame/fresh_thread.hpp"

namespace {

using qorl::Entry;
using qorl::Form;
using qorl::Function;
using qorl::Level;
using namespace qorl::test;

constexpr double inf = std::numeric_limits<double>::infinity(), nan = std::numeric_limits<double>::quiet_NaN();
constexpr double near = 0x1.2468p-999;  // as an expected value: what the reference gives, within the level's error

// Independent values, to 64 bits.
long double reference(std::string_view function, long double x) {
    static constexpr struct {
        std::string_view function;
        long double (*value)(long double);
    } references[] = {
        {"Exp", expl},     {"Exp2", exp2l}, {"Exp10", [](long double t) { return powl(10, t); }},
        {"Expm1", expm1l}, {"Cosh", coshl}, {"Sinh", sinhl},
        {"Tanh", tanhl},
    };
    for (const auto &row : references)
        if (row.function == function) return row.value(x);
    throw std::invalid_argument(std::string(function) + " has no reference");
}

// Whether y is x to within one unit of the last place at HA, four at LA, and half the bits at EP.
template <class T>
bool is_near(T y, long double x, Level level) {
    using L = std::numeric_limits<T>;
    if (!std::isfinite(y)) return false;
    int exponent;
    std::frexp(x, &exponent);
    const long double unit = std::ldexp(1.0L, std::max(exponent, L::min_exponent) - L::digits);
    const long double relative = sizeof(T) == 4 ? 0x1p-11L : 0x1p-26L;
    const long double bound = level == Level::HA   ? unit
                              : level == Level::LA ? 4 * unit
                                                   : std::max(unit, relative * std::abs(x));
    return std::abs(y - x) <= bound;
}

template <class T>
bool is_expected(T y, std::string_view function, T x, double expected, Level level) {
    if (std::isnan(expected)) return std::isnan(y);
    if (expected == near) return is_near(y, reference(function, x), level);
    return bits(y) == bits(static_cast<T>(expected));
}

// The lanes of two blocks of the widest kernels, of a whole register behind them and of a partial one.
std::vector<int> all_lanes() {
    std::vector<int> lanes(75);
    std::iota(lanes.begin(), lanes.end(), 0);
    return lanes;
}
const std::vector<int> every_lane = all_lanes(), some_lanes = {2, 74};

// Puts x into one lane after another between ordinary values; the result and the status must be the expected ones each
// time, and without error handling the same result with no status.
template <class T>
void check(const Function &function, T x, double expected, std::int32_t status,
           const std::vector<int> &lanes = every_lane) {
    constexpr std::int32_t n = 75;
    constexpr T ordinary = T(0.5);
    const Entry &unit = *qorl::find_entry(function.type, function.name), &strided = *qorl::strided_twin(unit);
    for (const Level level : levels) {
        T usual, result{};
        call(unit, level, 1, Arguments<T>{{&ordinary}, {&usual}});
        for (const Entry *entry : {&unit, &strided}) {
            const std::int32_t in = entry == &unit ? 1 : 2, out = entry == &unit ? 1 : 3;
            std::vector<T> a(n * in, ordinary), y(n * out);
            for (const std::uint32_t error_mode : {0x100u, 0x2000u}) {
                _zetSetMode(error_mode);
                for (const int lane : lanes) {
                    a[lane * in] = x;
                    std::fill(y.begin(), y.end(), T(-7));
                    _zetClearErrStatus();
                    call(*entry, level, n, Arguments<T>{{a.data()}, {y.data()}, {in}, {out}});
                    a[lane * in] = ordinary;
                    if (error_mode == 0x100 && lane == lanes[0]) result = y[lane * out];
                    bool others_are_usual = true;
                    for (int i = 0; i < n; ++i)
                        if (i != lane) others_are_usual &= bits(y[i * out]) == bits(usual);
                    const std::int32_t expected_status = error_mode == 0x100 ? status : 0;
                    if (is_expected(y[lane * out], function.name, x, expected, level) && others_are_usual &&
                        bits(y[lane * out]) == bits(result) && _zetGetErrStatus() == expected_status)
                        continue;
                    ADD_FAILURE() << name_of(function) << "(" << x << std::hexfloat << " = " << x << ") "
                                  << level_names[static_cast<int>(level)] << (entry == &unit ? " unit" : " strided")
                                  << std::hex << " error mode " << error_mode << std::dec << " lane " << lane
                                  << ": result " << y[lane * out] << " status " << _zetGetErrStatus() << ", expected "
                                  << (expected == near ? static_cast<double>(reference(function.name, x)) : expected)
                                  << " status " << expected_status
                                  << (others_are_usual ? "" : "; other lanes are disturbed");
                    return;
                }
            }
        }
    }
}

void check(const Function &function, double x, double expected, std::int32_t status,
           const std::vector<int> &lanes = every_lane) {
    for_type(function, [&]<class T>(T) { check<T>(function, static_cast<T>(x), expected, status, lanes); });
}

bool lists(std::string_view names, std::string_view name) {  // names parted by blanks
    for (std::size_t begin = 0; begin < names.size();) {
        const std::size_t end = std::min(names.find(' ', begin), names.size());
        if (names.substr(begin, end - begin) == name) return true;
        begin = end + 1;
    }
    return false;
}

// Results that a level is free to miss by its error are `near`; 0 stands for +0.
struct Row {
    const char *functions;
    const char *types;
    double x, expected;
    std::int32_t status;
};
const Row rows[] = {
    {"Exp Exp2 Exp10 Expm1 Cosh Sinh Tanh Abs", "sd", nan, nan, 0},
    {"Exp Exp2 Exp10 Expm1 Cosh Sinh Tanh Abs", "sd", -nan, nan, 0},
    {"Exp Exp2 Exp10 Expm1 Cosh Sinh Abs", "sd", inf, inf, 0},
    {"Exp Exp2 Exp10", "sd", -inf, 0, 0},
    {"Expm1 Tanh", "sd", -inf, -1, 0},
    {"Cosh Abs", "sd", -inf, inf, 0},
    {"Sinh", "sd", -inf, -inf, 0},
    {"Tanh", "sd", inf, 1, 0},

    {"Exp Exp2 Exp10 Cosh", "sd", 0.0, 1, 0},
    {"Exp Exp2 Exp10 Cosh", "sd", -0.0, 1, 0},
    {"Expm1 Sinh Tanh Abs", "sd", 0.0, 0.0, 0},
    {"Expm1 Sinh Tanh", "sd", -0.0, -0.0, 0},
    {"Abs", "sd", -0.0, 0.0, 0},

    {"Exp Exp2 Exp10 Cosh", "s", FLT_TRUE_MIN, 1, 0},
    {"Exp Exp2 Exp10 Cosh", "s", -FLT_MIN / 2, 1, 0},
    {"Exp Exp2 Exp10 Cosh", "d", DBL_TRUE_MIN, 1, 0},
    {"Exp Exp2 Exp10 Cosh", "d", -DBL_MIN / 2, 1, 0},
    {"Expm1 Sinh Tanh", "s", FLT_TRUE_MIN, near, 0},
    {"Expm1 Sinh Tanh", "s", -FLT_MIN / 2, near, 0},
    {"Expm1 Sinh Tanh", "s", FLT_MIN, near, 0},
    {"Expm1 Sinh Tanh", "d", DBL_TRUE_MIN, near, 0},
    {"Expm1 Sinh Tanh", "d", -DBL_MIN / 2, near, 0},
    {"Expm1 Sinh Tanh", "d", DBL_MIN, near, 0},
    {"Expm1 Sinh Tanh", "sd", 0x1p-30, near, 0},
    {"Expm1 Sinh Tanh", "sd", -0x1p-60, near, 0},

    {"Exp Exp2 Exp10 Expm1 Cosh Sinh", "s", FLT_MAX, inf, 3},
    {"Exp Exp2 Exp10 Expm1 Cosh Sinh", "d", DBL_MAX, inf, 3},
    {"Exp Exp2 Exp10 Expm1 Cosh Sinh", "d", 1e15, inf, 3},
    {"Exp Exp2 Exp10 Expm1 Cosh Sinh", "sd", 2000, inf, 3},
    {"Exp Exp2 Exp10", "s", -FLT_MAX, 0, 4},
    {"Exp Exp2 Exp10", "d", -DBL_MAX, 0, 4},
    {"Exp Exp2 Exp10", "d", -1e17, 0, 4},
    {"Exp Exp2 Exp10", "sd", -2000, 0, 4},
    {"Expm1", "sd", -1000, -1, 0},
    {"Expm1", "s", -FLT_MAX, -1, 0},
    {"Expm1", "d", -DBL_MAX, -1, 0},
    {"Cosh", "d", -DBL_MAX, inf, 3},
    {"Sinh", "d", -DBL_MAX, -inf, 3},
    {"Cosh", "s", -FLT_MAX, inf, 3},
    {"Sinh", "s", -FLT_MAX, -inf, 3},
    {"Tanh", "sd", 1e30, 1, 0},
    {"Tanh", "sd", -1e30, -1, 0},
    {"Tanh", "d", 1e300, 1, 0},

    {"Exp", "d", 709.782712893384, near, 0},
    {"Exp", "d", 0x1.62e42fefa39fp+9, inf, 3},  // the next one
    {"Exp", "d", 708.4, near, 0},
    {"Exp", "d", -745.1332191019411, DBL_TRUE_MIN, 4},
    {"Exp", "d", -0x1.74910d52d3052p+9, 0, 4},
    {"Exp", "s", 0x1.62e42ep+6, near, 0},  // 88.72283
    {"Exp", "s", 0x1.62e43p+6, inf, 3},
    {"Exp", "s", -0x1.9fe368p+6, near, 4},  // -103.97208
    {"Exp", "s", -0x1.9fe36ap+6, 0, 4},
    {"Exp2", "d", 1023.5, near, 0},
    {"Exp2", "d", -1074, DBL_TRUE_MIN, 4},
    {"Exp2", "d", -1075, 0, 4},
    {"Exp2", "s", -149, FLT_TRUE_MIN, 4},
    {"Exp2", "s", -150, 0, 4},
    {"Cosh Sinh", "d", 710.4, near, 0},
    {"Abs", "d", -DBL_TRUE_MIN, DBL_TRUE_MIN, 0},
    {"Abs", "s", -FLT_MAX, FLT_MAX, 0},
};

class Special : public testing::TestWithParam<Function> {};

TEST_P(Special, ValuesAndStatusesStandInEveryLane) {
    in_fresh_thread([] {
        for (const Row &row : rows)
            if (lists(row.functions, GetParam().name) &&
                std::string_view(row.types).find(GetParam().type) != std::string_view::npos)
                check(GetParam(), row.x, row.expected, row.status);
    });
}

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
    const auto value = [&](T x) { return reference(function.name, x); };
    const auto is_finite = [&](T x) { return std::isfinite(static_cast<T>(value(x))); };
    const auto is_normal = [&](T x) { return value(x) >= static_cast<long double>(L::min()); };
    const auto is_positive = [&](T x) { return static_cast<T>(value(x)) > 0; };
    const auto sweep = [&](T from, T to, std::int32_t status) {
        for (int i = 0; i <= 200 && !testing::Test::HasFailure(); ++i)
            check<T>(function, from + (to - from) * static_cast<T>(i / 200.0), near, status, some_lanes);
    };
    for (const T sign : {T(1), T(-1)}) {
        if (sign < 0 && !negative_overflows) continue;
        const T top = last<T>(sign, sign * 2000, is_finite), beyond = std::nextafter(top, sign * 2000);
        check<T>(function, top, near, 0);
        check<T>(function, beyond, static_cast<double>(static_cast<T>(value(beyond))), 3);
        sweep(top * T(0.97), top, 0);
    }
    if (!underflows) return;
    const T least_normal = last<T>(-1, -2000, is_normal), least = last<T>(-1, -2000, is_positive);
    check<T>(function, least_normal, near, 0);
    check<T>(function, std::nextafter(least_normal, T(-2000)), near, 4);
    check<T>(function, least, near, 4);
    check<T>(function, std::nextafter(least, T(-2000)), 0, 4);
    sweep(least_normal * T(0.97), least_normal, 0);
    sweep(std::nextafter(least_normal, T(-2000)), least, 4);
}

class Ranged : public Special {};

TEST_P(Ranged, ThresholdsStandWhereTheExactResultLeavesTheRange) {
    const Function &function = GetParam();
    const bool negative = lists("Cosh Sinh", function.name), underflows = lists("Exp Exp2 Exp10", function.name);
    in_fresh_thread(
        [&] { for_type(function, [&]<class T>(T) { check_thresholds<T>(function, negative, underflows); }); });
}

// The results of n arguments at one level.
template <class T>
std::vector<T> results(const Function &function, Level level, const std::vector<T> &x) {
    std::vector<T> y(x.size());
    call(*qorl::find_entry(function.type, function.name), level, static_cast<std::int32_t>(x.size()),
         Arguments<T>{{x.data()}, {y.data()}});
    return y;
}

class NaN : public Special {};

TEST_P(NaN, KeepsItsPayloadAndIsQuietedAndRaisesNothing) {
    const Function &function = GetParam();
    in_fresh_thread([&] {
        for_type(function, [&]<class T>(T) {
            using Bits = BitsOf<T>;
            constexpr Bits payload = 0x12345, quiet = Bits{1} << (sizeof(T) == 4 ? 22 : 51), top = ~(~Bits{0} >> 1);
            const Bits infinite = bits(std::numeric_limits<T>::infinity());
            for (const Bits sign : {Bits{0}, top}) {
                for (const Level level : levels) {
                    for (const Bits kind : {Bits{0}, quiet}) {
                        const std::vector<T> x(75, from_bits<T>(infinite | kind | payload | sign));
                        for (const T y : results(function, level, x)) {
                            ASSERT_EQ(bits(y), infinite | quiet | payload | sign)
                                << level_names[static_cast<int>(level)] << (kind == 0 ? " signalling" : " quiet");
                        }
                        EXPECT_EQ(_zetGetErrStatus(), 0);
                    }
                }
            }
        });
    });
}

class Parity : public Special {};

constexpr const char *odd_functions = "Sin Tan Asin Atan Sinh Tanh Asinh Atanh Cbrt Erf ErfInv Sinpi Tanpi Sind Tand";
constexpr const char *even_functions = "Abs Cos Cosh Cospi Cosd Sqr";

TEST_P(Parity, HoldsBitForBit) {
    const Function &function = GetParam();
    const bool odd = lists(odd_functions, function.name);
    in_fresh_thread([&] {
        _zetSetMode(0x100);
        for_type(function, [&]<class T>(T) {
            std::mt19937_64 random(1);
            std::vector<T> x, minus_x;
            while (x.size() < 20000) {
                const T any = x.size() % 2 == 0
                                  ? from_bits<T>(static_cast<BitsOf<T>>(random()))
                                  : static_cast<T>(std::ldexp(static_cast<double>(random() % 100000), -8));
                if (std::isnan(any)) continue;
                x.push_back(any);
                minus_x.push_back(-any);
            }
            for (const Level level : levels) {
                const std::vector<T> y = results(function, level, x), z = results(function, level, minus_x);
                for (std::size_t i = 0; i < x.size(); ++i) {
                    const T expected = odd ? -y[i] : y[i];
                    if (std::isnan(expected) && std::isnan(z[i])) continue;
                    ASSERT_EQ(bits(z[i]), bits(expected))
                        << std::hexfloat << -x[i] << ' ' << level_names[static_cast<int>(level)];
                }
            }
        });
    });
}

std::vector<Function> landed(std::string_view names) {
    std::vector<Function> list;
    for (const Function &function : qorl::functions)
        if (names == "all" || lists(names, function.name)) list.push_back(function);
    return list;
}
std::string case_name(const testing::TestParamInfo<Function> &test) {
    return name_of(test.param);
}
INSTANTIATE_TEST_SUITE_P(Landed, Special, testing::ValuesIn(landed("all")), case_name);
INSTANTIATE_TEST_SUITE_P(Landed, Ranged, testing::ValuesIn(landed("Exp Exp2 Exp10 Expm1 Cosh Sinh")), case_name);
INSTANTIATE_TEST_SUITE_P(Landed, NaN, testing::ValuesIn(landed("Exp Exp2 Exp10 Expm1 Cosh Sinh Tanh")), case_name);
INSTANTIATE_TEST_SUITE_P(Odd, Parity, testing::ValuesIn(landed(odd_functions)), case_name);
INSTANTIATE_TEST_SUITE_P(Even, Parity, testing::ValuesIn(landed(even_functions)), case_name);

TEST(Exp2, IsExactForIntegers) {
    for (const Function &function : qorl::functions) {
        if (function.name != "Exp2") continue;
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

// The sum that quiets a signalling NaN stands in the block loop; the tail clears the sign and nothing else.
TEST(Abs, QuietsSignallingNaNInBlocksOnly) {
    constexpr std::uint64_t signalling = 0xFFF0000000000123, quiet_bit = 0x0008000000000000;
    const std::vector<double> x(16 + 3, from_bits<double>(signalling));
    const std::vector<double> y = results({'d', "Abs", 0, 0, 0}, Level::HA, x);
    for (std::size_t i = 0; i < y.size(); ++i)
        EXPECT_EQ(bits(y[i]), (signalling & ~(1ull << 63)) | (i < 16 ? quiet_bit : 0)) << i;
}

}  // namespace
