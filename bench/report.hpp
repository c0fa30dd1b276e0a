// What the benchmark programs share: Google Benchmark is given the figures of a contest that is over, under its usual
// options.
#ifndef QORL_BENCH_REPORT_HPP
#define QORL_BENCH_REPORT_HPP

#include <regex>
#include <string>

#include "bench/contest.hpp"

namespace qorl::bench {

// The filter of --benchmark_filter as Google Benchmark reads it: an extended regular expression, a leading minus
// inverts it.
class Filter {
  public:
    Filter();
    bool matches(const std::string &row) const;

  private:
    bool inverted_ = false;
    std::regex pattern_;
};

// Whether the arguments ask for the names of the rows only. To be asked before Google Benchmark takes its own away.
bool asks_for_list(int argc, char **argv);

// Whether this processor can run the library; says so when it can't.
bool processor_will_do(const char *program);

// Counts rows whose times were spread so much that the machine was busy with something else.
class Noise {
  public:
    void add(double spread);
    // A word on standard error when it was too loud.
    void report(const char *program, const Clock &clock) const;

  private:
    int rows_ = 0, noisy_ = 0;
};

// Processor and clocks into the context of the output.
void add_context(const Clock &clock, int pinned);

}  // namespace qorl::bench

#endif
