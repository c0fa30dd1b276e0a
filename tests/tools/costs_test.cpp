// The committed cost figures: complete, with exact markers, and in the form that the measuring program writes.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <string>

#include "frame/entries.hpp"
#include "tools/measure_cost/costs.hpp"

namespace {

using namespace qorl;

const Cost *find_cost(const Entry &entry) {
    const auto found = std::ranges::find_if(
        costs, [&](const Cost &cost) { return cost.type == entry.type && cost.function == entry.function; });
    return found == std::end(costs) ? nullptr : found;
}

bool landed(const Entry &entry) {
    return std::ranges::any_of(functions,
                               [&](const Function &f) { return f.type == entry.type && f.name == entry.function; });
}

TEST(Costs, StandForEveryLandedFunctionAndNoOther) {
    for (const Entry &entry : entries) {
        if (entry.form == Form::strided || cost::marker(entry) != 0) continue;
        const Cost *const found = find_cost(entry);
        ASSERT_EQ(found != nullptr, landed(entry))
            << entry.type << entry.function << ": run measure_cost frame/costs.inc";
        if (found == nullptr) continue;
        for (const float figure : found->figures) {
            EXPECT_GT(figure, 0.02F) << entry.type << entry.function;
            EXPECT_LT(figure, 1000.0F) << entry.type << entry.function;
        }
    }
}

TEST(Costs, OfBesselAndPackAreMarkers) {
    int bessel = 0, pack = 0;
    for (const Entry &entry : entries) {
        if (entry.form == Form::strided && entry.shape != Shape::pack) continue;
        const Cost *const found = find_cost(entry);
        const bool is_bessel =
            std::string_view("I0 I1 J0 J1 Y0 Y1 Jn Yn").find(entry.function) != std::string_view::npos;
        if (!is_bessel && entry.shape != Shape::pack) continue;
        ++(is_bessel ? bessel : pack);
        ASSERT_NE(found, nullptr) << entry.type << entry.function;
        for (const float figure : found->figures) EXPECT_EQ(figure, is_bessel ? 1.0F : 1111.0F) << entry.function;
    }
    EXPECT_EQ(bessel, 16);
    EXPECT_EQ(pack, 24);
}

TEST(Costs, AreInTheFormThatMeasureCostWrites) {
    std::ifstream file(QORL_COSTS_FILE);
    const std::string text((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    ASSERT_FALSE(text.empty());
    EXPECT_EQ(cost::costs_text(text, costs), text);
}

}  // namespace
