// What every generator has to do, tried on all of them against their definitions.
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <ostream>
#include <set>
#include <string>

#include "stream.hpp"
#include "tests/streams/allocator.hpp"

namespace qorl::test {
namespace {

std::vector<Generator> generators() {
    return {mcg31m1(),   mcg59(),         r250(),       mrg32k3a(),   ars5(),           mt19937(),
            sfmt19937(), philox4x32x10(), wh("WH0", 0), wh("WH1", 1), wh("WH136", 136), wh("WH272", 272)};
}

// All that can be drawn from one position. The numbers are compared as bits.
struct Draws {
    Elements integers;
    std::vector<double> doubles;
    std::vector<float> singles;
    bool operator==(const Draws &) const = default;

    // What a failing comparison prints: the first few.
    friend void PrintTo(const Draws &draws, std::ostream *to) {
        const auto print = [to](const auto &numbers, auto show) {
            for (std::size_t k = 0; k < std::min(numbers.size(), std::size_t{6}); ++k) *to << show(numbers[k]) << " ";
        };
        *to << std::hexfloat;
        print(draws.integers, [](const Element &e) { return e[0]; });
        print(draws.doubles, [](double x) { return x; });
        print(draws.singles, [](float x) { return x; });
    }
};

struct Interval {
    double a, b;
};
constexpr Interval intervals[] = {{0, 1}, {-3.25, 1e6}, {5, -7}};

enum class Type { integer, real_d, real_s };
constexpr Type types[] = {Type::integer, Type::real_d, Type::real_s};

void append(Draws &draws, const Stream &stream, Type type, int n, Interval on = intervals[0]) {
    const auto add = [](auto &to, const auto &from) { to.insert(to.end(), from.begin(), from.end()); };
    const auto a = static_cast<float>(on.a), b = static_cast<float>(on.b);
    if (type == Type::integer) add(draws.integers, stream.integers(n));
    if (type == Type::real_d) add(draws.doubles, stream.doubles(n, on.a, on.b));
    if (type == Type::real_s) add(draws.singles, stream.singles(n, a, b));
}

class EveryGenerator : public testing::TestWithParam<std::size_t> {
  protected:
    Generator generator = generators()[GetParam()];
    std::int32_t id = generator.ids[0];
    long blocks_before = live_blocks();

    void TearDown() override { EXPECT_EQ(live_blocks(), blocks_before) << "blocks leaked or freed twice"; }

    // What the definition tells of n draws of a type.
    Draws expected(const Seed &seed, Count skip, Type type, int n, Interval on = intervals[0]) const {
        Draws draws;
        const Elements elements = generator.elements(seed, skip, n);
        if (type == Type::integer) draws.integers = elements;
        for (const Element &e : elements) {
            if (type == Type::real_d) draws.doubles.push_back(generator.real_d(e, on.a, on.b));
            if (type == Type::real_s)
                draws.singles.push_back(generator.real_s(e, static_cast<float>(on.a), static_cast<float>(on.b)));
        }
        return draws;
    }

