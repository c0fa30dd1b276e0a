// How the timed calls of the library's own kernels are made.
#ifndef QORL_BENCH_KERNELS_HPP
#define QORL_BENCH_KERNELS_HPP

#include "bench/contest.hpp"
#include "frame/entries.hpp"

namespace qorl::bench {

// How a kernel of this entry is called; null for shapes that the benchmarks do not know (complex, pack).
Run kernel_run(const Entry &entry);

}  // namespace qorl::bench

#endif
