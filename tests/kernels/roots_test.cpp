// Special values, thresholds and exact points of the roots, the reciprocal and the hypotenuse.
#include <xmmintrin.h>

#include <bit>
#include <cmath>
#include <random>

#include "tests/kernels/special_values.hpp"

namespace qorl::test {
namespace {

constexpr Row rows[] = {
    {"Cbrt InvCbrt Pow2o3", "sd", {nan}, nan, 0},
    {"Cbrt InvCbrt Pow2o3", "sd", {-nan}, nan, 0},
    {"Cbrt Pow2o3", "sd", {inf}, inf, 0},
    {"Cbrt", "sd", {-inf}, -inf, 0},
    {"Pow2o3", "sd", {-inf}, inf, 0},
    {"InvCbrt", "sd", {inf}, 0.0, 0},
    {"InvCbrt", "sd", {-inf}, -0.0, 0},
    {"Cbrt Pow2o3", "sd", {0.0}, 0.0, 0},
    {"Cbrt", "sd", {-0.0}, -0.0, 0},
    {"Pow2o3", "sd", {-0.0}, 0.0, 0},
    {"InvCbrt", "sd", {0.0}, inf, 2},
    {"InvCbrt", "sd", {-0.0}, -inf, 2},
    {"Cbrt InvCbrt Pow2o3", "s", {FLT_TRUE_MIN}, near, 0},
    {"Cbrt InvCbrt Pow2o3", "s", {-FLT_MIN + FLT_TRUE_MIN}, near, 0},
    {"Cbrt InvCbrt Pow2o3", "s", {FLT_MIN}, near, 0},
    {"Cbrt InvCbrt Pow2o3", "s", {-FLT_MAX}, near, 0},
    {"Cbrt InvCbrt Pow2o3", "d", {DBL_TRUE_MIN}, near, 0},
    {"Cbrt InvCbrt Pow2o3", "d", {-DBL_MIN + DBL_TRUE_MIN}, near, 0},
    {"Cbrt InvCbrt Pow2o3", "d", {DBL_MIN}, near, 0},
    {"Cbrt InvCbrt Pow2o3", "d", {-DBL_MAX}, near, 0},
    {"Cbrt InvCbrt Pow2o3", "sd", {-8.1}, near, 0},
    {"Cbrt", "sd", {-27}, -3, 0, "LA HA"},
    {"Cbrt", "d", {1e15}, 1e5, 0, "LA HA"},
    {"Cbrt", "d", {-0x1p-1074}, -0x1p-358, 0, "LA HA"},
    {"Cbrt", "s", {0x1p-147}, 0x1p-49, 0, "LA HA"},
    {"InvCbrt", "sd", {-0.125}, -2, 0, "LA HA"},
    {"Pow2o3", "sd", {-27}, 9, 0, "HA"},
    {"Pow2o3", "d", {DBL_TRUE_MIN}, 0x1p-716, 0, "HA"},
    {"Hypot", "sd", {inf, nan}, inf, 0},
    {"Hypot", "sd", {nan, -inf}, inf, 0},
    {"Hypot", "sd", {-inf, 1}, inf, 0},
    {"Hypot", "sd", {inf, -inf}, inf, 0},
    {"Hypot", "sd", {nan, 1}, nan, 0},
    {"Hypot", "sd", {0, nan}, nan, 0},
    {"Hypot", "sd", {0.0, 0.0}, 0.0, 0},
    {"Hypot", "sd", {-0.0, -0.0}, 0.0, 0},
    {"Hypot", "sd", {3, -4}, 5, 0, "HA"},
    {"Hypot", "sd", {0, -7.3}, near, 0},
    {"Hypot", "d", {1e308, 1e308}, near, 0},
    {"Hypot", "d", {1.7e308, 1.7e308}, inf, 0},
    {"Hypot", "s", {2e38, 2e38}, near, 0},
    {"Hypot", "s", {FLT_MAX, -FLT_MAX}, inf, 0},
    {"Hypot", "d", {3 * DBL_TRUE_MIN, 4 * DBL_TRUE_MIN}, 5 * DBL_TRUE_MIN, 0},
    {"Hypot", "s", {3 * FLT_TRUE_MIN, 4 * FLT_TRUE_MIN}, 5 * FLT_TRUE_MIN, 0},
    {"Hypot", "d", {DBL_MIN, DBL_TRUE_MIN}, near, 0},
    {"Hypot", "d", {1e-300, 1e-310}, near, 0},
    // both sides of the ends of the fast range, and a square that underflows beside one that does not
    {"Hypot", "d", {0x1p-63, 0}, near, 0},
    {"Hypot", "d", {0x1.fffffffffffffp-64, 0}, near, 0},
    {"Hypot", "d", {0x1.fffffffffffffp62, 0x1p40}, near, 0},
    {"Hypot", "d", {0x1p63, 0x1p62}, near, 0},
    {"Hypot", "d", {0x1.8p64, 0x1p62}, near, 0},
    {"Hypot", "s", {0x1p-50, 0}, near, 0},
    {"Hypot", "s", {0x1.fffffep-51, 0x1p-60}, near, 0},
    {"Hypot", "s", {0x1.6p63, 0x1p62}, near, 0},
    {"Hypot", "s", {0x1.7p63, 0x1p62}, near, 0},
    {"Hypot", "d", {0x1p-540, 0x1.3p-20}, near, 0},
    {"Hypot", "s", {0x1p-80, 0x1.3p-20}, near, 0},
    {"Sqrt InvSqrt Pow3o2 Inv", "sd", {nan}, nan, 0},
    {"Sqrt InvSqrt Pow3o2 Inv", "sd", {-nan}, nan, 0},
    {"Sqrt Pow3o2", "sd", {inf}, inf, 0},
    {"InvSqrt Inv", "sd", {inf}, 0.0, 0},
    {"Inv", "sd", {-inf}, -0.0, 0},
    {"Sqrt Pow3o2", "sd", {0.0}, 0.0, 0},
    {"Sqrt", "sd", {-0.0}, -0.0, 0},
    {"Pow3o2", "sd", {-0.0}, 0.0, 0},
    {"InvSqrt Inv", "sd", {0.0}, inf, 2},
    {"InvSqrt Inv", "sd", {-0.0}, -inf, 2},
    {"Sqrt InvSqrt Pow3o2", "sd", {-inf}, nan, 1},
    {"Sqrt InvSqrt Pow3o2", "sd", {-1}, nan, 1},
    {"Sqrt InvSqrt Pow3o2", "s", {-FLT_TRUE_MIN}, nan, 1},
    {"Sqrt InvSqrt Pow3o2", "s", {-FLT_MAX}, nan, 1},
    {"Sqrt InvSqrt Pow3o2", "d", {-DBL_TRUE_MIN}, nan, 1},
    {"Sqrt InvSqrt Pow3o2", "d", {-DBL_MAX}, nan, 1},
    // The ends of the bodies, and of the numbers.
    {"Sqrt InvSqrt", "s", {FLT_TRUE_MIN}, near, 0},
    {"Sqrt InvSqrt", "s", {FLT_MIN - FLT_TRUE_MIN}, near, 0},
    {"Sqrt InvSqrt", "s", {FLT_MIN}, near, 0},
    {"Sqrt InvSqrt", "s", {FLT_MAX}, near, 0},
    {"Sqrt", "s", {0x1.fffffep-91}, near, 0},
    {"Sqrt", "s", {0x1p-90}, 0x1p-45, 0, "HA"},
    {"InvSqrt", "s", {0x1.fffffep+123}, near, 0},
    {"InvSqrt", "s", {0x1p+124}, 0x1p-62, 0, "HA"},
    {"Sqrt InvSqrt", "d", {DBL_TRUE_MIN}, near, 0},
    {"Sqrt InvSqrt", "d", {DBL_MIN - DBL_TRUE_MIN}, near, 0},
    {"Sqrt InvSqrt", "d", {DBL_MIN}, near, 0},
    {"Sqrt InvSqrt", "d", {DBL_MAX}, near, 0},
    {"Sqrt", "d", {0x1.fffffffffffffp-951}, near, 0},
    {"Sqrt", "d", {0x1p-950}, 0x1p-475, 0, "LA HA"},
    {"InvSqrt", "d", {0x1.fffffffffffffp+1019}, near, 0},
    {"InvSqrt", "d", {0x1p+1020}, 0x1p-510, 0, "LA HA"},
    {"Sqrt", "d", {0x1p-1074}, 0x1p-537, 0, "LA HA"},
    {"Sqrt", "sd", {4}, 2, 0, "HA"},
    {"Inv", "s", {0x1.fffffep+125}, near, 0},
    {"Inv", "s", {-0x1p+126}, -0x1p-126, 0},
    {"Inv", "s", {FLT_MAX}, near, 0, "LA HA"},
    {"Inv", "s", {-FLT_MIN}, near, 0},
    {"Inv", "s", {-0x1.fffffcp-127}, near, 0},
    {"Inv", "s", {FLT_TRUE_MIN}, inf, 0},
    {"Inv", "d", {0x1.fffffffffffffp+1020}, near, 0},
    {"Inv", "d", {-0x1p+1021}, -0x1p-1021, 0},
    {"Inv", "d", {DBL_MAX}, near, 0, "LA HA"},
    {"Inv", "d", {-DBL_MIN}, near, 0},
    {"Inv", "d", {-0x0.fffffffffffffp-1022}, near, 0},
    {"Inv", "d", {DBL_TRUE_MIN}, inf, 0},
    {"Pow3o2", "s", {0x1.fffffep+84}, near, 0},
    {"Pow3o2", "s", {0x1p+85}, near, 0},
    {"Pow3o2", "s", {0x1.428a2ep+85}, near, 0},
    {"Pow3o2", "s", {0x1.428a30p+85}, inf, 3},
    {"Pow3o2", "s", {FLT_MAX}, inf, 3},
    {"Pow3o2", "s", {0x1p-60}, 0x1p-90, 0, "HA"},
    {"Pow3o2", "s", {0x1.fffffep-61}, near, 0},
    {"Pow3o2", "s", {0x1p-84}, 0x1p-126, 0, "HA"},
    {"Pow3o2", "s", {0x1.fffffep-85}, near, 4, "HA"},
    {"Pow3o2", "s", {0x1p-98}, 0x1p-147, 4},
    {"Pow3o2", "s", {0x1p-100}, 0.0, 4},
    {"Pow3o2", "s", {FLT_TRUE_MIN}, 0.0, 4},
    {"Pow3o2", "d", {0x1.fffffffffffffp+681}, near, 0},
    {"Pow3o2", "d", {0x1p+682}, near, 0},
    {"Pow3o2", "d", {0x1.965fea53d6e3cp+682}, near, 0},
    {"Pow3o2", "d", {0x1.965fea53d6e3dp+682}, inf, 3},
    {"Pow3o2", "d", {DBL_MAX}, inf, 3},
    {"Pow3o2", "d", {0x1p-630}, 0x1p-945, 0, "HA"},
    {"Pow3o2", "d", {0x1.fffffffffffffp-631}, near, 0},
    {"Pow3o2", "d", {0x1.965fea53d6e3dp-682}, near, 0},
    {"Pow3o2", "d", {0x1.965fea53d6e3bp-682}, near, 4},
    {"Pow3o2", "d", {0x1p-714}, 0x1p-1071, 4},
    {"Pow3o2", "d", {0x1.43p-717}, DBL_TRUE_MIN, 4},
    {"Pow3o2", "d", {0x1.428a2f98d728ap-717}, 0.0, 4},
    {"Pow3o2", "d", {DBL_TRUE_MIN}, 0.0, 4},
};

// All cubes that have exact roots, but for powers of 8: of the integers up to the cube root of 2^53 or 2^24.
TEST(Cbrt, HasTheExactRootsOfCubesAtLAAndHA) {
    in_fresh_thread([] {
        for (const Function &function : landed("Cbrt")) {
            for_type(function, [&]<class T>(T) {
                const bool single = sizeof(T) == 4;
                std::vector<T> roots, cubes;
                for (int root = 1; root <= (single ? 255 : 208063); ++root)
                    for (const int scale : {single ? -41 : -340, 0, single ? 34 : 320})
                        roots.push_back(std::ldexp(T(root), scale));
                for (const T root : roots) cubes.push_back(root * root * root);
                for (const Level level : {Level::LA, Level::HA}) EXPECT_EQ(results(function, level, cubes), roots);
            });
        }
    });
}

// Squares of 26-bit or 12-bit numbers and, for x^(3/2), of 17-bit or 8-bit ones, over the range of exponents.
TEST(Sqrt, IsExactWhereTheRootIsANumberAtHA) {
    in_fresh_thread([] {
        std::mt19937_64 random(1);
        for (const Function &function : landed("Sqrt Pow3o2")) {
            for_type(function, [&]<class T>(T) {
                const bool single = sizeof(T) == 4, is_root = std::string_view(function.name) == "Sqrt";
                const unsigned bits = single ? (is_root ? 12 : 8) : (is_root ? 26 : 17);
                const int reach = (single ? 40 : 470) / (is_root ? 1 : 2);
                std::vector<T> expected, squares;
                for (int i = 0; i < 200000; ++i) {
                    const T root = std::ldexp(static_cast<T>(1 + random() % ((1u << bits) - 1)),
                                              static_cast<int>(random() % (2 * reach)) - reach);
                    squares.push_back(root * root);
                    expected.push_back(is_root ? root : root * root * root);
                }
                EXPECT_EQ(results(function, Level::HA, squares), expected);
            });
        }
    });
}

TEST(Sqrt, IsTheProductWithTheEstimateInSinglePrecisionAtEP) {
    in_fresh_thread([] {
        for (const Function &function : landed("Sqrt")) {
            if (function.type != 's') continue;
            std::vector<float> x, expected;
            for (float value = 0x1p-126f; value < 0x1p127f; value *= 1.37f) {
                x.push_back(value);
                expected.push_back(value * _mm_cvtss_f32(_mm_rsqrt_ss(_mm_set_ss(value))));
            }
            EXPECT_EQ(results(function, Level::EP, x), expected);
        }
    });
}

// The rounding of the last step of Sqrt d HA can differ from that of the exact root in a few results of a million.
TEST(Sqrt, IsRoundedCorrectlyInNearlyAllCasesInDoublePrecisionAtHA) {
    in_fresh_thread([] {
        std::mt19937_64 random(2);
        for (const Function &function : landed("Sqrt")) {
            if (function.type != 'd') continue;
            std::vector<double> x;
            for (int i = 0; i < 1000000; ++i) x.push_back(std::bit_cast<double>(random() >> 1));
            const std::vector<double> y = results(function, Level::HA, x);
            int different = 0;
            for (std::size_t i = 0; i < x.size(); ++i) different += std::isfinite(x[i]) && y[i] != std::sqrt(x[i]);
            EXPECT_LE(different, 20);
        }
    });
}

TEST(InvSqrt, IsExactAtPowersOfFourAtHA) {
    in_fresh_thread([] {
        for (const Function &function : landed("InvSqrt")) {
            for_type(function, [&]<class T>(T) {
                std::vector<T> x, expected;
                for (int k = sizeof(T) == 4 ? -74 : -537; k < (sizeof(T) == 4 ? 64 : 512); ++k) {
                    x.push_back(std::ldexp(T(1), 2 * k));
                    expected.push_back(std::ldexp(T(1), -k));
                }
                EXPECT_EQ(results(function, Level::HA, x), expected);
            });
        }
    });
}

// Denormal inputs and results, which the scalar function takes, count as 0 in flush mode.
TEST(Hypot, FlushesDenormals) {
    in_fresh_thread([] {
        for (const Function &function : landed("Hypot")) {
            for_type(function, [&]<class T>(T) {
                using L = std::numeric_limits<T>;
                const std::vector<T> a(11, L::denorm_min()), b(11, T(0)), least(11, L::min());
                std::vector<T> y(11), z(11);
                _zetSetMode(0x280000 | 0x2000);
                for (const Level level : levels) {
                    const Entry &entry = *find_entry(function.type, "Hypot");
                    call(entry, level, 11, Arguments<T>{{a.data(), b.data()}, {y.data()}});
                    call(entry, level, 11, Arguments<T>{{a.data(), least.data()}, {z.data()}});
                    EXPECT_EQ(y, b) << level_names[static_cast<int>(level)];
                    EXPECT_EQ(z, least) << level_names[static_cast<int>(level)];
                }
            });
        }
    });
}

TEST(Hypot, GivesTheSameBitsForEitherOrderAndAnySigns) {
    for (const Function &function : landed("Hypot")) {
        for_type(function, [&]<class T>(T) {
            std::mt19937_64 random(1);
            std::vector<T> a, b, minus_a;
            while (a.size() < 20000) {
                a.push_back(static_cast<T>(std::ldexp(static_cast<double>(random()), static_cast<int>(random() % 8))));
                b.push_back(static_cast<T>(random()));
                minus_a.push_back(-a.back());
            }
            const std::int32_t n = static_cast<std::int32_t>(a.size());
            std::vector<T> y(a.size()), z(a.size());
            for (const Level level : levels) {
                call(*find_entry(function.type, "Hypot"), level, n, Arguments<T>{{a.data(), b.data()}, {y.data()}});
                call(*find_entry(function.type, "Hypot"), level, n,
                     Arguments<T>{{b.data(), minus_a.data()}, {z.data()}});
                EXPECT_EQ(y, z) << level_names[static_cast<int>(level)];
            }
        });
    }
}

}  // namespace

extern const std::span<const Row> root_rows = rows;

}  // namespace qorl::test
