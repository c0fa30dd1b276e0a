// The largest error of a contestant, ours or a peer's, on the range of arguments that the times are taken on.
#ifndef QORL_BENCH_ERRORS_HPP
#define QORL_BENCH_ERRORS_HPP

#include <memory>

#include "bench/contest.hpp"
#include "bench/subjects.hpp"
#include "frame/entries.hpp"

namespace qorl::bench {

// Exact values of one function at random arguments of the range and around the zeros, poles and ends in it.
class ErrorProbe {
  public:
    ErrorProbe(const Subject &subject, const Entry &entry, int random_points);
    ~ErrorProbe();

    // In units in the last place of the correctly rounded result, over all results; 1e30 where it is not finite. NaN
    // if no exact values are to be had for the function.
    double largest_error(const Contestant &contestant) const;

  private:
    struct Points;
    std::unique_ptr<Points> points_;
};

}  // namespace qorl::bench

#endif