    // The next numbers of the stream are those of the definition, in every type. The stream stays where it is.
    void expect_at(const Stream &stream, const Seed &seed, Count skip, const std::string &what) const {
        for (const Type type : types) {
            Stream copy;
            ASSERT_EQ(__huxCopyStream(&copy.state, stream.state), HuxStatusOk);
            Draws draws;
            append(draws, copy, type, 40);
            EXPECT_EQ(draws, expected(seed, skip, type, 40)) << what << ", type " << static_cast<int>(type);
        }
    }
};

INSTANTIATE_TEST_SUITE_P(Generators, EveryGenerator, testing::Range(std::size_t{0}, generators().size()),
                         [](const auto &instance) { return std::string(generators()[instance.param].name); });

TEST(Generators, AllThatStandAreTested) {
    std::set<std::int32_t> rows;
    for (const Generator &generator : generators()) rows.insert(place_of(generator.ids[0]).row);
    for (std::int32_t row = 0; row < 16; ++row)
        EXPECT_EQ(__RegBrngsNew[row].init != nullptr, rows.count(row) == 1) << "row " << row;
}

TEST_P(EveryGenerator, FollowsItsDefinition) {
    for (const std::int32_t number : generator.ids)
        for (const Seed &seed : generator.seeds)
            for (const Type type : types)
                for (const Interval on : intervals) {
                    const Stream stream(number, seed);
                    ASSERT_EQ(stream.status, HuxStatusOk);
                    Draws draws;
                    append(draws, stream, type, 1000, on);
                    EXPECT_EQ(draws, expected(seed, 0, type, 1000, on)) << number << " " << on.a;
                }
    const Seed seed = generator.seeds.back();
    StreamState *negative = nullptr;  // a negative count of words is none for all but one
    if (place_of(id).row == row_WH) return;
    ASSERT_EQ(__huxNewStreamEx(&negative, id, -1, seed.data()), HuxStatusOk);
    Stream stream;
    stream.state = negative;
    expect_at(stream, {}, 0, "negative count of seed words");
}

TEST_P(EveryGenerator, GivesTheSameHoweverARequestIsSplit) {
    const Seed seed = generator.seeds.back();
    for (const Type type : types) {
        const Draws whole = expected(seed, 0, type, 300);
        for (int n = 0; n <= 100; ++n) {
            const Stream stream(id, seed);
            Draws draws;
            for (const int part : {n, 0, 1, n, -5, 299 - 2 * n}) append(draws, stream, type, part);
            EXPECT_EQ(draws, whole) << n;
        }
    }
    if (generator.integers_apart) return;
    const Stream mixed(id, seed);
    Draws ignored;
    for (int n = 0, at = 0; n < 40; at += n++) {
        expect_at(mixed, seed, static_cast<Count>(at), "mixed types");
        append(ignored, mixed, types[n % 3], n);
    }
}

TEST_P(EveryGenerator, ContinuesAfterCopyingSavingAndLoading) {
    const std::string path = testing::TempDir() + "qorl_generator_" + std::to_string(getpid());
    for (const int before : {0, 1, 3, 38, 1001}) {
        const Seed seed = generator.seeds.back();
        const Stream source(id, seed);
        source.doubles(before, 0, 1);
        Stream copy, from_memory, from_file;
        const Stream state_copied(id, seed);
        ASSERT_EQ(__huxCopyStream(&copy.state, source.state), HuxStatusOk);
        ASSERT_EQ(__huxLoadStreamM(&from_memory.state, source.image().data()), HuxStatusOk);
        ASSERT_EQ(__huxSaveStreamF(source.state, path.c_str(), -1), HuxStatusOk);
        ASSERT_EQ(__huxLoadStreamF(&from_file.state, path.c_str(), -1), HuxStatusOk);
        for (const Stream *stream :
             {&source, static_cast<const Stream *>(&copy), static_cast<const Stream *>(&from_memory),
              static_cast<const Stream *>(&from_file)})
            expect_at(*stream, seed, static_cast<Count>(before), "after " + std::to_string(before));
        EXPECT_EQ(from_memory.image(), source.image());
    }
    std::remove(path.c_str());
}

TEST_P(EveryGenerator, SkipsAsIfItHadDrawn) {
    const Seed seed = generator.seeds.back();
    const std::uint64_t one = 1;
    if (!generator.skip_ahead) {
        const Stream stream(id, seed);
        EXPECT_EQ(__huxSkipAheadStream(stream.state, 5), HuxStatusSkipAheadUnsupported);
        expect_at(stream, seed, 0, "refused");
        return;
    }
    for (const std::uint64_t skip : {0 * one, one, 2 * one, 3 * one, 4 * one, 5 * one, 16 * one, 999 * one, one << 40,
                                     one << 62, (one << 63) + 12345, ~(0 * one)})
        for (int before = 0; before < 9; ++before) {
            const Stream stream(id, seed);
            stream.doubles(before, 0, 1);
            ASSERT_EQ(__huxSkipAheadStream(stream.state, skip), HuxStatusOk);
            const Count at = Count{skip} + static_cast<Count>(before);
            expect_at(stream, seed, at, "skip " + std::to_string(skip));
            ASSERT_EQ(__huxSkipAheadStream(stream.state, 7), HuxStatusOk);
            expect_at(stream, seed, at + 7, "another 7");
        }
}

TEST_P(EveryGenerator, SkipsByLongCounts) {
    const Seed seed = generator.seeds.back();
    const std::uint64_t five[] = {5, 0};
    if (!generator.skip_ahead_long) {
        const Stream stream(id, seed);
        EXPECT_EQ(__huxSkipAheadStreamEx(stream.state, 2, five), HuxStatusSkipAheadExUnsupported);
        expect_at(stream, seed, 0, "refused");
        return;
    }
    const std::vector<std::uint64_t> counts[] = {{},        {0},       {0, 0, 0, 0},   {1},
                                                 {5, 0},    {0, 1},    {~five[1], 3},  {77, std::uint64_t{1} << 60},
                                                 {3, 2, 0}, {4, 0, 0}, {3, 0, 0, 0, 0}};
    for (const auto &count : counts)
        for (int before = 0; before < 6; ++before) {
            const Stream stream(id, seed);
            stream.doubles(before, 0, 1);
            ASSERT_EQ(__huxSkipAheadStreamEx(stream.state, static_cast<std::int32_t>(count.size()), count.data()),
                      HuxStatusOk);
            Count at = static_cast<Count>(before);
            for (std::size_t k = 0; k < std::min(count.size(), std::size_t{2}); ++k) at += Count{count[k]} << 64 * k;
            expect_at(stream, seed, at, "words " + std::to_string(count.size()));
        }
}

TEST_P(EveryGenerator, LeapfrogsInterleave) {
    const Seed seed = generator.seeds.back();
    if (!generator.leapfrog) {
        const Stream stream(id, seed);
        EXPECT_EQ(__huxLeapfrogStream(stream.state, 0, 2), HuxStatusLeapfrogUnsupported);
        EXPECT_EQ(__huxLeapfrogStream(stream.state, 0, -1), HuxStatusBadStreamCount);
        expect_at(stream, seed, 0, "refused");
        return;
    }
    for (const int streams : {1, 2, 7})
        for (const Type type : types) {
            const Draws parent = expected(seed, 3, type, streams * 50);
            for (int k = 0; k < streams; ++k) {
                const Stream stream(id, seed);
                stream.doubles(3, 0, 1);
                ASSERT_EQ(__huxLeapfrogStream(stream.state, k, streams), HuxStatusOk);
                Draws draws, every;
                append(draws, stream, type, 50);
                for (std::size_t n = static_cast<std::size_t>(k), step = static_cast<std::size_t>(streams);
                     n < 50 * step; n += step) {
                    if (type == Type::integer) every.integers.push_back(parent.integers[n]);
                    if (type == Type::real_d) every.doubles.push_back(parent.doubles[n]);
                    if (type == Type::real_s) every.singles.push_back(parent.singles[n]);
                }
                EXPECT_EQ(draws, every) << k << " of " << streams;
            }
        }
}

TEST_P(EveryGenerator, TellsMethodsItDoesNotKnow) {
    const Seed seed = generator.seeds.back();
    const Stream stream(id, seed);
    for (const std::int32_t method : {-1, 4, INT32_MAX})
        EXPECT_EQ(stream.row().init(method, stream.state, 2, seed.data()), HuxStatusBadMethod);
    expect_at(stream, seed, 0, "refused");
}

TEST_P(EveryGenerator, TellsThatThereIsNoMemory) {
    const Seed seed = generator.seeds.back();
    for (long n = 1; n < 20; ++n) {
        fail_allocation(n);
        const Stream stream(id, seed);
        const bool failed = allocation_failed();
        fail_allocation(0);
        ASSERT_EQ(stream.status, failed ? HuxStatusOutOfMemory : HuxStatusOk) << n;
        if (!failed) return;
    }
    FAIL() << "never enough";
}

}  // namespace
}  // namespace qorl::test
