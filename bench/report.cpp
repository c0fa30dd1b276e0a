#include "bench/report.hpp"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstring>

#include "qorl/core.h"

namespace qorl::bench {
namespace {

constexpr double loud = 1.3;  // from here on the median of the runs says that the machine was busy

constexpr const char *registration_suffix = "/iterations:1/manual_time";  // what Google Benchmark adds to the names

}  // namespace

Filter::Filter() {
    std::string text = benchmark::GetBenchmarkFilter();
    inverted_ = text.starts_with('-');
    if (inverted_) text.erase(0, 1);
    const bool all = text.empty() || text == "all";
    pattern_.assign(all ? std::string(1, '.') : text, std::regex::extended);
}

bool Filter::matches(const std::string &row) const {
    return std::regex_search(row + registration_suffix, pattern_) != inverted_;
}

bool asks_for_list(int argc, char **argv) {
    for (int i = 1; i < argc; ++i)
        if (std::strncmp(argv[i], "--benchmark_list_tests", 22) == 0) return true;
    return false;
}

bool processor_will_do(const char *program) {
    if (qorl_serv_processor_has(QORL_PROCESSOR_AVX2_FMA) != 0) return true;
    std::fprintf(stderr, "%s: this processor has no AVX2 and FMA, without which the library can't run\n", program);
    return false;
}

void Noise::add(double spread) {
    ++rows_;
    noisy_ += spread > loud;
}

void Noise::report(const char *program, const Clock &clock) const {
    if (noisy_ * 10 <= rows_ && clock.spread <= loud) return;
    std::fprintf(stderr,
                 "%s: the machine was busy: %d of %d rows had a median more than %.1f times their minimum; run again "
                 "before you trust small differences\n",
                 program, noisy_, rows_, loud);
}

void add_context(const Clock &clock, int pinned) {
    const auto context = [](const char *key, double value) {
        char text[32];
        std::snprintf(text, sizeof text, "%.3f", value);
        benchmark::AddCustomContext(key, text);
    };
    benchmark::AddCustomContext("processor", processor_name());
    benchmark::AddCustomContext("cpu", pinned < 0 ? "not pinned" : std::to_string(pinned));
    context("ghz_core", clock.ticks_per_nanosecond / clock.ticks_per_clock);
    context("ghz_counter", clock.ticks_per_nanosecond);
    context("spread_chain", clock.spread);
}

}  // namespace qorl::bench
