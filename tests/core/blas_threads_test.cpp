// Which BLAS calls start threads. A thread that a call starts stays in its library's pool, so the count of the
// process's threads before and after tells it. OpenMP also ends threads that the next loop has no use for, hence at
// most, not equal; in a process of its own, as ctest gives each case, there are none to end.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <thread>
#include <vector>

#include "qorl/core.h"

namespace {

// Large enough that a BLAS library with threads uses them.
constexpr int32_t order = 300;
constexpr size_t elements = size_t{order} * order;
using Gemm = decltype(&qorl_core_dgemm);

auto threads_of_process() {
    return std::distance(std::filesystem::directory_iterator("/proc/self/task"), {});
}

// A product whose elements are all order * 0.5.
bool product_is_right(Gemm gemm) {
    const std::vector<double> a(elements, 0.5);
    const std::vector<double> b(elements, 1.0);
    std::vector<double> c(elements);
    const double one = 1;
    const double zero = 0;
    gemm("N", "N", &order, &order, &order, &one, a.data(), &order, b.data(), &order, &zero, c.data(), &order);
    return std::all_of(c.begin(), c.end(), [](double x) { return x == order * 0.5; });
}

// OpenBLAS tells by 2 that it was built on OpenMP.
bool blas_shares_openmp() {
    const auto kind = reinterpret_cast<int (*)()>(dlsym(RTLD_DEFAULT, "openblas_get_parallel"));
    return kind != nullptr && kind() == 2;
}

TEST(BlasThreads, UnthreadedFormStaysOnItsThread) {
    const auto before = threads_of_process();
    const int64_t limit = qorl_core_thread_table()->thread_limit();
    EXPECT_TRUE(product_is_right(qorl_core_xdgemm));
    EXPECT_LE(threads_of_process(), before);
    std::thread([=] {
        EXPECT_TRUE(product_is_right(qorl_core_xdgemm));
        EXPECT_LE(threads_of_process(), before + 1);
    }).join();
    // It leaves the wish for threads as it was, and the other form follows that wish.
    EXPECT_EQ(qorl_core_thread_table()->thread_limit(), limit);
    EXPECT_TRUE(product_is_right(qorl_core_dgemm));
    if (blas_shares_openmp()) {
        EXPECT_GE(threads_of_process(), limit);
    }
}

TEST(BlasThreads, BothFormsStayOnTheirThreadInsideALoop) {
    const QorlThreadTable *table = qorl_core_thread_table();
    if (table->thread_limit() < 2) GTEST_SKIP() << "one thread only";
    if (!blas_shares_openmp()) GTEST_SKIP() << "the BLAS library does not share OpenMP's threads";
    const auto before = threads_of_process();
    int right[4] = {};
    table->parallel_for(2, 4, right, [](int64_t index, int64_t, int64_t, void *context) {
        static_cast<int *>(context)[index] = product_is_right(index % 2 == 0 ? qorl_core_dgemm : qorl_core_xdgemm);
    });
    EXPECT_EQ(std::count(right, right + 4, 1), 4);
    EXPECT_LE(threads_of_process(), std::max<decltype(before)>(before, 2));
}

}  // namespace
