// Floating-point control state: the exceptions of a raise, what a kernel computes under, and what its caller gets back.
#include <gtest/gtest.h>
#include <immintrin.h>

#include <cerrno>
#include <cfenv>
#include <csetjmp>
#include <csignal>
#include <cstdint>
#include <cstring>
#include <functional>
#include <limits>
#include <vector>

#include "any_shape.hpp"
#include "frame/raise.hpp"
#include "fresh_thread.hpp"
#include "qorl/zet.h"
#include "toy_kernels.hpp"

namespace {

using qorl::Form;
using namespace qorl::test;

constexpr std::uint16_t invalid = 0x01, zero_divide = 0x04, overflow = 0x08, underflow = 0x10, all_x87 = 0x3F;
constexpr std::uint32_t sticky = 0x3F, control = 0xFFC0, initial_mxcsr = 0x1F80, flushing_mxcsr = 0x9FC0;

std::uint16_t x87_flags() {
    std::uint16_t status;
    asm volatile("fnstsw %0" : "=m"(status));
    return status & all_x87;
}
std::uint16_t x87_control() {
    std::uint16_t word;
    asm volatile("fnstcw %0" : "=m"(word));
    return word;
}
void set_x87_control(std::uint16_t word) {
    asm volatile("fnclex\n\tfldcw %0" ::"m"(word));
}

void raise_one(std::int32_t status, double *y) {
    qorl::raise<double>(status, 0, {y, 1}, {y, 1}, {y, 1}, {y, 1}, "vdToy");
}

constexpr struct {
    std::int32_t status;
    std::uint16_t flag;
    std::uint32_t trap;  // of the mode word
    int code;            // of the signal
} exceptions[] = {
    {1, invalid, 0x1000000, FPE_FLTINV},
    {2, zero_divide, 0x2000000, FPE_FLTDIV},
    {3, overflow, 0x4000000, FPE_FLTOVF},
    {4, underflow, 0x8000000, FPE_FLTUND},
    {5, 0, 0, 0},
    {-1, 0, 0, 0},
    {-2, 0, 0, 0},
};
constexpr std::uint32_t all_traps = 0xF000000;

TEST(Exception, LeavesItsStickyFlagAndNoTrapWithoutATrapBit) {
    for (const auto &row : exceptions) {
        in_fresh_thread([&] {
            double y = 2;
            _zetSetMode(0x800 | (all_traps & ~row.trap));
            if (row.trap == 0) _zetSetMode(all_traps);
            asm volatile("fnclex");
            raise_one(row.status, &y);
            EXPECT_EQ(x87_flags(), row.flag) << row.status;
            EXPECT_EQ(x87_control() & all_x87, all_x87);
        });
    }
    in_fresh_thread([] {
        double y = 2;
        asm volatile("fnclex");
        raise_one(1, &y);
        raise_one(4, &y);
        EXPECT_EQ(x87_flags(), invalid | underflow) << "flags gather";
    });
}

sigjmp_buf back;
volatile sig_atomic_t signal_code;

// Runs f and returns the code of the SIGFPE that ended it, or 0.
int trapped(const std::function<void()> &f) {
    struct sigaction action = {}, old;
    action.sa_flags = SA_SIGINFO;
    action.sa_sigaction = [](int, siginfo_t *information, void *) {
        signal_code = information->si_code;
        siglongjmp(back, 1);
    };
    sigaction(SIGFPE, &action, &old);
    signal_code = 0;
    if (sigsetjmp(back, 1) == 0) f();
    std::fesetenv(FE_DFL_ENV);
    sigaction(SIGFPE, &old, nullptr);
    return signal_code;
}

TEST(Exception, IsDeliveredAtTheRaiseWithItsTrapBit) {
    for (const auto &row : exceptions) {
        if (row.trap == 0) continue;
        SCOPED_TRACE(row.status);
        in_fresh_thread([&] {
            double y = 2;
            _zetSetMode(0x800 | row.trap);
            EXPECT_EQ(trapped([&] { raise_one(row.status, &y); }), row.code);
            _zetSetMode(0x200);  // trap bits act while the exception bit does
            EXPECT_EQ(trapped([&] { raise_one(row.status, &y); }), 0);
        });
    }
    in_fresh_thread([] {  // from inside a kernel, which masks everything for itself
        double x[] = {1, 1000, 1}, y[3];
        _zetSetMode(0x4000000);
        const auto run = [&] { call(*qorl::find_entry('d', "Exp"), qorl::Level::HA, 3, Arguments<double>{{x}, {y}}); };
        EXPECT_EQ(trapped(run), FPE_FLTOVF);
        x[1] = -1000;
        EXPECT_EQ(trapped(run), 0);
    });
}

struct State {
    std::uint32_t mxcsr;
    std::uint16_t x87;
};

// Calls f under `state` and returns the state after it; nothing else runs under it.
template <class F>
State under(State state, F f) {
    const unsigned usual = _mm_getcsr();
    const std::uint16_t usual_x87 = x87_control();
    set_x87_control(state.x87);
    _mm_setcsr(state.mxcsr);
    f();
    state.mxcsr = _mm_getcsr();
    _mm_setcsr(usual);
    state.x87 = x87_control();
    set_x87_control(usual_x87);
    return state;
}

constexpr State states[] = {
    {0x1F80, 0x037F},                   // the usual one
    {0x1F80 | 0x4000, 0x037F | 0x800},  // rounding upward
    {0x1F80 | 0x2000, 0x037F | 0x400},  // downward
    {0x1F80 | 0x6000, 0x007F | 0xC00},  // toward zero, x87 in single precision
    {0x9FC0, 0x037F},                   // denormals flushed
    {0x1FC0, 0x037F},
    {0x9F80, 0x037F},
    {0x0000, 0x0340},  // all unmasked
    {0x0000 | 0x4000 | 0x8040, 0x0340 | 0x800},
    {0x1E80, 0x037E},
    {0x1F00, 0x037F},
    {0x1F80, 0x035F},  // one unmasked
    {0x1FBF, 0x037F},
    {0x1F82 | 0x2000, 0x037F},  // flags set before
};

template <class T>
std::vector<T> samples() {
    std::vector<T> x = {T(0),   T(-0.0), T(1),      T(-1),    T(0.1),  T(-0.3),
                        T(2.5), T(30),   T(-50.25), T(1e-30), T(1000), T(-1000)};
    using L = std::numeric_limits<T>;
    for (const T value : {L::denorm_min(), L::min(), L::max(), L::infinity(), L::quiet_NaN()}) {
        x.push_back(value);
        x.push_back(-value);
    }
    for (int i = 0; x.size() < 75; ++i) x.push_back(static_cast<T>(0.37 * i - 8));
    return x;
}

template <class T>
void check_caller_state(const qorl::Function &function) {
    const qorl::Entry *const unit = qorl::find_entry(function.type, function.name);
    const std::vector<T> a = samples<T>(), b(a.rbegin(), a.rend());
    const auto n = static_cast<std::int32_t>(a.size() / 2);
    for (const qorl::Entry *entry : {unit, qorl::strided_twin(*unit)}) {
        for (const qorl::Level level : levels) {
            SCOPED_TRACE(name_of(function) + (entry == unit ? " unit " : " strided ") +
                         level_names[static_cast<int>(level)]);
            std::vector<T> usual[2];
            for (const State &state : states) {
                std::vector<T> y(a.size()), z(a.size());
                const Arguments<T> arguments{{a.data(), b.data()}, {y.data(), z.data()}, {2, 2}, {2, 2}};
                const State after = under(state, [&] { call(*entry, level, n, arguments); });
                EXPECT_EQ(after.x87, state.x87);
                EXPECT_EQ(after.mxcsr & ~sticky, state.mxcsr & ~sticky);
                EXPECT_EQ(after.mxcsr & state.mxcsr & sticky, state.mxcsr & sticky) << "a flag was cleared";
                if (usual[0].empty()) {
                    usual[0] = y;
                    usual[1] = z;
                }
                EXPECT_EQ(std::memcmp(y.data(), usual[0].data(), y.size() * sizeof(T)), 0) << std::hex << state.mxcsr;
                EXPECT_EQ(std::memcmp(z.data(), usual[1].data(), z.size() * sizeof(T)), 0) << std::hex << state.mxcsr;
            }
        }
    }
}

TEST(Control, ResultsAreIndependentOfTheCallersStateWhichIsBackAfterTheCall) {
    in_fresh_thread([] {
        _zetSetMode(0x100);
        for (const qorl::Function &function : qorl::functions) {
            for_type(function, [&]<class T>(T) { check_caller_state<T>(function); });
        }
    });
}

// Calls the toy that multiplies by `factor`.
double scaled(double x, double factor, std::uint32_t *mxcsr_after, State state = {initial_mxcsr, 0x037F}) {
    const Toy &toy = toys[toy_array_scalar];
    double y = 0;
    const Arguments<double> arguments{{&x}, {&y}, {1, 1}, {1, 1}, {factor}};
    *mxcsr_after =
        under(state, [&] { call(toy.shape, Form::unit, toy.kernel<double>(Form::unit), 1, arguments); }).mxcsr;
    return y;
}

TEST(Control, FlagsOfTheKernelAreAddedToTheCallers) {
    in_fresh_thread([] {
        for (const std::uint32_t mxcsr : {initial_mxcsr, 0x5F80u, 0x0000u, 0x9FC4u}) {
            std::uint32_t after;
            scaled(1, 1, &after, {mxcsr, 0x037F});
            EXPECT_EQ(after, mxcsr);
            EXPECT_EQ(scaled(0.1, 3, &after, {mxcsr, 0x037F}), 0x1.3333333333334p-2);
            EXPECT_EQ(after, mxcsr | 0x20) << "inexact";
        }
    });
}

TEST(Control, DenormalsAreFlushedAsTheModeSaysAtTheCall) {
    constexpr double denormal = 0x1p-1060;
    const struct {
        std::uint32_t mode;
        bool flushes;
    } rows[] = {{0, false}, {0x280000, true}, {0x140000, false}, {0x3C0000, false}, {0x080000, false}};
    for (const auto &row : rows) {
        for (const std::uint32_t mxcsr : {initial_mxcsr, flushing_mxcsr}) {
            in_fresh_thread([&] {
                std::uint32_t after;
                _zetSetMode(row.mode);
                EXPECT_EQ(scaled(denormal, 0x1p1000, &after, {mxcsr, 0x037F}), row.flushes ? 0 : 0x1p-60);
                EXPECT_EQ(scaled(0x1p-1000, 0x1p-60, &after, {mxcsr, 0x037F}), row.flushes ? 0 : denormal);
            });
        }
    }
}

std::uint32_t mxcsr_in_call_back;
unsigned char upper_halves[16][16];

// Stores the upper halves of all vector registers.
[[gnu::always_inline]] inline void store_upper_halves() {
    asm volatile(
        ".irp r, 0,1,2,3,4,5,6,7,8,9,10,11,12,13,14,15\n\t"
        "vextractf128 $1, %%ymm\\r, \\r*16(%0)\n\t"
        ".endr" ::"r"(upper_halves)
        : "memory");
}
// The compiler puts the instructions that clear them; it does so when it optimises.
#ifdef __OPTIMIZE__
constexpr bool compiler_clears_upper_halves = true;
#else
constexpr bool compiler_clears_upper_halves = false;
#endif
bool upper_halves_are_clear() {
    for (const auto &half : upper_halves)
        for (const unsigned char byte : half)
            if (byte != 0) return false;
    return true;
}

TEST(Control, CallBackRunsInTheKernelsStateWithUpperHalvesClear) {
    for (const bool flush : {false, true}) {
        in_fresh_thread([&] {
            _zetSetErrorCallBack([](QorlErrorRecord *) {
                store_upper_halves();
                mxcsr_in_call_back = _mm_getcsr();
                _zetSetMode(0x140000);  // applies from the next call
                return 0;
            });
            if (flush) _zetSetMode(0x280000);
            std::vector<double> x(23, 0.3), y(23);
            x[3] = x[20] = 1000;
            const Arguments<double> arguments{{x.data()}, {y.data()}};
            for (const std::size_t only : {3u, 20u, 99u}) {
                for (const std::size_t i : {3u, 20u}) x[i] = i == only ? 1000 : 0.3;
                if (flush) _zetSetMode(0x280000);
                mxcsr_in_call_back = 0;
                under({0x7F80, 0x037F}, [&] {
                    asm volatile("vcmptrueps %%ymm15, %%ymm15, %%ymm15" ::: "xmm15");
                    call(*qorl::find_entry('d', "Exp"), qorl::Level::LA, 23, arguments);
                    if (only == 99) store_upper_halves();
                });
                EXPECT_TRUE(!compiler_clears_upper_halves || upper_halves_are_clear());
                EXPECT_EQ(mxcsr_in_call_back & control, only == 99 ? 0 : flush ? flushing_mxcsr : initial_mxcsr);
            }
        });
    }
}

}  // namespace
