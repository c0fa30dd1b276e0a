// The reference itself: how errors are counted at the edges of the format, and two independent evaluations against each
// other.
#include "tools/reference/error.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "tools/reference/formula.hpp"
#include "tools/reference/points.hpp"

namespace qorl::reference {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

TEST(Error, CountsUnitsOfTheRoundedResult) {
    Evaluator<double> exp(*find_formula("Exp"));
    const Exact<double> e = exp(1);
    EXPECT_LE(e.error(std::exp(1.0)).ulp, 0.51);
    EXPECT_NEAR(e.error(std::nextafter(e.rounded(), 9)).ulp + e.error(std::nextafter(e.rounded(), 0)).ulp, 2, 1e-9);
    EXPECT_NEAR(e.error(e.rounded() * (1 + 0x1p-26)).relative, 0x1p-26, 0x1p-50);
    EXPECT_EQ(exp(0).error(1).ulp, 0);
    EXPECT_EQ(e.error(std::nan("")).ulp, infinity);
    EXPECT_FALSE(exp(infinity).defined);

    // Below the normal numbers the unit stays that of the smallest of them.
    const Exact<double> denormal = exp(-740);
    EXPECT_TRUE(denormal.denormal);
    EXPECT_EQ(denormal.unit, 0x1p-1074);
    EXPECT_NEAR(denormal.error(0).ulp, std::exp(-740.0) / 0x1p-1074, 0.5);
    EXPECT_GT(denormal.error(0).relative, 0.9) << "a flushed result must not pass for an accurate one";
    EXPECT_LT(denormal.error(denormal.rounded()).relative, 0x1p-52);

    // An infinity is right where the exact value lies beyond the format, and one unit behind its largest number.
    EXPECT_EQ(exp(710).error(infinity).ulp, 0);
    EXPECT_EQ(exp(1e5).error(infinity).ulp, 0);
    EXPECT_EQ(exp(1e5).error(1e308).ulp, infinity);
    EXPECT_EQ(exp(1e5).error(1e308).relative, infinity);
    EXPECT_GT(exp(710).error(-infinity).ulp, 1e16);
    EXPECT_GT(exp(709).error(infinity).ulp, 1e15);
}

TEST(Error, KnowsTheUnitOfBothFormats) {
    EXPECT_EQ(unit_in_last_place<double>(1), 0x1p-52);
    EXPECT_EQ(unit_in_last_place<double>(std::nextafter(1.0, 0)), 0x1p-53);
    EXPECT_EQ(unit_in_last_place<double>(-0x1.8p-1022), 0x1p-1074);
    EXPECT_EQ(unit_in_last_place<double>(0), 0x1p-1074);
    EXPECT_EQ(unit_in_last_place<float>(3), 0x1p-22);
    EXPECT_EQ(unit_in_last_place<float>(0x1p-130), 0x1p-149);
    EXPECT_EQ(unit_in_last_place<float>(0x1.fffffep127), 0x1p104);
}

// MPFR and Arb against the compositions of the C library's functions, for all formulas: a slip in either shows.
TEST(Formulas, AgreeWithTheirDoublePrecisionForms) {
    for (const Entry &entry : entries) {
        if (entry.type != 's' || entry.form != Form::unit || entry.shape != Shape::unary) continue;
        const Formula *formula = find_formula(entry.function);
        ASSERT_NE(formula, nullptr) << entry.function;
        ASSERT_NE(formula->fast, nullptr) << entry.function;
        Evaluator<float> evaluate(*formula);
        const Points<float> points = Sampler<float>(entry, 1).batch(0, 500);
        int defined = 0;
        for (const float a : points.a) {
            const Exact<float> exact = evaluate(a);
            if (!exact.defined || exact.overflow) continue;
            ++defined;
            const double value = formula->fast(static_cast<double>(a));
            EXPECT_LE(std::fabs((value - exact.nearest) / exact.unit - exact.rest), 0.001)
                << entry.function << "(" << std::hexfloat << a << ") = " << value << ", exact near " << exact.nearest;
        }
        EXPECT_GT(defined, 100) << entry.function;
    }
    release_thread();
}

}  // namespace
}  // namespace qorl::reference
