// The per-thread records as the library comes and goes: what is allocated is freed, and a shortage is told.
//
// The library is loaded and unloaded here, and its allocations come to this program: a symbol of the program stands
// before that of a library.
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <pthread.h>
#include <unistd.h>

#include <atomic>
#include <cstdint>
#include <cstdlib>
#include <latch>
#include <stdexcept>
#include <thread>
#include <vector>

#include "qorl/core.h"
#include "qorl/zet.h"

namespace {

std::atomic<int> live = 0, allocations = 0;
std::atomic<bool> exhausted = false, nothing_may_be_freed = false;

}  // namespace

void *qorl_serv_allocate(size_t size, size_t alignment) {
    if (exhausted) return nullptr;
    ++live;
    ++allocations;
    return std::aligned_alloc(alignment, (size + alignment - 1) / alignment * alignment);
}
void qorl_serv_deallocate(void *block) {
    if (nothing_may_be_freed) _exit(9);
    --live;
    std::free(block);
}

namespace {

struct Library {
    void *handle = dlopen(QORL_LIBRARY, RTLD_NOW | RTLD_LOCAL);
    Library() {
        if (handle == nullptr) throw std::runtime_error(dlerror());
    }
    ~Library() { dlclose(handle); }
    Library(const Library &) = delete;
    Library &operator=(const Library &) = delete;

    template <class F>
    F *function(const char *name) const {
        return reinterpret_cast<F *>(dlsym(handle, name));
    }
    std::uint32_t set_mode(std::uint32_t word) const { return function<decltype(_zetSetMode)>("_zetSetMode")(word); }
};

TEST(Record, BelongsToTheThreadAndGoesWithIt) {
    const Library library;
    EXPECT_EQ(live, 1) << "the loading thread has a record from the start";
    library.set_mode(3);
    for (int i = 0; i < 20; ++i) {
        std::thread([&] {
            EXPECT_EQ(live, 1);
            EXPECT_EQ(library.set_mode(1), 0x1A02u);
            EXPECT_EQ(library.set_mode(1), 0x1A01u);
            EXPECT_EQ(live, 2);
        }).join();
    }
    EXPECT_EQ(live, 1);
    EXPECT_EQ(library.set_mode(0), 0x1A03u);
}

// A destructor of another key, which may run behind that of the record.
TEST(Record, IsMadeAgainAndFreedWhereThreadEndUsesTheLibrary) {
    static const Library *in_use;
    const Library library;
    in_use = &library;
    pthread_key_t key;
    ASSERT_EQ(pthread_key_create(&key, [](void *) { in_use->set_mode(1); }), 0);
    std::thread([&] {
        library.set_mode(1);
        pthread_setspecific(key, &key);
    }).join();
    EXPECT_EQ(live, 1);
    pthread_key_delete(key);
}

// More turns than a process has keys, and with threads alive that have records.
TEST(Record, NothingIsLeftAfterUnloading) {
    constexpr int turns = 1200, threads = 3;
    std::atomic<const Library *> library = nullptr;
    std::atomic<int> turn = 0, done = 0;
    const int before = allocations;
    std::vector<std::thread> workers;
    for (int t = 0; t < threads; ++t) {
        workers.emplace_back([&] {
            for (int i = 1; i <= turns; ++i) {
                turn.wait(i - 1);
                EXPECT_EQ(library.load()->set_mode(3), 0x1A02u) << "a record outlived its library";
                if (++done == threads * i) done.notify_one();
            }
            turn.wait(turns);
        });
    }
    for (int i = 1; i <= turns; ++i) {
        const Library loaded;
        library = &loaded;
        turn = i;
        turn.notify_all();
        for (int seen = done; seen != threads * i; seen = done) done.wait(seen);
        EXPECT_EQ(live, threads + 1) << "turn " << i;
    }
    turn = turns + 1;
    turn.notify_all();
    for (std::thread &worker : workers) worker.join();
    EXPECT_EQ(live, 0);
    EXPECT_EQ(allocations - before, turns * (threads + 1));
}

using RecordDeathTest = testing::Test;
constexpr const char *message = "qorl: no memory for the state that each thread keeps\n$";

TEST(RecordDeathTest, ShortageOnFirstUseEndsTheProcessWithAMessage) {
    const auto in_new_thread = [] {
        const Library library;
        exhausted = true;
        std::thread([&] { library.set_mode(1); }).join();
    };
    EXPECT_EXIT(in_new_thread(), testing::ExitedWithCode(3), message);
    const auto from_the_start = [] {
        exhausted = true;
        const Library library;
        std::fputs("loaded\n", stderr);
        library.set_mode(1);
    };
    EXPECT_EXIT(from_the_start(), testing::ExitedWithCode(3), message);
    // A thread that has its record needs no more memory.
    const auto later = [] {
        const Library library;
        exhausted = true;
        std::exit(library.set_mode(1) == 0x1A02 ? 0 : 1);
    };
    EXPECT_EXIT(later(), testing::ExitedWithCode(0), "^$");
}

TEST(RecordDeathTest, ProcessMayExitWhileThreadsAreInsideKernels) {
    const auto exit_meanwhile = [] {
        static const Library &library = *new Library;  // stays loaded
        static std::latch running(3);
        const auto work = [] {
            const auto exp = library.function<decltype(_zetdExp)>("_zetdExp");
            std::vector<double> x(1000, 1000.0), y(1000);
            for (bool first = true;; first = false) {
                exp(1000, x.data(), y.data());
                if (first) running.count_down();
            }
        };
        for (int i = 0; i < 3; ++i) std::thread(work).detach();
        running.wait();
        nothing_may_be_freed = true;  // the threads still read their records
        std::exit(0);
    };
    EXPECT_EXIT(exit_meanwhile(), testing::ExitedWithCode(0), "^$");
}

}  // namespace
