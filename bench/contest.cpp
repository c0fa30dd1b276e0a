#include "bench/contest.hpp"

#include <emmintrin.h>
#include <sched.h>
#include <x86intrin.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <fstream>

namespace qorl::bench {
namespace {

std::uint64_t ticks_now() {
    _mm_lfence();
    const std::uint64_t ticks = __rdtsc();
    _mm_lfence();
    return ticks;
}

double nanoseconds_now() {
    using namespace std::chrono;
    return static_cast<double>(duration_cast<nanoseconds>(steady_clock::now().time_since_epoch()).count());
}

constexpr int chain_turns = 800;
constexpr int chain_adds = 64 * chain_turns;

// One add of a register a clock: some processors fold chains of constants away, none that of a register.
void add_chain() {
    std::uint64_t sum = 0;
    const std::uint64_t one = 1;
    for (int turn = 0; turn < chain_turns; ++turn)
        asm volatile(".rept 64\n\tadd %1, %0\n\t.endr" : "+r"(sum) : "r"(one) : "cc");
}

template <class Function>
double time_of(Function &&function) {
    const std::uint64_t start = ticks_now();
    function();
    return static_cast<double>(ticks_now() - start);
}

double median_of(std::vector<float> &samples) {
    const auto middle = samples.begin() + static_cast<std::ptrdiff_t>(samples.size() / 2);
    std::nth_element(samples.begin(), middle, samples.end());
    return *middle;
}

// The calls in one run: as many as fill the least length, so that the counter's coarse steps do not matter.
int repeats_for(const Contestant &one, double sample_ticks) {
    for (int repeats = 1;; repeats *= 2) {
        one.run(one.target, one.work, repeats);
        const double ticks = time_of([&] { one.run(one.target, one.work, repeats); });
        if (ticks >= 0.5 * sample_ticks || repeats >= (1 << 20))
            return std::max(1, static_cast<int>(std::ceil(repeats * sample_ticks / ticks)));
    }
}

struct Record {
    Contestant *contestant;
    int repeats;
    std::vector<float> samples;
};

}  // namespace

int pin_to_processor(int cpu) {
    cpu_set_t allowed;
    if (sched_getaffinity(0, sizeof allowed, &allowed) != 0) return -1;
    for (int i = 0; cpu < 0 && i < CPU_SETSIZE; ++i)
        if (CPU_ISSET(CPU_SETSIZE - 1 - i, &allowed)) cpu = CPU_SETSIZE - 1 - i;
    if (cpu < 0 || cpu >= CPU_SETSIZE) return -1;
    cpu_set_t one;
    CPU_ZERO(&one);
    CPU_SET(cpu, &one);
    return sched_setaffinity(0, sizeof one, &one) == 0 ? cpu : -1;
}

Clock run_contest(std::vector<std::vector<Contestant> *> groups, const ContestOptions &options) {
    Clock clock;
    const double start_nanoseconds = nanoseconds_now();
    const std::uint64_t start_ticks = ticks_now();
    while (nanoseconds_now() - start_nanoseconds < 2e6) {
    }
    const double sample_ticks = options.sample_nanoseconds * static_cast<double>(ticks_now() - start_ticks) /
                                (nanoseconds_now() - start_nanoseconds);

    std::vector<std::vector<Record>> records;
    for (std::vector<Contestant> *group : groups) {
        std::vector<Record> &list = records.emplace_back();
        for (Contestant &one : *group) list.push_back({&one, repeats_for(one, sample_ticks), {}});
    }
    std::vector<float> chain_samples;
    const double end = nanoseconds_now() + options.seconds * 1e9;
    for (int pass = 0; !records.empty() && (pass < options.passes || nanoseconds_now() < end); ++pass)
        for (std::vector<Record> &group : records)
            for (int round = 0; round < options.rounds; ++round) {
                chain_samples.push_back(static_cast<float>(time_of(add_chain)));
                for (Record &record : group) {
                    const Contestant &one = *record.contestant;
                    one.run(one.target, one.work, 1);  // its code, tables and arrays come into the cache
                    const double ticks = time_of([&] { one.run(one.target, one.work, record.repeats); });
                    record.samples.push_back(static_cast<float>(ticks / record.repeats));
                }
            }

    for (std::vector<Record> &group : records)
        for (Record &record : group) {
            if (record.samples.empty()) continue;
            record.contestant->ticks = *std::min_element(record.samples.begin(), record.samples.end());
            record.contestant->spread = median_of(record.samples) / record.contestant->ticks;
        }
    clock.ticks_per_nanosecond =
        static_cast<double>(ticks_now() - start_ticks) / (nanoseconds_now() - start_nanoseconds);
    if (!chain_samples.empty()) {
        const double least = *std::min_element(chain_samples.begin(), chain_samples.end());
        clock.ticks_per_clock = least / chain_adds;
        clock.spread = median_of(chain_samples) / least;
    }
    return clock;
}

std::string processor_name() {
    std::ifstream file("/proc/cpuinfo");
    for (std::string line; std::getline(file, line);)
        if (line.starts_with("model name")) {
            const std::size_t colon = line.find(": ");
            if (colon != std::string::npos) return line.substr(colon + 2);
        }
    return "unknown processor";
}

}  // namespace qorl::bench
