// The ends of the interval that qorl/hux.h tells of, from the words that are nearest to them.
#include <gtest/gtest.h>

#include "generators/tables/wh.hpp"
#include "stream.hpp"

namespace qorl::test {
namespace {

struct End {
    const char *what;
    std::int32_t id;
    Seed seed;
    bool d_is_one, s_is_one;
};

Seed ring_of(std::uint32_t first) {
    Seed seed(250, 0);
    seed[0] = first;
    return seed;
}

TEST(Ends, UpperOneIsMetWhereRoundingLeadsToIt) {
    const std::uint32_t *const m = tables::wh_moduli, ones = 0xFFFFFFFF;
    const End ends[] = {
        {"MCG31M1", family_id(row_MCG31M1), {2147483646}, false, true},
        {"MCG59", family_id(row_MCG59), {ones, ones}, true, true},
        {"WH", family_id(row_WH), {1, 1, m[2] - 1, m[3] - 1}, false, true},  // 1/m1 + 1/m2 - 1/m3 - 1/m4 is below 0
        {"R250", family_id(row_R250), ring_of(ones), false, true},
    };
    for (const End &end : ends) {
        EXPECT_EQ(Stream(end.id, end.seed).doubles(1, 0, 1)[0] == 1, end.d_is_one) << end.what;
        EXPECT_EQ(Stream(end.id, end.seed).singles(1, 0, 1)[0] == 1, end.s_is_one) << end.what;
    }
}

// The words of a block are put into the state: which counter gives them is not known.
TEST(Ends, OfCountersAreThoseOfSignedWords) {
    const std::pair<std::int32_t, std::size_t> generators[] = {{family_id(row_PHILOX4X32X10), 6},
                                                               {family_id(row_ARS5), 8}};
    for (const auto &[id, left] : generators) {
        const Stream d(id, {}), s(id, {});
        for (const Stream *stream : {&d, &s}) {
            auto *const words = &state_of<std::uint32_t>(stream->state);
            words[left] = 2;
            words[left + 3] = 0x80000000;
            words[left + 4] = 0x7FFFFFFF;
        }
        EXPECT_EQ(d.doubles(2, 0, 1), (std::vector<double>{0, 1 - 0x1p-32}));
        EXPECT_EQ(s.singles(2, 0, 1), (std::vector<float>{0, 1}));
    }
}

}  // namespace
}  // namespace qorl::test
