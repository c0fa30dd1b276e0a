// Times of the random streams beside other generators, as Google Benchmark reports.
//
// Blocks of 1,000 numbers, drawn one after another from one stream. The times are taken in one contest before the
// report begins (contest.hpp says why); the benchmarks then only hand them over, so that the usual options work:
// --benchmark_filter=/d, --benchmark_out=FILE. The rows of ours follow from the list of generators.
//
// Names are PHILOX4X32X10/i/n=1000 and gsl_r250/d/n=1000; i are integers of the generator's own size, s and d numbers
// on [0, 1). Google Benchmark appends "/iterations:1/manual_time". In JSON a row has these members more:
//
//   ns, ticks, clocks  of one number: nanoseconds, time-stamp-counter ticks, core clocks
//   ours               1 for the library's generators, 0 for peers
//   spread             median over minimum of the runs
//   label              of a peer: "as NAME", the generator of ours with the same recurrence or cipher, if there is one
//
// and the context has processor, cpu, ghz_core, ghz_counter, spread_chain and one member for each peer's version.
#include <benchmark/benchmark.h>

#include <CLI/CLI.hpp>
#include <cstdint>
#include <list>
#include <string>
#include <vector>

#include "bench/contest.hpp"
#include "bench/report.hpp"
#include "bench/stream_peers.hpp"
#include "streams/streams.hpp"

namespace {

using namespace qorl::bench;

constexpr int length = 1000;
constexpr const char *program = "bench_streams";

struct Row {
    std::string name;
    bool ours;
    std::string like;
    Run run;
    void *target;
    Contestant contestant;
};

// A stream of a generator and the function that draws a type.
struct Drawn {
    StreamState *stream;
    std::int32_t (*draw)(StreamState *stream, std::int32_t n, void *r);
};

StreamState *new_stream(std::int32_t id) {
    const std::uint32_t seed = 7;
    StreamState *stream = nullptr;
    if (__huxNewStreamEx(&stream, id, 1, &seed) == HuxStatusOk) return stream;
    if (stream != nullptr) __huxDeleteStream(&stream);
    return nullptr;
}

void run_drawn(void *target, const Work &work, int repeats) {
    auto &drawn = *static_cast<Drawn *>(target);
    for (; repeats > 0; --repeats) {
        if (drawn.draw(drawn.stream, work.n, work.y) == HuxStatusOk) continue;
        // The end of a period: from the beginning.
        const std::int32_t id = drawn.stream->id;
        __huxDeleteStream(&drawn.stream);
        drawn.stream = new_stream(id);
    }
}

std::int32_t draw_integers(StreamState *stream, std::int32_t n, void *r) {
    return qorl::properties_of(*stream).i(stream, n, r);
}
std::int32_t draw_singles(StreamState *stream, std::int32_t n, void *r) {
    return qorl::properties_of(*stream).s(stream, n, static_cast<float *>(r), 0, 1);
}
std::int32_t draw_doubles(StreamState *stream, std::int32_t n, void *r) {
    return qorl::properties_of(*stream).d(stream, n, static_cast<double *>(r), 0, 1);
}

constexpr struct {
    const char *name;
    std::int32_t (*draw)(StreamState *stream, std::int32_t n, void *r);
} types[] = {{"i", draw_integers}, {"d", draw_doubles}, {"s", draw_singles}};

// Generators that stand and that a stream can be made of; their streams live as long as the process.
std::vector<Row> rows_of_ours() {
    struct {
        const char *name;
        std::int32_t row;
    } const generators[] = {
#define QORL_GENERATOR(row, name, ...) {#name, row},
#include "streams/generators.inc"
    };
    static std::list<Drawn> all;
    std::vector<Row> rows;
    for (const auto &[name, row] : generators)
        for (const auto &[type, draw] : types) {
            StreamState *const stream = new_stream(qorl::family_id(row));
            if (stream == nullptr) continue;
            all.push_back({stream, draw});
            rows.push_back({std::string(name) + "/" + type, true, "", run_drawn, &all.back(), {}});
        }
    return rows;
}

std::vector<Row> all_rows() {
    std::vector<Row> rows = rows_of_ours();
    for (const auto &peers : {standard_peers(), gsl_peers(), random123_peers()})
        for (const StreamPeer &peer : peers)
            rows.push_back({peer.name + "/" + peer.type, false, peer.like, peer.run, peer.target, {}});
    for (Row &row : rows) row.name += "/n=" + std::to_string(length);
    return rows;
}

void report(benchmark::State &state, const Row &row, const Clock &clock) {
    const double ticks = row.contestant.ticks / length, nanoseconds = ticks / clock.ticks_per_nanosecond;
    for (auto _ : state) state.SetIterationTime(nanoseconds * length * 1e-9);
    state.counters["ns"] = nanoseconds;
    state.counters["ticks"] = ticks;
    state.counters["clocks"] = ticks / clock.ticks_per_clock;
    state.counters["ours"] = row.ours ? 1 : 0;
    state.counters["spread"] = row.contestant.spread;
    if (!row.like.empty()) state.SetLabel("as " + row.like);
}

}  // namespace

int main(int argc, char **argv) {
    if (!processor_will_do(program)) return 1;
    const bool list_only = asks_for_list(argc, argv);
    benchmark::Initialize(&argc, argv);

    ContestOptions contest;
    int cpu = -1;
    CLI::App app("Times of the random streams beside peers. --help prints Google Benchmark's options.");
    app.set_help_flag("--help-own", "Print the options of this program");
    app.add_option("--passes", contest.passes, "Passes through all rows, at least")->capture_default_str();
    app.add_option("--seconds", contest.seconds, "Length of the contest, at least")->capture_default_str();
    app.add_option("--rounds", contest.rounds, "Rounds in a pass")->capture_default_str();
    app.add_option("--cpu", cpu, "Processor to run on, the last one by default");
    CLI11_PARSE(app, argc, argv);

    std::vector<Row> rows = all_rows();
    Clock clock;
    if (!list_only) {
        alignas(64) static std::byte numbers[length * 16];  // of the widest integers
        const Filter filter;
        std::vector<Row *> selected;
        std::vector<Contestant> contestants;
        for (Row &row : rows) {
            if (!filter.matches(row.name)) continue;
            Contestant one;
            one.run = row.run;
            one.target = row.target;
            one.work.n = length;
            one.work.y = numbers;
            selected.push_back(&row);
            contestants.push_back(one);
        }
        const int pinned = pin_to_processor(cpu);
        clock = run_contest({&contestants}, contest);
        Noise noise;
        for (std::size_t k = 0; k < selected.size(); ++k) {
            selected[k]->contestant = contestants[k];
            noise.add(contestants[k].spread);
        }
        noise.report(program, clock);
        add_context(clock, pinned);
        for (const auto &[peer, version] : stream_peer_versions()) benchmark::AddCustomContext(peer, version);
    }
    for (const Row &row : rows)
        benchmark::RegisterBenchmark(row.name.c_str(), [&](benchmark::State &state) { report(state, row, clock); })
            ->UseManualTime()
            ->Iterations(1);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
