#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstring>
#include <functional>
#include <string>
#include <string_view>

#include "allocator.hpp"
#include "toy_generator.hpp"

namespace qorl::test {
namespace {

class StreamTest : public Balanced {};

using Numbers = std::vector<std::uint64_t>;

TEST_F(StreamTest, IsCreatedWithItsHeadAlignedAndDeletedToNull) {
    Stream stream(toy_id(), 7);
    ASSERT_EQ(stream.status, HuxStatusOk);
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(stream.state) % 128, 0u);
    EXPECT_EQ(stream.state->header_flag, 1);
    EXPECT_EQ(__huxGetStreamStateBrng(stream.state), toy_id());
    EXPECT_EQ(stream.draw(3), (Numbers{7, 8, 9}));
    EXPECT_EQ(__huxDeleteStream(&stream.state), HuxStatusOk);
    EXPECT_EQ(stream.state, nullptr);
}

TEST_F(StreamTest, IsRefusedWhereNoGeneratorStands) {
    StreamState mark{}, *stream = &mark;
    const std::uint32_t seed = 1;
    for (const std::int32_t id : {279, 280, 281, -1, INT32_MIN, 10485760, 11534336, 12582912, 5243153, INT32_MAX}) {
        EXPECT_EQ(__huxNewStreamEx(&stream, id, 1, &seed), HuxStatusBadBrngId) << id;
        EXPECT_EQ(stream, &mark) << id;
    }
    for (std::int32_t row = 0; row < 16; ++row) {
        if (__RegBrngsNew[row].init != nullptr) continue;
        EXPECT_EQ(__huxNewStreamEx(&stream, family_id(row), 1, &seed), HuxStatusBadBrngId) << row;
        EXPECT_EQ(__huxAllocateStream(&stream, __RegBrngsNew, family_id(row), row, 0), HuxStatusBadBrngId) << row;
    }
    EXPECT_EQ(__huxAllocateStream(&stream, __RegBrngs, 279, 279, 0), HuxStatusBadBrngId);
    EXPECT_EQ(stream, &mark);
}

TEST_F(StreamTest, AbstractCreatorsJudgeTheirArguments) {
    StreamState *stream = nullptr;
    std::uint32_t words[1];
    double doubles[1];
    float singles[1];
    const HuxIntegerCallback i = [](StreamState *, auto...) -> std::int32_t { return 0; };
    const HuxDoubleCallback d = [](StreamState *, auto...) -> std::int32_t { return 0; };
    const HuxSingleCallback s = [](StreamState *, auto...) -> std::int32_t { return 0; };
    EXPECT_EQ(__huxiNewAbstractStream(&stream, 0, words, i), HuxStatusBadArguments);
    EXPECT_EQ(__huxiNewAbstractStream(&stream, 1, nullptr, i), HuxStatusBadArguments);
    EXPECT_EQ(__huxiNewAbstractStream(&stream, 1, words, nullptr), HuxStatusBadArguments);
    EXPECT_EQ(__huxdNewAbstractStream(&stream, 0, doubles, 0, 1, d), HuxStatusBadArguments);
    EXPECT_EQ(__huxdNewAbstractStream(&stream, 1, nullptr, 0, 1, d), HuxStatusBadArguments);
    EXPECT_EQ(__huxdNewAbstractStream(&stream, 1, doubles, 1, 1, d), HuxStatusBadArguments);
    EXPECT_EQ(__huxsNewAbstractStream(&stream, 1, singles, 2, 1, s), HuxStatusBadArguments);
    EXPECT_EQ(__huxsNewAbstractStream(&stream, 1, singles, 0, 1, nullptr), HuxStatusBadArguments);
    // A NaN end passes, and what follows is the generator's.
    const std::int32_t expected = __RegBrngsNew[row_dAbstract].init == nullptr ? HuxStatusBadBrngId : HuxStatusOk;
    EXPECT_EQ(__huxdNewAbstractStream(&stream, 1, doubles, std::nan(""), 1, d), expected);
    if (stream != nullptr) __huxDeleteStream(&stream);
}

TEST_F(StreamTest, PositionIsMovedThroughTheGenerator) {
    Stream stream(toy_id(), 100);
    EXPECT_EQ(__huxSkipAheadStream(stream.state, 5), HuxStatusOk);
    EXPECT_EQ(stream.draw(1), Numbers{105});
    EXPECT_EQ(__huxSkipAheadStream(stream.state, std::uint64_t{1} << 40), HuxStatusOk);
    EXPECT_EQ(stream.draw(1), Numbers{106 + (std::uint64_t{1} << 40)});
    Stream frog(toy_id(), 100);
    EXPECT_EQ(__huxLeapfrogStream(frog.state, 2, -1), HuxStatusBadStreamCount);
    EXPECT_EQ(__huxLeapfrogStream(frog.state, 2, 3), HuxStatusOk);
    EXPECT_EQ(frog.draw(3), (Numbers{102, 105, 108}));
    const std::uint64_t count[] = {1, 0};
    EXPECT_EQ(__huxSkipAheadStreamEx(frog.state, 2, count), HuxStatusSkipAheadExUnsupported);
}

TEST_F(StreamTest, CopyContinuesAndSharesOnlySharedData) {
    Stream source(toy_id(), 4), copy;
    source.draw(3);
    ASSERT_EQ(__huxCopyStream(&copy.state, source.state), HuxStatusOk);
    EXPECT_EQ(copy.draw(4), source.draw(4));
    EXPECT_EQ(__huxSearchChunk(copy.state, shared_chunk), __huxSearchChunk(source.state, shared_chunk));
    void *const own = __huxSearchChunk(copy.state, private_chunk);
    ASSERT_NE(own, __huxSearchChunk(source.state, private_chunk));
    EXPECT_EQ(std::memcmp(own, __huxSearchChunk(source.state, private_chunk), chunk_bytes), 0);
    EXPECT_EQ(source.state->chunks->id, shared_chunk);
    EXPECT_EQ(copy.state->chunks->id, private_chunk) << "the order is reversed";
    __huxDeleteStream(&source.state);
    EXPECT_EQ(*static_cast<unsigned char *>(__huxSearchChunk(copy.state, shared_chunk)), shared_chunk);
}

TEST_F(StreamTest, CopyOfTheStateTakesTheSeedWordsAndTheChunks) {
    Stream source(toy_id(), 4), target(toy_id(), 9);
    __huxLeapfrogStream(target.state, 0, 10);
    ASSERT_EQ(__huxCopyStreamState(target.state, source.state), HuxStatusOk);
    EXPECT_EQ(target.draw(2), (Numbers{4, 14})) << "one word of eight bytes is copied, the step behind it stays";
    EXPECT_EQ(__huxGetNumChunks(target.state), 2);
    StreamChunk *const before = source.state->chunks;
    EXPECT_EQ(__huxCopyStreamState(source.state, source.state), HuxStatusOk);
    EXPECT_EQ(source.state->chunks, before);
}

TEST_F(StreamTest, CopyOfALongSeedStopsAtTheEndOfTheState) {
    Stream source(long_seed_id(), 4), target(long_seed_id(), 9);
    __huxLeapfrogStream(source.state, 0, 10);
    ASSERT_EQ(__huxCopyStreamState(target.state, source.state), HuxStatusOk);
    EXPECT_EQ(target.draw(2), (Numbers{4, 14}));
}

// Each allocation of each entry fails in turn: the status tells it, nothing leaks, and the source still works.
TEST_F(StreamTest, EveryFailingAllocationIsToldAndLeaksNothing) {
    Stream source(toy_id(), 4);
    std::vector<std::uint8_t> image(static_cast<std::size_t>(__huxGetStreamSize(source.state)));
    __huxSaveStreamM(source.state, image.data());
    const std::string name = testing::TempDir() + "qorl_alloc_stream";
    const auto length = static_cast<std::int32_t>(name.size());
    ASSERT_EQ(__huxSaveStreamF(source.state, name.data(), length), HuxStatusOk);
    Stream target(toy_id(), 1);

    struct Entry {
        const char *name;
        long allocations;
        std::function<std::int32_t(StreamState **)> call;
    };
    const std::uint32_t seed = 5;
    const Entry entries[] = {
        {"__huxNewStreamEx", 5, [&](StreamState **s) { return __huxNewStreamEx(s, toy_id(), 1, &seed); }},
        {"__huxCopyStream", 4, [&](StreamState **s) { return __huxCopyStream(s, source.state); }},
        {"__huxCopyStreamState", 3, [&](StreamState **) { return __huxCopyStreamState(target.state, source.state); }},
        {"__huxLoadStreamM", 5, [&](StreamState **s) { return __huxLoadStreamM(s, image.data()); }},
        {"__huxLoadStreamF", 6, [&](StreamState **s) { return __huxLoadStreamF(s, name.data(), length); }},
        {"__huxSaveStreamF", 1, [&](StreamState **) { return __huxSaveStreamF(source.state, name.data(), length); }},
    };
    for (const Entry &entry : entries) {
        long n = 1;
        for (;; ++n) {
            StreamState *stream = nullptr;
            fail_allocation(n);
            const std::int32_t status = entry.call(&stream);
            const bool failed = allocation_failed();
            fail_allocation(0);
            EXPECT_EQ(status, failed ? HuxStatusOutOfMemory : HuxStatusOk) << entry.name << ", allocation " << n;
            const bool loads = std::string_view(entry.name).starts_with("__huxLoad");
            EXPECT_FALSE(failed && loads && stream != nullptr) << entry.name;
            if (stream != nullptr) __huxDeleteStream(&stream);
            if (!failed || n == 100) break;
        }
        EXPECT_EQ(n, entry.allocations + 1) << entry.name;
    }
    EXPECT_EQ(source.draw(2), (Numbers{4, 5}));
    EXPECT_EQ(__huxGetNumChunks(source.state), 2);
    std::remove(name.c_str());
}

}  // namespace
}  // namespace qorl::test
