// Every function that has landed against its error bounds, on stratified random points, adversarial clusters and the
// worst cases found so far; its exact points; its symmetry.
//
// QORL_TEST_SEED in the environment repeats the points of an earlier run.
#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <ostream>
#include <random>
#include <sstream>
#include <string>
#include <type_traits>
#include <vector>

#include "tools/accuracy/measure.hpp"
#include "tools/reference/formula.hpp"
#include "tools/reference/points.hpp"

namespace qorl {

void PrintTo(const Function &function, std::ostream *out) {
    *out << function.type << function.name;
}  // for the names

namespace {

using reference::level_names;
using reference::Library;

std::uint64_t seed() {
    static const std::uint64_t value = [] {
        const char *given = std::getenv("QORL_TEST_SEED");
        const std::uint64_t chosen = given != nullptr ? std::strtoull(given, nullptr, 10) : std::random_device{}();
        std::printf("QORL_TEST_SEED=%llu\n", static_cast<unsigned long long>(chosen));
        return chosen;
    }();
    return value;
}

std::string hex(double x) {
    char text[64];
    std::snprintf(text, sizeof text, "%a", x);
    return text;
}

std::string describe(const accuracy::Worst &worst, const char *unit) {
    return "f(" + hex(worst.a) + ", " + hex(worst.b) + ") = " + hex(worst.result) + ", exact " + hex(worst.expected) +
           ", error " + std::to_string(worst.size) + " " + unit;
}

class Landed : public testing::TestWithParam<Function> {
  protected:
    // Functions without a formula (complex types, linear fraction, pack) have tests of their own.
    void SetUp() override {
        entry_ = find_entry(GetParam().type, GetParam().name);
        if (reference::formulas_of(*entry_).empty()) GTEST_SKIP() << "no reference formula";
        library_.silence_errors();
        kernels_ = library_.kernels(*entry_);
        for (const void *kernel : kernels_) ASSERT_NE(kernel, nullptr) << "an empty slot of a landed function";
    }

