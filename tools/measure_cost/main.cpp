// measure_cost FILE: measures the built kernels and rewrites frame/costs.inc.
//
// A figure is the time of one element in time-stamp-counter cycles at n = 1000 in the first-level cache, unit stride,
// on the benchmarks' arguments: the minimum of interleaved runs. Lines of landed functions that the benchmarks can't
// call (complex shapes) stay as they are.
#include <algorithm>
#include <CLI/CLI.hpp>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "bench/heat.hpp"
#include "qorl/core.h"
#include "tools/measure_cost/costs.hpp"

namespace {

using namespace qorl;

bool landed(char type, std::string_view function) {
    return std::ranges::any_of(functions, [&](const Function &f) { return f.type == type && f.name == function; });
}

std::vector<Cost> measure(const bench::ContestOptions &contest) {
    bench::HeatOptions options;
    options.peers = options.calls = options.strided = false;
    options.error_points = 0;
    std::vector<bench::Heat> heats = bench::all_heats(options);
    std::vector<bench::Heat *> selected;
    for (bench::Heat &heat : heats)
        if (heat.subject().tag.empty() && cost::marker(heat.entry()) == 0) selected.push_back(&heat);
    bench::run_heats(selected, contest);

    std::vector<Cost> figures;
    for (const bench::Heat *heat : selected) {
        Cost &cost = figures.emplace_back(Cost{heat->entry().type, heat->entry().function, {}});
        for (const bench::Entrant &one : heat->entrants())
            cost.figures[static_cast<std::size_t>(one.level)] = static_cast<float>(one.ticks);
    }
    return figures;
}

}  // namespace

int main(int argc, char **argv) {
    if (!qorl_serv_processor_has(QORL_PROCESSOR_AVX2_FMA)) {
        std::fputs("measure_cost: this processor has no AVX2 and FMA, without which the library can't run\n", stderr);
        return 1;
    }
    bench::ContestOptions contest;
    contest.seconds = 10;
    std::string path;
    int cpu = -1;
    bool print = false;
    CLI::App app("Measures the built kernels and rewrites the list of their costs.");
    app.add_option("file", path, "The list, frame/costs.inc")->required()->check(CLI::ExistingFile);
    app.add_option("--seconds", contest.seconds, "Length of the measurement, at least")->capture_default_str();
    app.add_option("--cpu", cpu, "Processor to run on, the last one by default");
    app.add_flag("--print", print, "Print the list and leave the file as it is");
    CLI11_PARSE(app, argc, argv);

    std::ifstream in(path);
    const std::string existing((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    bench::pin_to_processor(cpu);
    std::vector<Cost> figures = measure(contest);
    for (const Cost &cost : costs) {
        const bool measured = std::ranges::any_of(
            figures, [&](const Cost &one) { return one.type == cost.type && one.function == cost.function; });
        if (!measured && landed(cost.type, cost.function)) figures.push_back(cost);
    }
    std::string text;
    try {
        text = cost::costs_text(existing, figures);
    } catch (const std::exception &error) {
        std::fprintf(stderr, "measure_cost: %s: %s\n", path.c_str(), error.what());
        return 1;
    }
    if (print) return std::fputs(text.c_str(), stdout) < 0;
    std::ofstream out(path);
    out << text;
    if (!out.flush()) {
        std::fprintf(stderr, "measure_cost: can't write %s\n", path.c_str());
        return 1;
    }
    return 0;
}
