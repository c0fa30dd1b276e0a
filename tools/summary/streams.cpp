#include "streams.hpp"

#include <fmt/format.h>

#include <algorithm>
#include <map>
#include <vector>

namespace qorl::summary {
namespace {

using nlohmann::json;

struct Figures {
    double ns, clocks;
};

// The rows of one generator or peer.
struct Competitor {
    std::string name, like;
    bool ours = false;
    std::map<std::string, Figures> types;
};

std::vector<Competitor> competitors_of(const json &report) {
    std::vector<Competitor> all;
    for (const json &row : report.at("benchmarks")) {
        if (!row.contains("ns")) continue;
        const std::string name = row.at("name");
        const std::size_t first = name.find('/'), second = name.find('/', first + 1);
        const std::string owner = name.substr(0, first);
        auto found = std::ranges::find(all, owner, &Competitor::name);
        if (found == all.end()) {
            const std::string label = row.value("label", ""), as = "as ";
            all.push_back({owner, label.starts_with(as) ? label.substr(as.size()) : "", row.at("ours") == 1.0, {}});
            found = all.end() - 1;
        }
        found->types[name.substr(first + 1, second - first - 1)] = {row.at("ns"), row.at("clocks")};
    }
    return all;
}

std::string cells(const Competitor &one, const char *type) {
    const auto found = one.types.find(type);
    return found == one.types.end() ? " - | - |"
                                    : fmt::format(" {:.3f} | {:.2f} |", found->second.ns, found->second.clocks);
}

// How many times faster one is than the others that `which` takes, by the fastest of them.
template <class Which>
std::string advantage(const Competitor &one, const std::vector<Competitor> &all, const char *type, Which which) {
    const Competitor *fastest = nullptr;
    for (const Competitor &peer : all)
        if (!peer.ours && peer.types.contains(type) && which(peer) &&
            (fastest == nullptr || peer.types.at(type).ns < fastest->types.at(type).ns))
            fastest = &peer;
    if (fastest == nullptr || !one.types.contains(type)) return " - | |";
    return fmt::format(" {:.1f} | {} |", fastest->types.at(type).ns / one.types.at(type).ns, fastest->name);
}

}  // namespace

std::string streams_document(const json &report) {
    const std::vector<Competitor> all = competitors_of(report);
    const json &context = report.at("context");
    const auto told = [&](const char *key) { return context.value(key, "unknown"); };
    std::string text = fmt::format(
        "# Performance of the random streams\n\n"
        "Written by `summary` from one run of `bench_streams`:\n\n"
        "```sh\ncd build/release/bin\n"
        "./bench_streams --seconds 30 --benchmark_out=streams.json\n"
        "./summary --streams streams.json -o ../../../docs/performance_streams.md\n```\n\n"
        "- Machine: {}, core clock {} GHz, time-stamp counter {} GHz; {}.\n"
        "- Peers: std::mt19937 of libstdc++ {} with std::uniform_real_distribution; GSL {}; Random123 ({}).\n  "
        "They are compiled for the same processors and fill the same array, a number or a block a call.\n"
        "- Method: blocks of 1,000 numbers drawn one after another from one stream into the first-level cache. All "
        "rows "
        "of the\n  run take turns on one processor; each keeps the minimum of many short runs spread over seconds.\n"
        "- `i` are integers of the generator's own size, `d` and `s` numbers on [0, 1) in double and single precision. "
        "Each has\n  nanoseconds, then core clocks, of one number.\n",
        told("processor"), told("ghz_core"), told("ghz_counter"), told("date").substr(0, 10), told("libstdc++"),
        told("gsl"), told("random123"));
    text +=
        "\n## The generators\n\nThe last columns tell how many times faster `d` is than that of the fastest peer of "
        "all, and "
        "than that of the fastest\nwith the same recurrence or cipher.\n\n"
        "| Generator | i ns | clocks | d ns | clocks | s ns | clocks | Times faster | than | Times faster | than |\n"
        "|---|---|---|---|---|---|---|---|---|---|---|\n";
    for (const Competitor &one : all)
        if (one.ours)
            text +=
                fmt::format("| {} |{}{}{}{}{}\n", one.name, cells(one, "i"), cells(one, "d"), cells(one, "s"),
                            advantage(one, all, "d", [](const Competitor &) { return true; }),
                            advantage(one, all, "d", [&](const Competitor &peer) { return peer.like == one.name; }));
    text += "\n## The peers\n\n| Peer | i ns | clocks | d ns | clocks |\n|---|---|---|---|---|\n";
    for (const Competitor &one : all)
        if (!one.ours) text += fmt::format("| {} |{}{}\n", one.name, cells(one, "i"), cells(one, "d"));
    return text;
}

}  // namespace qorl::summary