    const Library library_;
    const Entry *entry_ = nullptr;
    std::array<void *, 3> kernels_ = {};
};

TEST_P(Landed, KeepsItsBoundsAndTheBitsOfTheStridedKernels) {
    accuracy::Options options;
    options.points = 16384;
    options.seed = seed();
    options.strided = true;
    options.extra = accuracy::read_points(QORL_WORST_POINTS "/" + accuracy::worst_file(GetParam()));
    const accuracy::Measurement measured = accuracy::sample(library_, GetParam(), options, {});
    for (const Level level : {Level::LA, Level::HA, Level::EP}) {
        const accuracy::Tally &tally = measured.levels[static_cast<std::size_t>(level)];
        EXPECT_GT(tally.points, options.points / 4) << "too few points have a finite exact value";
        EXPECT_TRUE(accuracy::within_bound(measured, level))
            << level_names[static_cast<std::size_t>(level)] << ": " << describe(tally.ulp, "ulp") << "; "
            << describe(tally.relative, "relative") << "; seed " << seed();
        EXPECT_EQ(tally.unlike, 0u) << level_names[static_cast<std::size_t>(level)]
                                    << ": the strided kernel has other bits: " << describe(tally.unlike_at, "differs")
                                    << "; seed " << seed();
    }
}

template <class T>
void expect_symmetry(const Entry &entry, const std::array<void *, 3> &kernels, reference::Symmetry symmetry) {
    const reference::Sampler<T> sampler(entry, seed());
    auto batches = sampler.clusters();
    batches.push_back(sampler.batch(0, 16384));
    for (const auto &points : batches) {
        std::vector<T> mirrored = points.a;
        for (T &x : mirrored) x = -x;
        for (std::size_t slot = 0; slot < 3; ++slot) {
            const auto right = reference::run<T>(entry, kernels[slot], points.a, points.b)[0];
            const auto left = reference::run<T>(entry, kernels[slot], mirrored, points.b)[0];
            for (std::size_t i = 0; i < right.size(); ++i) {
                if (std::isnan(right[i]) && std::isnan(left[i])) continue;
                using Bits = std::conditional_t<std::is_same_v<T, float>, std::uint32_t, std::uint64_t>;
                const T expected = symmetry == reference::Symmetry::odd ? -right[i] : right[i];
                ASSERT_EQ(std::bit_cast<Bits>(left[i]), std::bit_cast<Bits>(expected))
                    << level_names[slot] << ": f(" << hex(points.a[i]) << ") = " << hex(right[i]) << ", f("
                    << hex(mirrored[i]) << ") = " << hex(left[i]) << "; seed " << seed();
            }
        }
    }
}

std::string name_of(const testing::TestParamInfo<Function> &landed) {
    return landed.param.type + std::string(landed.param.name);
}

INSTANTIATE_TEST_SUITE_P(All, Landed, testing::ValuesIn(std::begin(functions), std::end(functions)), name_of);

class Symmetric : public Landed {
  public:
    static reference::Symmetry symmetry(const Function &function) {
        const Entry &entry = *find_entry(function.type, function.name);
        const auto formulas = reference::formulas_of(entry);
        return entry.shape == Shape::unary && !formulas.empty() ? formulas[0]->symmetry : reference::Symmetry::none;
    }
    static std::vector<Function> all() {
        std::vector<Function> chosen;
        for (const Function &function : functions)
            if (symmetry(function) != reference::Symmetry::none) chosen.push_back(function);
        return chosen;
    }
};

TEST_P(Symmetric, IsOddOrEvenBitForBit) {
    if (GetParam().type == 's')
        expect_symmetry<float>(*entry_, kernels_, symmetry(GetParam()));
    else
        expect_symmetry<double>(*entry_, kernels_, symmetry(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(All, Symmetric, testing::ValuesIn(Symmetric::all()), name_of);

// ------------------------------------------------------------------------------------------------------ exact points

struct ExactPoint {
    std::string function, types, levels;
    std::vector<double> arguments;
    double result = 0;
};

std::vector<ExactPoint> exact_points() {
    std::vector<ExactPoint> points;
    std::ifstream in(QORL_EXACT_POINTS);
    for (std::string line; std::getline(in, line);) {
        std::istringstream words(line.substr(0, line.find('#')));
        ExactPoint point;
        if (!(words >> point.function >> point.types >> point.levels)) continue;
        bool result = false;
        for (std::string word; words >> word;) {
            if (word == "=")
                result = true;
            else if (result)
                point.result = std::strtod(word.c_str(), nullptr);
            else
                point.arguments.push_back(std::strtod(word.c_str(), nullptr));
        }
        EXPECT_TRUE(result && !point.arguments.empty()) << line;
        points.push_back(point);
    }
    return points;
}

template <class T>
void expect_exact(const Library &library, const Entry &entry, const ExactPoint &point) {
    const std::vector<T> a = {static_cast<T>(point.arguments[0])};
    const std::vector<T> b = {point.arguments.size() > 1 ? static_cast<T>(point.arguments[1]) : T{0}};
    ASSERT_EQ(static_cast<double>(static_cast<T>(point.result)), point.result) << "no number of type " << entry.type;
    for (std::size_t slot = 0; slot < 3; ++slot) {
        if (point.levels.find(level_names[slot]) == std::string::npos) continue;
        const T result = reference::run<T>(entry, library.kernels(entry)[slot], a, b)[0][0];
        EXPECT_TRUE(static_cast<double>(result) == point.result && std::signbit(result) == std::signbit(point.result))
            << entry.type << point.function << " " << level_names[slot] << "(" << hex(point.arguments[0])
            << (point.arguments.size() > 1 ? ", " + hex(point.arguments[1]) : "") << ") = " << hex(result)
            << " instead of " << hex(point.result);
    }
}

TEST(ExactPoints, AreHit) {
    const Library library;
    library.silence_errors();
    std::size_t checked = 0;
    for (const ExactPoint &point : exact_points()) {
        ASSERT_NE(reference::find_formula(point.function), nullptr) << point.function;
        for (const Function &function : functions) {
            if (function.name != point.function || point.types.find(function.type) == std::string::npos) continue;
            const Entry &entry = *find_entry(function.type, function.name);
            if (function.type == 's')
                expect_exact<float>(library, entry, point);
            else
                expect_exact<double>(library, entry, point);
            ++checked;
        }
    }
    EXPECT_GT(checked, 0u);
}

}  // namespace
}  // namespace qorl
