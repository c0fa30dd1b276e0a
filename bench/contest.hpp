// The timing engine: contestants take turns on one core, the least time of many short runs counts.
//
// Why so: on shared and virtual machines vector code runs a third slower for seconds at a time while a chain of integer
// adds keeps its speed, so neither a median nor a clock correction helps. Contestants are therefore interleaved in
// rounds, the rounds are spread over passes through all contestants, and each keeps its minimum. Core clocks are
// calibrated in the same rounds by a chain of dependent integer adds, one clock each.
#ifndef QORL_BENCH_CONTEST_HPP
#define QORL_BENCH_CONTEST_HPP

#include <cstdint>
#include <limits>
#include <string>
#include <vector>

namespace qorl::bench {

// The arguments of one call, whatever its shape; unused members stay null.
struct Work {
    std::int32_t n = 0;
    std::int32_t stride = 0;  // of all arrays; 0 for kernels that take no strides
    const void *a = nullptr;
    const void *b = nullptr;  // second array
    double scalar = 0.0;      // second argument by value
    void *y = nullptr;
    void *z = nullptr;  // second result
};

// Calls the target `repeats` times in a row.
using Run = void (*)(void *target, const Work &work, int repeats);

struct Contestant {
    Run run = nullptr;
    void *target = nullptr;
    Work work;
    double ticks = std::numeric_limits<double>::infinity();  // of one call, the minimum
    double spread = 1.0;                                     // median over minimum
};

struct ContestOptions {
    int passes = 20;                  // through all groups, at least
    double seconds = 3.0;             // that the passes shall spread over, at least
    int rounds = 10;                  // of a group in a pass
    double sample_nanoseconds = 1e4;  // least length of one run
};

struct Clock {
    double ticks_per_nanosecond = 0.0;  // time-stamp counter
    double ticks_per_clock = 0.0;       // time-stamp-counter ticks of one core clock
    double spread = 1.0;                // of the calibration chain, median over minimum
};

// Binds the calling thread to one processor, the last that it may use if `cpu` is negative. Returns the processor, or
// -1 if the system refuses.
int pin_to_processor(int cpu = -1);

// Lets the contestants of each group take turns and sets their `ticks` and `spread`.
Clock run_contest(std::vector<std::vector<Contestant> *> groups, const ContestOptions &options);

// The processor's name as the system tells it.
std::string processor_name();

}  // namespace qorl::bench

#endif
