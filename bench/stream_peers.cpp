#include "bench/stream_peers.hpp"

#include <random>

#ifdef QORL_BENCH_GSL
#include <gsl/gsl_rng.h>
#include <gsl/gsl_version.h>
#endif

namespace qorl::bench {
namespace {

void fill_words(std::mt19937 &generator, std::uint32_t *r, int n) {
    for (int k = 0; k < n; ++k) r[k] = static_cast<std::uint32_t>(generator());
}
void fill_doubles(std::mt19937 &generator, double *r, int n) {
    std::uniform_real_distribution<double> uniform(0.0, 1.0);
    for (int k = 0; k < n; ++k) r[k] = uniform(generator);
}

#ifdef QORL_BENCH_GSL
void fill_gsl_words(gsl_rng &generator, std::uint32_t *r, int n) {
    for (int k = 0; k < n; ++k) r[k] = static_cast<std::uint32_t>(gsl_rng_get(&generator));
}
void fill_gsl_doubles(gsl_rng &generator, double *r, int n) {
    for (int k = 0; k < n; ++k) r[k] = gsl_rng_uniform(&generator);
}
#endif

}  // namespace

std::vector<StreamPeer> standard_peers() {
    static std::mt19937 generator;
    return {{"std_mt19937", "i", "MT19937", run_fill<std::uint32_t, fill_words, std::mt19937>, &generator},
            {"std_mt19937", "d", "MT19937", run_fill<double, fill_doubles, std::mt19937>, &generator}};
}

std::vector<StreamPeer> gsl_peers() {
    std::vector<StreamPeer> peers;
#ifdef QORL_BENCH_GSL
    const struct {
        const char *name, *like;
        const gsl_rng_type *type;
    } types[] = {{"gsl_mt19937", "MT19937", gsl_rng_mt19937},
                 {"gsl_r250", "R250", gsl_rng_r250},
                 {"gsl_cmrg", "", gsl_rng_cmrg},
                 {"gsl_taus", "", gsl_rng_taus}};
    for (const auto &one : types) {
        gsl_rng *const generator = gsl_rng_alloc(one.type);
        if (generator == nullptr) continue;
        peers.push_back({one.name, "i", one.like, run_fill<std::uint32_t, fill_gsl_words, gsl_rng>, generator});
        peers.push_back({one.name, "d", one.like, run_fill<double, fill_gsl_doubles, gsl_rng>, generator});
    }
#endif
    return peers;
}

#ifndef QORL_BENCH_RANDOM123
std::vector<StreamPeer> random123_peers() {
    return {};
}
#endif

std::vector<std::pair<std::string, std::string>> stream_peer_versions() {
    return {
        {"libstdc++", std::to_string(_GLIBCXX_RELEASE)},
#ifdef QORL_BENCH_GSL
        {"gsl", gsl_version},
#endif
#ifdef QORL_BENCH_RANDOM123
        {"random123", "its headers tell no version"},
#endif
    };
}

}  // namespace qorl::bench
