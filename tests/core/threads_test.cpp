#include <gtest/gtest.h>
#include <sched.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <set>
#include <vector>

#include "qorl/core.h"

namespace {

// What a body saw at an index.
struct Visit {
    int calls = 0;
    int64_t thread = -1;
    int64_t threads = -1;
    pid_t system_thread = 0;
    int64_t limit_inside = 0;
};

void visit(int64_t index, int64_t thread, int64_t threads, void *context) {
    Visit &seen = static_cast<Visit *>(context)[index];
    seen = {seen.calls + 1, thread, threads, gettid(), qorl_core_thread_table()->thread_limit()};
}

const QorlThreadTable *const tables[] = {qorl_core_thread_table(), qorl_core_serial_table()};

void check_loop(void (*parallel_for)(int64_t, int64_t, void *, QorlLoopBody), int64_t limit) {
    for (int64_t count : {-1, 0, 1, 2, 5, 1000}) {
        for (int64_t threads : {INT64_MIN, int64_t{-1}, int64_t{0}, int64_t{1}, int64_t{2}, int64_t{3}, INT64_MAX}) {
            std::vector<Visit> visits(static_cast<size_t>(std::max<int64_t>(count, 0)));
            parallel_for(threads, count, visits.data(), visit);
            const int64_t shares = std::max<int64_t>(1, std::min({threads, limit, count}));
            std::vector<int64_t> sizes(static_cast<size_t>(shares));
            int64_t last = 0;
            for (const Visit &seen : visits) {
                ASSERT_EQ(seen.calls, 1);
                ASSERT_EQ(seen.threads, shares);
                ASSERT_GE(seen.thread, last) << "the shares are ascending ranges";
                ASSERT_LT(seen.thread, shares);
                last = seen.thread;
                ++sizes[static_cast<size_t>(last)];
            }
            const auto [least, most] = std::minmax_element(sizes.begin(), sizes.end());
            EXPECT_LE(*most - *least, 1) << "the shares are even";
        }
    }
}

TEST(ThreadTables, LoopsVisitEachIndexOnce) {
    for (const QorlThreadTable *table : tables) check_loop(table->parallel_for, table->thread_limit());
}

TEST(ThreadTables, RegionsRunOncePerThread) {
    for (const QorlThreadTable *table : tables) {
        const int64_t limit = table->thread_limit();
        for (int64_t threads : {int64_t{-1}, int64_t{1}, int64_t{2}, limit, limit + 1, INT64_MAX}) {
            const int64_t shares = std::clamp<int64_t>(threads, 1, limit);
            std::vector<Visit> visits(static_cast<size_t>(shares));
            table->parallel_region(threads, 0, visits.data(), visit);
            std::set<pid_t> system_threads;
            for (int64_t s = 0; s < shares; ++s) {
                const Visit &seen = visits[static_cast<size_t>(s)];
                EXPECT_EQ(seen.calls, 1);
                EXPECT_EQ(seen.thread, s);
                EXPECT_EQ(seen.threads, shares);
                if (shares > 1) {
                    EXPECT_EQ(seen.limit_inside, 1);
                }
                system_threads.insert(seen.system_thread);
            }
            EXPECT_EQ(system_threads.size(), static_cast<size_t>(shares)) << "each share has a thread of its own";
        }
    }
}

TEST(ThreadTables, LimitIsWhatTheEnvironmentAsksForOrTheProcessors) {
    const char *asked = std::getenv("OMP_NUM_THREADS");
    cpu_set_t processors;
    ASSERT_EQ(sched_getaffinity(0, sizeof processors, &processors), 0);
    EXPECT_EQ(qorl_core_thread_table()->thread_limit(), asked ? std::atoi(asked) : CPU_COUNT(&processors));
    EXPECT_EQ(qorl_core_serial_table()->thread_limit(), 1);
    for (const QorlThreadTable *table : tables) {
        EXPECT_EQ(table->spare1, nullptr);
        EXPECT_EQ(table->spare3, nullptr);
    }
}

TEST(ThreadTables, LoopsNestInsideLoops) {
    constexpr int64_t inner = 50;
    for (const QorlThreadTable *outer_table : tables) {
        std::vector<std::vector<Visit>> rows(7, std::vector<Visit>(inner));
        outer_table->parallel_for(INT64_MAX, 7, rows.data(), [](int64_t index, int64_t, int64_t, void *context) {
            auto &row = static_cast<std::vector<Visit> *>(context)[index];
            qorl_core_thread_table()->parallel_for(INT64_MAX, inner, row.data(), visit);
        });
        for (const auto &row : rows) {
            for (const Visit &seen : row) EXPECT_EQ(seen.calls, 1);
        }
    }
}

TEST(LoadThreadFun, FindsTheTwoNames) {
    const auto threader = reinterpret_cast<QorlThreaderFor>(qorl_serv_load_thread_fun("qorl_hux_serv_threader_for"));
    const auto limit =
        reinterpret_cast<QorlThreaderLimit>(qorl_serv_load_thread_fun("qorl_hux_serv_threader_get_num_threads_limit"));
    ASSERT_NE(threader, nullptr);
    ASSERT_NE(limit, nullptr);
    EXPECT_EQ(limit(), qorl_core_thread_table()->thread_limit());
    check_loop(threader, limit());
    for (const char *name : {static_cast<const char *>(nullptr), "", "qorl_hux_serv_threader", "qorl_serv_exit"}) {
        EXPECT_EQ(qorl_serv_load_thread_fun(name), nullptr);
    }
}

}  // namespace
