// Contestants from outside: vector math libraries of the machine and the scalar C library.
//
// libmvec, SLEEF and libm are looked up at run time by the rule that makes a symbol out of the C name; Highway's
// functions are templates and compiled in if its headers were there at configure time. "hardware" is the plain loop
// over the AVX2 instructions that compute the function correctly rounded, or nearly so, by themselves.
#ifndef QORL_BENCH_PEERS_HPP
#define QORL_BENCH_PEERS_HPP

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "bench/contest.hpp"
#include "bench/subjects.hpp"

namespace qorl::bench {

struct Peer {
    std::string name;  // libmvec, sleef_u10, highway, libm, hardware
    Run run;
    void *target;
};

// The peers that have this function. Work::n must be a multiple of 8 for them, without strides.
std::vector<Peer> find_peers(char type, Shape shape, const Subject &subject);

// Names of the peers that this machine or this build lacks altogether.
std::vector<std::string> missing_peers();

// What is there, by name and version, for the record.
std::vector<std::pair<std::string, std::string>> peer_versions();

// How vector functions of the given shape are called, compiled for AVX2 (peers_vector.cpp). The pointer is to a
// function on whole vectors, except for `hardware_loop`, which needs none.
Run vector_run(char type, Shape shape);
Run sleef_two_results_run(char type, bool integer_part_first);
Run libmvec_two_results_run(char type);
Run hardware_loop(char type, std::string_view function);

// The loop over Highway's function of that C name, null if there is none (peers_highway.cpp).
Run highway_loop(char type, std::string_view c_name);
const char *highway_version();

}  // namespace qorl::bench

#endif
