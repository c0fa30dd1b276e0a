// Special values, thresholds and exact points of the roots, the reciprocal and the hypotenuse.
#include <cmath>

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

}  // namespace

extern const std::span<const Row> root_rows = rows;

}  // namespace qorl::test
