// Times and errors of the vector math functions beside their peers, as Google Benchmark reports.
//
// The times are taken in one contest before the report begins (contest.hpp says why); the benchmarks then only hand
// them over, so that the usual options work: --benchmark_filter=exp/d, --benchmark_format=json, --benchmark_out=FILE.
// A filter that matches one row of a function makes the whole function run, for its ratios.
//
// Names are exp/d/HA/n=1000, exp/d/libmvec/n=1000, exp/d/HA/n=8, exp/d/HA/n=480/stride=3; a range of its own is part of
// the function, as in sin_wide. Google Benchmark appends "/iterations:1/manual_time". The time of a row is that of the
// whole call. In JSON a row has these members more, each only where it was measured or makes sense:
//
//   ns, ticks, clocks  of one element: nanoseconds, time-stamp-counter ticks, core clocks
//   call_clocks        core clocks of the whole call
//   overhead           ours, n = 8: call_clocks less 8 times the clocks of n = 1000
//   ulp                largest error seen on the range of arguments, 1e30 for a result that is not finite
//   ratio              ours: time over the fastest peer of equal or larger error; at EP, over the fastest peer
//   ratio_any          ours: time over the fastest peer whatever its error
//   spread             median over minimum of the runs
//   label              ours: "against PEER, PEER", the two peers of ratio and ratio_any
//
// and the context has processor, cpu, ghz_core, ghz_counter, spread_chain and one member for each peer's version.

#include <benchmark/benchmark.h>

#include <CLI/CLI.hpp>
#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

#include "bench/contest.hpp"
#include "bench/heat.hpp"
#include "bench/peers.hpp"
#include "bench/report.hpp"

namespace {

using namespace qorl::bench;

bool matches(const Filter &filter, const Heat &heat) {
    for (const Entrant &one : heat.entrants())
        if (filter.matches(one.name)) return true;
    return false;
}

void report(benchmark::State &state, const Heat &heat, std::size_t index) {
    const Entrant &one = heat.entrants()[index];
    for (auto _ : state) state.SetIterationTime(one.nanoseconds * one.n * 1e-9);
    const std::pair<const char *, double> figures[] = {
        {"ns", one.nanoseconds},    {"ticks", one.ticks}, {"clocks", one.clocks}, {"call_clocks", one.call_clocks},
        {"overhead", one.overhead}, {"ulp", one.ulp},     {"ratio", one.ratio},   {"ratio_any", one.ratio_any},
        {"spread", one.spread}};
    for (const auto &[name, figure] : figures)
        if (std::isfinite(figure)) state.counters[name] = figure;
    if (!one.rival_any.empty())
        state.SetLabel("against " + (one.rival.empty() ? "none" : one.rival) + ", " + one.rival_any);
}

}  // namespace

int main(int argc, char **argv) {
    constexpr const char *program = "bench_vector_math";
    if (!processor_will_do(program)) return 1;
    const bool list_only = asks_for_list(argc, argv);
    benchmark::Initialize(&argc, argv);

    ContestOptions contest;
    HeatOptions options;
    int cpu = -1;
    CLI::App app("Times of the vector math functions beside their peers. --help prints Google Benchmark's options.");
    app.set_help_flag("--help-own", "Print the options of this program");
    app.add_option("--passes", contest.passes, "Passes through all functions, at least")->capture_default_str();
    app.add_option("--seconds", contest.seconds, "Length of the contest, at least")->capture_default_str();
    app.add_option("--rounds", contest.rounds, "Rounds of a function in a pass")->capture_default_str();
    app.add_option("--points", options.error_points, "Random arguments for the errors, 0 for no errors")
        ->capture_default_str();
    app.add_option("--cpu", cpu, "Processor to run on, the last one by default");
    app.add_flag("--all", options.absent, "Also run functions that the library does not have yet, peers alone");
    CLI11_PARSE(app, argc, argv);

    for (const std::string &peer : missing_peers()) std::fprintf(stderr, "%s: without %s\n", program, peer.c_str());

    std::vector<Heat> heats = all_heats(options);
    if (heats.empty()) std::fputs("bench_vector_math: the library has no kernels yet; --all runs the peers\n", stderr);

    if (!list_only) {
        const Filter filter;
        std::vector<Heat *> selected;
        for (Heat &heat : heats)
            if (matches(filter, heat)) selected.push_back(&heat);
        const int pinned = pin_to_processor(cpu);
        const Clock clock = run_heats(selected, contest);

        Noise noise;
        for (const Heat *heat : selected)
            for (const Entrant &one : heat->entrants()) noise.add(one.spread);
        noise.report(program, clock);
        add_context(clock, pinned);
        for (const auto &[peer, version] : peer_versions()) benchmark::AddCustomContext(peer, version);
    }
    for (const Heat &heat : heats)
        for (std::size_t i = 0; i < heat.entrants().size(); ++i)
            benchmark::RegisterBenchmark(heat.entrants()[i].name.c_str(),
                                         [&heat, i](benchmark::State &state) { report(state, heat, i); })
                ->UseManualTime()
                ->Iterations(1);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
