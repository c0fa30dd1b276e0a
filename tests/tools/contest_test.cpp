// The benchmark's judgement, without its times: what a level is compared with, and that a peer is the function it says.
#include <gtest/gtest.h>

#include <limits>
#include <vector>

#include "bench/heat.hpp"

namespace {

using namespace qorl;
using namespace qorl::bench;

constexpr double unknown = std::numeric_limits<double>::quiet_NaN();

Entrant entrant(const char *owner, double clocks, double ulp, Kind kind = Kind::full) {
    Entrant one{};
    one.owner = owner;
    one.kind = kind;
    one.clocks = clocks;
    one.ulp = ulp;
    return one;
}

Entrant level(Level level, double clocks, double ulp) {
    Entrant one = entrant("ours", clocks, ulp);
    one.ours = true;
    one.level = level;
    return one;
}

TEST(Ratio, IsOverTheFastestPeerOfEqualOrLargerError) {
    const std::vector<Entrant> entrants = {level(Level::EP, 0.5, 1e7), entrant("exact", 20, 0.5001),
                                           entrant("middle", 4, 0.95), entrant("fast", 2, 2.5),
                                           entrant("short call", 1, 9, Kind::call)};
    const struct {
        Level level;
        double ulp;
        const char *rival, *rival_any;
        double ratio;
    } cases[] = {
        {Level::HA, 0.52, "fast", "fast", 1.5},    {Level::LA, 2.501, "fast", "fast", 1.5},  // equal as printed
        {Level::LA, 3.9, "", "fast", unknown},  // every peer is more accurate
        {Level::EP, 1e7, "fast", "fast", 1.5},  // against all of them
        {Level::HA, unknown, "fast", "fast", 1.5},
    };
    for (const auto &one : cases) {
        Entrant ours = level(one.level, 3, one.ulp);
        ours.ratio = ours.ratio_any = unknown;
        evaluate_ratios(ours, entrants);
        EXPECT_EQ(ours.rival, one.rival) << one.ulp;
        EXPECT_EQ(ours.rival_any, one.rival_any) << one.ulp;
        if (one.rival[0] != '\0') {
            EXPECT_DOUBLE_EQ(ours.ratio, one.ratio) << one.ulp;
        }
        EXPECT_DOUBLE_EQ(ours.ratio_any, 1.5) << one.ulp;
    }
    Entrant accurate = level(Level::HA, 3, 0.96);  // the middle peer is more accurate, the fast one is not
    evaluate_ratios(accurate, {entrant("middle", 1, 0.95), entrant("fast", 2, 2.5)});
    EXPECT_EQ(accurate.rival, "fast");
    EXPECT_EQ(accurate.rival_any, "middle");
}

// A wrong symbol, argument order or result order shows as an error of any size. The Bessel functions of libm lose all
// digits at their zeros, and SLEEF's fast variants most of them.
TEST(Peers, ComputeTheFunctionsTheyStandFor) {
    HeatOptions options;
    options.absent = true;
    options.calls = options.strided = false;
    options.error_points = 200;
    int peers = 0;
    for (Heat &heat : all_heats(options)) {
        if (heat.entry().shape == Shape::unary_param || heat.subject().c_name.starts_with('y')) continue;
        heat.measure_errors();
        for (const Entrant &one : heat.entrants()) {
            if (one.ours || one.owner == "sleef_fast") continue;
            EXPECT_LT(one.ulp, 20) << one.name;
            ++peers;
        }
    }
    EXPECT_GT(peers, 100);  // libm alone has more
}

}  // namespace
