// Special values and statuses of the kernels, at every level and in every lane of blocks and tail.
#include "tests/kernels/special_values.hpp"

#include <mpfr.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <random>
#include <stdexcept>
#include <string>

#include "tools/reference/formula.hpp"
#include "tools/reference/real.hpp"

namespace qorl::test {
namespace {

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

// The lanes of two blocks of the widest kernels, of a whole register behind them and of a partial one.
constexpr std::int32_t length = 75;
const std::vector<int> every_lane = [] {
    std::vector<int> lanes(length);
    std::iota(lanes.begin(), lanes.end(), 0);
    return lanes;
}();
const std::vector<int> some_lanes = {2, length - 1};

}  // namespace

bool lists(std::string_view names, std::string_view name) {
    for (std::size_t begin = 0; begin < names.size();) {
        const std::size_t end = std::min(names.find(' ', begin), names.size());
        if (names.substr(begin, end - begin) == name) return true;
        begin = end + 1;
    }
    return false;
}

std::vector<Function> landed(std::string_view names) {
    std::vector<Function> list;
    for (const Function &function : functions)
        if (lists(names, function.name)) list.push_back(function);
    return list;
}

long double exact(const Function &function, double a, double b) {
    const reference::Formula *const formula = reference::find_formula(function.name);
    if (formula == nullptr) throw std::invalid_argument(std::string(function.name) + " has no reference");
    reference::Real x(53), z(53), y(64);
    mpfr_set_d(x, a, MPFR_RNDN);
    mpfr_set_d(z, b, MPFR_RNDN);
    formula->exact(y, {x, z, function.type});
    return mpfr_get_ld(y, MPFR_RNDN);
}

template <class T>
void check(const Function &function, T a, T b, double expected, std::int32_t status, Lanes which,
           const char *levels_to_check) {
    const Entry &unit = *find_entry(function.type, function.name), &strided = *strided_twin(unit);
    const long double value = expected == near ? exact(function, a, b) : 0;
    const auto is_expected = [&](T y, Level level) {
        if (std::isnan(expected)) return std::isnan(y);
        if (expected == near) return is_near(y, value, level);
        return bits(y) == bits(static_cast<T>(expected));
    };
    // Beside a scalar argument of any value only 1 is ordinary.
    const T ordinary_a = unit.shape == Shape::array_scalar ? T(1) : T(0.5), ordinary_b = T(0.75);
    for (const Level level : levels) {
        if (!lists(levels_to_check, level_names[static_cast<int>(level)])) continue;
        T usual, result{};
        call(unit, level, 1, Arguments<T>{{&ordinary_a, &ordinary_b}, {&usual}, {1, 1}, {1}, {b}});
        for (const Entry *entry : {&unit, &strided}) {
            const std::int32_t in = entry == &unit ? 1 : 2, out = entry == &unit ? 1 : 3;
            std::vector<T> as(length * in, ordinary_a), bs(length * in, ordinary_b), y(length * out);
            const std::vector<int> &lanes = which == Lanes::every ? every_lane : some_lanes;
            for (const std::uint32_t error_mode : {0x100u, 0x2000u}) {
                _zetSetMode(error_mode);
                for (const int lane : lanes) {
                    as[lane * in] = a;
                    bs[lane * in] = b;
                    std::fill(y.begin(), y.end(), T(-7));
                    _zetClearErrStatus();
                    call(*entry, level, length, Arguments<T>{{as.data(), bs.data()}, {y.data()}, {in, in}, {out}, {b}});
                    as[lane * in] = ordinary_a;
                    bs[lane * in] = ordinary_b;
                    if (error_mode == 0x100 && lane == lanes[0]) result = y[lane * out];
                    bool others_are_usual = true;
                    for (int i = 0; i < length; ++i)
                        if (i != lane) others_are_usual &= bits(y[i * out]) == bits(usual);
                    const std::int32_t expected_status = error_mode == 0x100 ? status : 0;
                    if (is_expected(y[lane * out], level) && others_are_usual && bits(y[lane * out]) == bits(result) &&
                        _zetGetErrStatus() == expected_status)
                        continue;
                    ADD_FAILURE() << name_of(function) << "(" << a << ", " << b << std::hexfloat << " = " << a << ", "
                                  << b << ") " << level_names[static_cast<int>(level)]
                                  << (entry == &unit ? " unit" : " strided") << std::hex << " error mode " << error_mode
                                  << std::dec << " lane " << lane << ": result " << y[lane * out] << " status "
                                  << _zetGetErrStatus() << ", expected "
                                  << (expected == near ? static_cast<double>(value) : expected) << " status "
                                  << expected_status << (others_are_usual ? "" : "; other lanes are disturbed");
                    return;
                }
            }
        }
    }
}
template void check(const Function &, float, float, double, std::int32_t, Lanes, const char *);
template void check(const Function &, double, double, double, std::int32_t, Lanes, const char *);

namespace {

const std::array families = {exponential_rows, logarithm_rows, power_rows, root_rows, arithmetic_rows};

class Special : public testing::TestWithParam<Function> {};

TEST_P(Special, ValuesAndStatusesStandInEveryLane) {
    in_fresh_thread([] {
        int rows_of_function = 0;
        for (const std::span<const Row> rows : families) {
            for (const Row &row : rows) {
                if (!lists(row.functions, GetParam().name) ||
                    std::string_view(row.types).find(GetParam().type) == std::string_view::npos)
                    continue;
                ++rows_of_function;
                for_type(GetParam(), [&]<class T>(T) {
                    check<T>(GetParam(), static_cast<T>(row.in[0]), static_cast<T>(row.in[1]), row.expected, row.status,
                             Lanes::every, row.levels);
                });
            }
        }
        EXPECT_GT(rows_of_function, 0) << "the function has no special values in any family's rows";
    });
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

constexpr const char *odd_functions =
    "Sin Tan Asin Atan Sinh Tanh Asinh Atanh Cbrt InvCbrt Erf ErfInv Sinpi Tanpi Sind Tand";
constexpr const char *even_functions = "Abs Cos Cosh Cospi Cosd Sqr Pow2o3";

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

INSTANTIATE_TEST_SUITE_P(Landed, Special, testing::ValuesIn(functions), case_name);
INSTANTIATE_TEST_SUITE_P(Landed, NaN,
                         testing::ValuesIn(landed("Exp Exp2 Exp10 Expm1 Cosh Sinh Tanh Cbrt InvCbrt Pow2o3")),
                         case_name);
INSTANTIATE_TEST_SUITE_P(Odd, Parity, testing::ValuesIn(landed(odd_functions)), case_name);
INSTANTIATE_TEST_SUITE_P(Even, Parity, testing::ValuesIn(landed(even_functions)), case_name);

}  // namespace
}  // namespace qorl::test
