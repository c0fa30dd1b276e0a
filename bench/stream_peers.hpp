// Random generators of others for the contest of streams: each fills an array with numbers one after another, as its
// users do.
#ifndef QORL_BENCH_STREAM_PEERS_HPP
#define QORL_BENCH_STREAM_PEERS_HPP

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "bench/contest.hpp"

namespace qorl::bench {

struct StreamPeer {
    std::string name;  // gsl_r250
    std::string type;  // i 32-bit words, d doubles on [0, 1)
    std::string like;  // the generator of ours with the same recurrence or cipher; empty when there is none
    Run run;
    void *target;  // lives as long as the process
};

std::vector<StreamPeer> standard_peers();

// Empty where the library was not there when the program was built.
std::vector<StreamPeer> gsl_peers();
std::vector<StreamPeer> random123_peers();

// Names and versions of what is there.
std::vector<std::pair<std::string, std::string>> stream_peer_versions();

// A peer whose `fill` takes the generator, an array and its length.
template <class T, auto fill, class Generator>
void run_fill(void *target, const Work &work, int repeats) {
    for (; repeats > 0; --repeats) fill(*static_cast<Generator *>(target), static_cast<T *>(work.y), work.n);
}

}  // namespace qorl::bench

#endif
