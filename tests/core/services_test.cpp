#include <gtest/gtest.h>
#include <sched.h>

#include <barrier>
#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <thread>
#include <vector>

#include "qorl/core.h"

// A request that cannot be met is to come back as null, not to end the program under a sanitizer, whose run-time
// library looks for these names.
extern "C" [[gnu::visibility("default")]] const char *__asan_default_options() {
    return "allocator_may_return_null=1";
}
extern "C" [[gnu::visibility("default")]] const char *__tsan_default_options() {
    return "allocator_may_return_null=1";
}

namespace {

TEST(Allocate, GivesWritableBlocksAtTheAlignment) {
    for (size_t alignment = 1; alignment <= 4096; alignment *= 2) {
        for (size_t size : {size_t{0}, size_t{1}, size_t{100}, size_t{100000}}) {
            void *block = qorl_serv_allocate(size, alignment);
            ASSERT_NE(block, nullptr);
            EXPECT_EQ(reinterpret_cast<uintptr_t>(block) % alignment, 0u);
            std::memset(block, 0x5a, size);
            qorl_serv_deallocate(block);
        }
    }
    qorl_serv_deallocate(nullptr);
}

TEST(Allocate, RefusesWhatIsNoPowerOfTwoOrTooLargeAndKeepsErrno) {
    constexpr size_t most = PTRDIFF_MAX;
    struct {
        size_t size, alignment;
    } const requests[] = {{64, 0},     {64, 3},           {64, 129},       {SIZE_MAX, 128},       {SIZE_MAX - 127, 128},
                          {most, 128}, {most - 128, 128}, {most / 2, 128}, {8, SIZE_MAX / 2 + 1}, {8, most / 2 + 1}};
    for (const auto &request : requests) {
        errno = EDOM;
        EXPECT_EQ(qorl_serv_allocate(request.size, request.alignment), nullptr)
            << request.size << ' ' << request.alignment;
        EXPECT_EQ(errno, EDOM);
    }
}

TEST(MemcpyS, CopiesAllOrNothing) {
    char from[8] = "1234567";
    char to[8] = "abcdefg";
    EXPECT_NE(qorl_serv_memcpy_s(to, 3, from, 4), 0);
    EXPECT_NE(qorl_serv_memcpy_s(to, SIZE_MAX, nullptr, 4), 0);
    EXPECT_NE(qorl_serv_memcpy_s(nullptr, 8, from, 4), 0);
    EXPECT_STREQ(to, "abcdefg");
    EXPECT_EQ(qorl_serv_memcpy_s(to, 8, from, 0), 0);
    EXPECT_EQ(qorl_serv_memcpy_s(to, 4, from, 4), 0);
    EXPECT_STREQ(to, "1234efg");
    EXPECT_EQ(qorl_serv_memcpy_s(to + 2, 6, to, 5), 0);
    EXPECT_STREQ(to, "121234e");
}

TEST(Getenv, DeliversWholeValuesOnly) {
    const char *name = "QORL_CORE_TEST_VARIABLE";
    char buffer[8];
    const auto read = [&](const char *value, int32_t size) {
        std::memset(buffer, '#', sizeof buffer);
        if (value == nullptr) {
            unsetenv(name);
        } else {
            setenv(name, value, 1);
        }
        return qorl_serv_getenv(name, buffer, size);
    };
    EXPECT_EQ(read(nullptr, 8), 0);
    EXPECT_STREQ(buffer, "");
    EXPECT_EQ(read("", 8), 0);
    EXPECT_EQ(read("1234567", 8), 7);
    EXPECT_STREQ(buffer, "1234567");
    EXPECT_EQ(read("12345678", 8), -8);
    EXPECT_STREQ(buffer, "1234567");
    EXPECT_EQ(read("1234", 3), -4);
    EXPECT_EQ(std::string(buffer, 8), std::string("12\0#####", 8));
    EXPECT_EQ(read("1", 1), -1);
    EXPECT_STREQ(buffer, "");
    EXPECT_EQ(read("1", 0), 0);
    EXPECT_EQ(buffer[0], '#');
    EXPECT_EQ(qorl_serv_getenv(nullptr, buffer, 8), 0);
    EXPECT_EQ(qorl_serv_getenv(name, nullptr, 8), 0);
}

TEST(Lock, LetsOneThreadInAtATime) {
    constexpr int threads = 4;
    constexpr int rounds = 2000;
    int32_t lock = 0;
    int64_t counter = 0;
    std::barrier start(threads);
    std::vector<std::thread> team;
    team.reserve(threads);
    for (int t = 0; t < threads; ++t) {
        team.emplace_back([&] {
            start.arrive_and_wait();
            for (int i = 0; i < rounds; ++i) {
                qorl_serv_lock(&lock);
                // Others get the processor between reading and writing, and wait long enough to yield it again.
                const int64_t seen = counter;
                if (i % 16 == 0) sched_yield();
                counter = seen + 1;
                qorl_serv_unlock(&lock);
            }
        });
    }
    for (std::thread &thread : team) thread.join();
    EXPECT_EQ(counter, threads * rounds);
    EXPECT_EQ(lock, 0);
}

TEST(ExitDeathTest, EndsTheProcessWithTheCode) {
    testing::GTEST_FLAG(death_test_style) = "threadsafe";
    EXPECT_EXIT(qorl_serv_exit(3), testing::ExitedWithCode(3), "");
}

}  // namespace
