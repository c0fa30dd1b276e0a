// Special values, thresholds and exact points of the logarithm family.
#include <cmath>
#include <limits>
#include <vector>

#include "tests/kernels/special_values.hpp"

namespace qorl::test {
namespace {

constexpr Row rows[] = {
    {"Ln Log10 Log2 Log1p Logb", "sd", {nan}, nan, 0},
    {"Ln Log10 Log2 Log1p Logb", "sd", {-nan}, nan, 0},
    {"Ln Log10 Log2 Log1p Logb", "sd", {inf}, inf, 0},
    {"Ln Log10 Log2 Log1p", "sd", {-inf}, nan, 1},
    {"Logb", "sd", {-inf}, inf, 0},

    {"Ln Log10 Log2", "sd", {0.0}, -inf, 2},
    {"Ln Log10 Log2", "sd", {-0.0}, -inf, 2},
    {"Log1p", "sd", {0.0}, 0.0, 0},
    {"Log1p", "sd", {-0.0}, -0.0, 0},
    {"Logb", "sd", {0.0}, -inf, 1},  // 1 and not 2, unlike the others
    {"Logb", "sd", {-0.0}, -inf, 1},

    {"Ln Log10 Log2", "sd", {-1}, nan, 1},
    {"Ln Log10 Log2", "s", {-FLT_TRUE_MIN}, nan, 1},
    {"Ln Log10 Log2", "d", {-DBL_TRUE_MIN}, nan, 1},
    {"Ln Log10 Log2 Log1p", "s", {-FLT_MAX}, nan, 1},
    {"Ln Log10 Log2 Log1p", "d", {-DBL_MAX}, nan, 1},
    {"Log1p", "sd", {-1}, -inf, 2},
    {"Log1p", "s", {-0x1.000002p+0}, nan, 1},
    {"Log1p", "d", {-0x1.0000000000001p+0}, nan, 1},
    {"Log1p", "sd", {-1.5}, nan, 1},
    {"Logb", "sd", {-8}, 3, 0},
    {"Logb", "s", {-FLT_MAX}, 127, 0},
    {"Logb", "d", {-DBL_MAX}, 1023, 0},

    {"Ln Log10 Log2", "s", {FLT_TRUE_MIN}, near, 0},
    {"Ln Log10 Log2", "s", {0x1.8p-128}, near, 0},
    {"Ln Log10 Log2", "s", {FLT_MIN}, near, 0},
    {"Ln Log10 Log2 Log1p", "s", {FLT_MAX}, near, 0},
    {"Ln Log10 Log2", "d", {DBL_TRUE_MIN}, near, 0},
    {"Ln Log10 Log2", "d", {0x1.8p-1024}, near, 0},
    {"Ln Log10 Log2", "d", {DBL_MIN}, near, 0},
    {"Ln Log10 Log2", "d", {0x1.6a09e667f3bccp-1022}, near, 0},  // on either side of sqrt(1/2) in its binade
    {"Ln Log10 Log2", "d", {0x1.6a09e667f3bcdp-1022}, near, 0},
    {"Ln Log10 Log2 Log1p",
     "d",
     {0x1.6a09e667f3bccp+1022},
     near,
     0},  // the last with an exponent of 1022, and the first
    {"Ln Log10 Log2 Log1p", "d", {0x1.6a09e667f3bcdp+1022}, near, 0},  // that some levels leave to the scalar function
    {"Ln Log10 Log2 Log1p", "d", {DBL_MAX}, near, 0},
    {"Logb", "s", {FLT_TRUE_MIN}, -149, 0},
    {"Logb", "s", {-0x1p-127}, -127, 0},
    {"Logb", "s", {FLT_MIN}, -126, 0},
    {"Logb", "d", {DBL_TRUE_MIN}, -1074, 0},
    {"Logb", "d", {-0x1p-1023}, -1023, 0},
    {"Logb", "d", {DBL_MIN}, -1022, 0},

    {"Ln Log10 Log2", "sd", {1}, 0.0, 0},
    {"Ln", "d", {2}, 0x1.62e42fefa39efp-1, 0, "HA"},
    {"Log10", "sd", {1000}, 3, 0, "HA"},
    {"Ln Log10 Log2", "s", {0x1.000002p+0}, near, 0},
    {"Ln Log10 Log2", "s", {0x1.5561a8p-1}, near, 0},  // the last with an exponent of -1, and the first with 0
    {"Ln Log10 Log2", "s", {0x1.5561aap-1}, near, 0},
    {"Ln Log10 Log2", "s", {0x1.5561a8p+0}, near, 0},  // the last with 0, and the first with 1
    {"Ln Log10 Log2", "s", {0x1.5561aap+0}, near, 0},
    {"Ln Log10 Log2", "s", {0x1.fffffep-1}, near, 0},
    {"Ln Log10 Log2", "d", {0x1.0000000000001p+0}, near, 0},
    {"Ln Log10 Log2", "d", {0x1.fffffffffffffp-1}, near, 0},
    {"Ln Log10 Log2", "d", {0x1.004p+0}, near, 0},  // where neighbouring rows of the table cancel
    {"Ln Log10 Log2", "d", {0x1.ff8p-1}, near, 0},

    {"Log1p", "s", {FLT_TRUE_MIN}, FLT_TRUE_MIN, 0},
    {"Log1p", "s", {-FLT_MIN / 2}, -FLT_MIN / 2, 0},
    {"Log1p", "d", {DBL_TRUE_MIN}, DBL_TRUE_MIN, 0},
    {"Log1p", "d", {-DBL_MIN / 2}, -DBL_MIN / 2, 0},
    {"Log1p", "d", {1e-300}, 1e-300, 0},
    {"Log1p", "sd", {0x1p-31}, near, 0},
    {"Log1p", "sd", {-0x1p-31}, near, 0},
    {"Log1p", "d", {0x1p-60}, near, 0},
    {"Log1p", "d", {-0x1.fffffffffffffp-61}, near, 0},
    {"Log1p", "s", {-0x1.fffffep-1}, near, 0},  // the next to -1
    {"Log1p", "d", {-0x1.fffffffffffffp-1}, near, 0},
    {"Log1p", "s", {-0x1.fffffcp-1}, near, 0},  // the first that the bodies take
    {"Log1p", "s", {0x1.000002p+24}, near, 0},  // where 1 + x has no exact rest
    {"Log1p", "s", {0x1.fffffep+118}, near, 0},
    {"Log1p", "s", {0x1p119}, near, 0},
    {"Log1p", "d", {0x1.fffffffffffffp+1012}, near, 0},
    {"Log1p", "d", {0x1p1013}, near, 0},
};

// Arguments and results at one level.
template <class T>
void expect_exact(const Function &function, Level level, const std::vector<T> &x, const std::vector<T> &expected) {
    const std::vector<T> y = results(function, level, x);
    for (std::size_t i = 0; i < x.size(); ++i)
        EXPECT_EQ(y[i], expected[i]) << name_of(function) << ' ' << static_cast<double>(x[i]);
}

TEST(Log2, IsExactForPowersOfTwo) {
    for (const Function &function : landed("Log2 Logb")) {
        in_fresh_thread([&] {
            for_type(function, [&]<class T>(T) {
                using L = std::numeric_limits<T>;
                std::vector<T> x, exponent;
                for (int i = L::min_exponent - L::digits; i < L::max_exponent; ++i) {
                    exponent.push_back(static_cast<T>(i));
                    x.push_back(std::ldexp(T(1), i));
                }
                for (const Level level : {Level::LA, Level::HA}) expect_exact(function, level, x, exponent);
            });
        });
    }
}

TEST(Log10, IsExactForPowersOfTenAtHa) {
    for (const Function &function : landed("Log10")) {
        in_fresh_thread([&] {
            for_type(function, [&]<class T>(T) {
                std::vector<T> x, exponent;
                const int largest = sizeof(T) == sizeof(float) ? 10 : 22;  // the last that the type holds exactly
                for (int i = 0; i <= largest; ++i) {
                    exponent.push_back(static_cast<T>(i));
                    x.push_back(i == 0 ? T(1) : x.back() * 10);
                }
                expect_exact(function, Level::HA, x, exponent);
            });
        });
    }
}

TEST(Logb, IsTheExponentOfEveryBinade) {
    for (const Function &function : landed("Logb")) {
        in_fresh_thread([&] {
            for_type(function, [&]<class T>(T) {
                using L = std::numeric_limits<T>;
                std::vector<T> x, exponent;
                for (int i = L::min_exponent; i < L::max_exponent; ++i) {
                    exponent.push_back(static_cast<T>(i));
                    x.push_back((i % 2 == 0 ? T(1) : T(-1)) * std::ldexp(std::nextafter(T(2), T(0)), i));
                }
                for (const Level level : levels) expect_exact(function, level, x, exponent);
            });
        });
    }
}

}  // namespace

extern const std::span<const Row> logarithm_rows = rows;

}  // namespace qorl::test
