// Special values, thresholds and exact points of the power functions.
#include <cmath>

#include "tests/kernels/special_values.hpp"

namespace qorl::test {
namespace {

constexpr Row rows[] = {
    // 1 and zero exponents win over everything, a NaN included.
    {"Pow", "sd", {1, nan}, 1, 0},
    {"Pow", "sd", {1, inf}, 1, 0},
    {"Pow", "sd", {1, -inf}, 1, 0},
    {"Pow", "sd", {1, 3e38}, 1, 0},
    {"Pow", "sd", {nan, 0.0}, 1, 0},
    {"Pow", "sd", {nan, -0.0}, 1, 0},
    {"Pow", "sd", {0.0, 0.0}, 1, 0},
    {"Pow", "sd", {-0.0, -0.0}, 1, 0},
    {"Pow", "sd", {-5, 0.0}, 1, 0},
    {"Pow", "sd", {5, -0.0}, 1, 0},
    {"Pow", "sd", {inf, 0.0}, 1, 0},
    {"Pow", "sd", {-inf, -0.0}, 1, 0},

    {"Pow", "sd", {nan, 2}, nan, 0},
    {"Pow", "sd", {nan, inf}, nan, 0},
    {"Pow", "sd", {2, nan}, nan, 0},
    {"Pow", "sd", {0.0, nan}, nan, 0},
    {"Pow", "sd", {-1, nan}, nan, 0},
    {"Pow", "sd", {-2, nan}, nan, 0},
    {"Pow", "sd", {inf, nan}, nan, 0},
    {"Pow", "sd", {-inf, -nan}, nan, 0},

    // A pole raises 1, not 2.
    {"Pow", "sd", {0.0, -1}, inf, 1},
    {"Pow", "sd", {-0.0, -1}, -inf, 1},
    {"Pow", "sd", {-0.0, -3}, -inf, 1},
    {"Pow", "sd", {-0.0, -2}, inf, 1},
    {"Pow", "sd", {-0.0, -0.5}, inf, 1},
    {"Pow", "sd", {0.0, -1e-30}, inf, 1},
    {"Pow", "sd", {0.0, -inf}, inf, 1},
    {"Pow", "sd", {-0.0, -inf}, inf, 1},
    {"Pow", "sd", {0.0, 1}, 0.0, 0},
    {"Pow", "sd", {-0.0, 1}, -0.0, 0},
    {"Pow", "sd", {-0.0, 3}, -0.0, 0},
    {"Pow", "sd", {-0.0, 2}, 0.0, 0},
    {"Pow", "sd", {-0.0, 2.5}, 0.0, 0},
    {"Pow", "sd", {-0.0, inf}, 0.0, 0},
    {"Pow", "s", {-0.0, 0x1.fffffep+23}, -0.0, 0},  // the largest odd number
    {"Pow", "s", {-0.0, 0x1p24}, 0.0, 0},
    {"Pow", "d", {-0.0, 0x1.fffffffffffffp+52}, -0.0, 0},
    {"Pow", "d", {-0.0, 0x1p53}, 0.0, 0},

    {"Pow", "sd", {-1, 2}, 1, 0},
    {"Pow", "sd", {-1, 3}, -1, 0},
    {"Pow", "sd", {-1, -3}, -1, 0},
    {"Pow", "sd", {-1, 3e38}, 1, 0},
    {"Pow", "sd", {-1, inf}, 1, 0},
    {"Pow", "sd", {-1, -inf}, 1, 0},
    {"Pow", "s", {-1, 0x1.fffffep+23}, -1, 0},
    {"Pow", "d", {-1, -0x1.fffffffffffffp+52}, -1, 0},

    {"Pow", "sd", {-1, 0.5}, nan, 1},
    {"Pow", "sd", {-8, 1.0 / 3}, nan, 1},
    {"Pow", "sd", {-2, -2.5}, nan, 1},
    {"Pow", "s", {-FLT_TRUE_MIN, 0x1.fffffep-1}, nan, 1},
    {"Pow", "s", {-2, 0x1.fffffep+22}, nan, 1},  // the largest number between integers
    {"Pow", "d", {-2, 0x1.fffffffffffffp+51}, nan, 1},
    {"Pow", "sd", {-8, 3}, -512, 0, "HA"},
    {"Pow", "sd", {-8, 3}, near, 0},
    {"Pow", "sd", {-8, -4}, near, 0},

    {"Pow", "sd", {10, 400}, inf, 3},
    {"Pow", "sd", {0.125, -400}, inf, 3},
    {"Pow", "sd", {-10, 400}, inf, 3},
    {"Pow", "sd", {-10, 401}, -inf, 3},
    {"Pow", "sd", {2, 3e38}, inf, 3},
    {"Pow", "sd", {0.5, -3e38}, inf, 3},
    {"Pow", "sd", {-2, 3e38}, inf, 3},
    {"Pow", "s", {2, 128}, inf, 3},
    {"Pow", "s", {-2, 129}, -inf, 3},
    {"Pow", "s", {FLT_TRUE_MIN, -1}, inf, 3},
    {"Pow", "d", {2, 1024}, inf, 3},
    {"Pow", "d", {-2, 1025}, -inf, 3},
    {"Pow", "d", {DBL_TRUE_MIN, -1}, inf, 3},
    {"Pow", "d", {1e5, 1e300}, inf, 3},

    // Small results raise nothing, denormal numbers and zeros neither.
    {"Pow", "sd", {10, -400}, 0, 0},
    {"Pow", "sd", {-10, -401}, -0.0, 0},
    {"Pow", "sd", {0.5, 3e38}, 0, 0},
    {"Pow", "sd", {2, -3e38}, 0, 0},
    {"Pow", "s", {-0.5, 0x1.fffffep+23}, -0.0, 0},
    {"Pow", "s", {1e-30, 2}, 0, 0},
    {"Pow", "s", {2, -127}, near, 0},
    {"Pow", "s", {3, -90}, near, 0},
    {"Pow", "s", {2, -149}, FLT_TRUE_MIN, 0},
    {"Pow", "s", {-2, -149}, -FLT_TRUE_MIN, 0},
    {"Pow", "s", {2, -150}, 0, 0},
    {"Pow", "d", {1e-300, 2}, 0, 0},
    {"Pow", "d", {2, -1023}, near, 0},
    {"Pow", "d", {3, -670}, near, 0},
    {"Pow", "d", {2, -1074}, DBL_TRUE_MIN, 0},
    {"Pow", "d", {2, -1075}, 0, 0},
    {"Pow", "d", {-0.5, 1e300}, 0, 0},

    // Denormal arguments, and exponents so small that only 1 is left.
    {"Pow", "s", {FLT_TRUE_MIN, 1}, FLT_TRUE_MIN, 0},
    {"Pow", "d", {DBL_TRUE_MIN, 1}, DBL_TRUE_MIN, 0},
    {"Pow Powr", "s", {FLT_TRUE_MIN, 0.5}, near, 0},
    {"Pow Powr", "s", {FLT_MIN / 2, -1}, near, 0},
    {"Pow Powr", "s", {FLT_MIN, -0.25}, near, 0},
    {"Pow", "s", {-FLT_MIN / 2, 1}, near, 0},
    {"Pow Powr", "d", {DBL_TRUE_MIN, 0.5}, near, 0},
    {"Pow Powr", "d", {DBL_MIN / 2, -1}, near, 0},
    {"Pow Powr", "d", {DBL_MIN, -0.25}, near, 0},
    {"Pow", "d", {-DBL_MIN / 2, 1}, near, 0},
    {"Pow", "d", {-DBL_TRUE_MIN, 1}, near, 0},
    {"Pow Powr", "sd", {3, 1e-35}, 1, 0},
    {"Pow Powr", "s", {FLT_TRUE_MIN, -FLT_TRUE_MIN}, 1, 0},
    {"Pow Powr", "d", {DBL_TRUE_MIN, -DBL_TRUE_MIN}, 1, 0},
    {"Pow Powr", "d", {0x1.0000000000001p0, 1e-300}, 1, 0},

    // Next to 1, with results of any size.
    {"Pow Powr", "s", {0x1.fffffep-1, 0x1p30}, near, 0},
    {"Pow Powr", "s", {0x1.000002p+0, -0x1p29}, near, 0},
    {"Pow Powr", "d", {0x1.fffffffffffffp-1, 0x1p62}, near, 0},
    {"Pow Powr", "d", {0x1.0000000000001p+0, -0x1p61}, near, 0},

    {"Pow Powr", "sd", {0.5, inf}, 0, 0},
    {"Pow Powr", "sd", {0.5, -inf}, inf, 0},
    {"Pow Powr", "sd", {2, inf}, inf, 0},
    {"Pow Powr", "sd", {2, -inf}, 0, 0},
    {"Pow Powr", "sd", {inf, 2}, inf, 0},
    {"Pow Powr", "sd", {inf, 0.5}, inf, 0},
    {"Pow Powr", "sd", {inf, -2}, 0, 0},
    {"Pow Powr", "sd", {inf, inf}, inf, 0},
    {"Pow Powr", "sd", {inf, -inf}, 0, 0},
    {"Pow", "sd", {-0.5, inf}, 0, 0},
    {"Pow", "sd", {-0.5, -inf}, inf, 0},
    {"Pow", "sd", {-2, inf}, inf, 0},
    {"Pow", "sd", {-2, -inf}, 0, 0},
    {"Pow", "sd", {-inf, 3}, -inf, 0},
    {"Pow", "sd", {-inf, 2}, inf, 0},
    {"Pow", "sd", {-inf, 0.5}, inf, 0},
    {"Pow", "sd", {-inf, -3}, -0.0, 0},
    {"Pow", "sd", {-inf, -2}, 0, 0},
    {"Pow", "sd", {-inf, -0.5}, 0, 0},
    {"Pow", "sd", {-inf, inf}, inf, 0},
    {"Pow", "sd", {-inf, -inf}, 0, 0},

    // Powr is e^(b log a): the forms 0^0, inf^0 and 1^inf have no value, negative numbers no logarithm.
    {"Powr", "sd", {nan, 0.0}, nan, 0},
    {"Powr", "sd", {-nan, 2}, nan, 0},
    {"Powr", "sd", {inf, 0.0}, nan, 0},
    {"Powr", "sd", {inf, -0.0}, nan, 0},
    {"Powr", "sd", {0.0, 0.0}, nan, 0},
    {"Powr", "sd", {-0.0, -0.0}, nan, 0},
    {"Powr", "sd", {0.0, inf}, 0, 0},
    {"Powr", "sd", {0.0, 2}, 0, 0},
    {"Powr", "sd", {-0.0, 3}, 0, 0},
    {"Powr", "sd", {0.0, -1}, inf, 0},
    {"Powr", "sd", {-0.0, -1}, inf, 0},
    {"Powr", "sd", {-0.0, -inf}, inf, 0},
    {"Powr", "sd", {0.0, nan}, nan, 0},
    {"Powr", "sd", {1, inf}, nan, 0},
    {"Powr", "sd", {1, -inf}, nan, 0},
    {"Powr", "sd", {1, nan}, nan, 0},
    {"Powr", "sd", {1, 3e38}, 1, 0},
    {"Powr", "sd", {1, 0.0}, 1, 0},
    {"Powr", "sd", {-inf, 2}, nan, 1},
    {"Powr", "sd", {-inf, 0.0}, nan, 1},
    {"Powr", "sd", {-8, 3}, nan, 1},
    {"Powr", "sd", {-1, 2}, nan, 1},
    {"Powr", "sd", {-2, 0.0}, nan, 1},
    {"Powr", "sd", {-2, nan}, nan, 1},
    {"Powr", "d", {-DBL_TRUE_MIN, 1}, nan, 1},
    {"Powr", "sd", {5, 0.0}, 1, 0},
    {"Powr", "d", {DBL_TRUE_MIN, -0.0}, 1, 0},
    {"Powr", "sd", {2, nan}, nan, 0},
    {"Powr", "sd", {inf, nan}, nan, 0},
    {"Powr", "sd", {10, 400}, inf, 3},
    {"Powr", "sd", {0.125, -400}, inf, 3},
    {"Powr", "sd", {2, 3e38}, inf, 3},
    {"Powr", "sd", {0.5, -3e38}, inf, 3},
    {"Powr", "sd", {10, -400}, 0, 4},
    {"Powr", "sd", {0.125, 400}, 0, 4},
    {"Powr", "sd", {2, -3e38}, 0, 4},
    {"Powr", "sd", {0.5, 3e38}, 0, 4},
    {"Powr", "s", {2, 128}, inf, 3},
    {"Powr", "s", {1e-30, 2}, 0, 4},
    {"Powr", "d", {2, 1024}, inf, 3},
    {"Powr", "d", {1e-300, 2}, 0, 4},

    // Underflow is raised from ten bits below the least normal number on.
    {"Powr", "s", {2, -127}, near, 0},
    {"Powr", "s", {2, -136}, near, 0},
    {"Powr", "s", {2, -137}, near, 4},
    {"Powr", "s", {3, -85}, near, 0},  // 2^-134.7
    {"Powr", "s", {3, -86}, near, 4},  // 2^-136.3
    {"Powr", "s", {2, -149}, FLT_TRUE_MIN, 4},
    {"Powr", "s", {2, -150}, 0, 4},
    {"Powr", "d", {2, -1023}, near, 0},
    {"Powr", "d", {2, -1032}, near, 0},
    {"Powr", "d", {2, -1033}, near, 4},
    {"Powr", "d", {3, -651}, near, 0},  // 2^-1031.8
    {"Powr", "d", {3, -652}, near, 4},  // 2^-1033.4
    {"Powr", "d", {2, -1074}, DBL_TRUE_MIN, 4},
    {"Powr", "d", {2, -1075}, 0, 4},

    // Exponents with a function of their own raise what it raises, loops nothing; the others are as those of Pow.
    {"Powx", "sd", {0.0, -1}, inf, 2},
    {"Powx", "sd", {-0.0, -1}, -inf, 2},
    {"Powx", "sd", {0.0, -3}, inf, 1},
    {"Powx", "sd", {-1, 0.5}, nan, 1},
    {"Powx", "sd", {-0.0, -0.5}, -inf, 2},
    {"Powx", "sd", {-4, 1.5}, nan, 1},
    {"Powx", "sd", {-8, 1.0 / 3}, nan, 1, "LA HA"},
    {"Powx", "sd", {-8, -1.0 / 3}, nan, 1, "LA HA"},
    {"Powx", "sd", {-8, 2.0 / 3}, nan, 1, "LA HA"},
    {"Powx", "sd", {-8, 2.5}, nan, 1},
    {"Powx", "sd", {-8, 3}, -512, 0, "HA"},
    {"Powx", "sd", {nan, 0}, 1, 0},
    {"Powx", "sd", {nan, -0.0}, 1, 0},
    {"Powx", "sd", {-inf, 1}, -inf, 0},
    {"Powx", "s", {-1e30, 2}, inf, 0},
    {"Powx", "s", {-1e30, 4}, inf, 3},
    {"Powx", "d", {-1e300, 2}, inf, 0},
    {"Powx", "d", {-1e300, 4}, inf, 3},
};

class Power : public testing::TestWithParam<Function> {};

// Overflow begins at the first exponent whose exact power rounds to infinity.
TEST_P(Power, OverflowsWhereTheExactResultLeavesTheRange) {
    in_fresh_thread([] {
        for_type(GetParam(), [&]<class T>(T) {
            using L = std::numeric_limits<T>;
            const long double beyond = std::ldexp(2.0L - std::ldexp(1.0L, -L::digits), L::max_exponent - 1);
            for (const double base : {2.0, 3.0, 10.0, 0.7, 0.01, 1.001, 0.9993, 1e-30, 1.5e38}) {
                const T a = static_cast<T>(base);
                T b = static_cast<T>(L::max_exponent / std::log2(static_cast<double>(a)));
                for (int i = 0; i < 6; ++i) b = std::nextafter(b, T(0));
                for (int i = 0; i < 12; ++i, b = std::nextafter(b, b * 2)) {
                    const bool finite = exact(GetParam(), a, b) < beyond;
                    check<T>(GetParam(), a, b, finite ? near : inf, finite ? 0 : 3, Lanes::some);
                }
            }
        });
    });
}

// Powers that are numbers of the type come out as such, by multiplication, powers of two down to the last denormal.
TEST_P(Power, IsExactAtHAWhereTheResultIsANumberOfTheType) {
    in_fresh_thread([] {
        for_type(GetParam(), [&]<class T>(T) {
            using L = std::numeric_limits<T>;
            std::vector<T> a, b, expected;
            const auto add = [&](T base, T exponent, T power) {
                a.push_back(base);
                b.push_back(exponent);
                expected.push_back(power);
            };
            const T limit = std::ldexp(T(1), L::digits);
            for (T base = 2; base < 2000; ++base) {
                T power = base;
                for (int k = 1; power <= limit; ++k, power *= base) {
                    add(base, static_cast<T>(k), power);
                    if (k == 2 || k == 4) add(power, T(1) / static_cast<T>(k), base);
                    if (k == 3) add(base * base, T(1.5), power);
                }
            }
            for (const int scale : {-60, -3, -1, 1, 2, 7})
                for (int k = L::min_exponent - L::digits; k < L::max_exponent; ++k)
                    if (k % scale == 0) add(std::ldexp(T(1), scale), static_cast<T>(k / scale), std::ldexp(T(1), k));
            std::vector<T> y(a.size());
            call(*find_entry(GetParam().type, GetParam().name), Level::HA, static_cast<std::int32_t>(a.size()),
                 Arguments<T>{{a.data(), b.data()}, {y.data()}, {1, 1}, {1}, {}});
            for (std::size_t i = 0; i < y.size(); ++i) ASSERT_EQ(y[i], expected[i]) << a[i] << " to the " << b[i];
        });
    });
}

INSTANTIATE_TEST_SUITE_P(Landed, Power, testing::ValuesIn(landed("Pow Powr")), case_name);

}  // namespace

extern const std::span<const Row> power_rows = rows;

}  // namespace qorl::test
