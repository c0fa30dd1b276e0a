// summary: what accuracy and bench_vector_math measured, as one table for people and as docs/performance.md.
//
//   accuracy --json > accuracy.json
//   bench_vector_math --benchmark_out=speed.json
//   summary --accuracy accuracy.json --speed speed.json [--output docs/performance.md]
//
// and what bench_streams measured as docs/performance_streams.md:
//
//   bench_streams --benchmark_out=streams.json
//   summary --streams streams.json [--output docs/performance_streams.md]
//
// The rows of the speed file are described at the head of bench/bench_vector_math.cpp. Of the accuracy file the members
// function, type, level, ulp and bits of each object are read; ulp and bits may be null.
#include <fmt/format.h>

#include <algorithm>
#include <cctype>
#include <CLI/CLI.hpp>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <map>
#include <nlohmann/json.hpp>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "frame/entries.hpp"
#include "streams.hpp"

namespace {

using nlohmann::json;

const std::set<std::string> levels = {"LA", "HA", "EP"};
constexpr double not_finite = 1e30;  // the benchmarks' sign for a result that is no number

// A row of the speed file.
struct Speed {
    std::string function;  // as in the list of entries, with the tag of a second range behind: Sin wide
    std::string type, owner;
    int n = 0, stride = 0;
    json figures;
    std::string rival, rival_any;

    std::optional<double> get(const char *figure) const {
        const auto found = figures.find(figure);
        return found != figures.end() && found->is_number() ? std::optional(found->get<double>()) : std::nullopt;
    }
};

std::string lower(std::string_view text) {
    std::string result;
    for (const char c : text) result += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return result;
}

// exp -> Exp, sin_wide -> Sin wide
std::string function_of(const std::string &label) {
    const std::size_t end = std::min(label.find('_'), label.size());
    std::string name = label.substr(0, end);
    for (const qorl::Entry &entry : qorl::entries)
        if (lower(entry.function) == name) {
            name = entry.function;
            break;
        }
    return end == label.size() ? name : name + " " + label.substr(end + 1);
}

std::optional<Speed> parse(const json &row) {
    std::vector<std::string> parts;
    std::string name = row.at("name").get<std::string>() + "/";
    for (std::size_t slash; (slash = name.find('/')) != std::string::npos; name.erase(0, slash + 1))
        parts.push_back(name.substr(0, slash));
    if (parts.size() < 4 || !parts[3].starts_with("n=")) return std::nullopt;
    Speed speed;
    speed.function = function_of(parts[0]);
    speed.type = parts[1];
    speed.owner = parts[2];
    speed.n = std::stoi(parts[3].substr(2));
    if (parts.size() > 4 && parts[4].starts_with("stride=")) speed.stride = std::stoi(parts[4].substr(7));
    speed.figures = row;
    const std::string label = row.value("label", ""), start = "against ";
    if (const std::size_t comma = label.find(", "); label.starts_with(start) && comma != std::string::npos) {
        speed.rival = label.substr(start.size(), comma - start.size());
        speed.rival_any = label.substr(comma + 2);
    }
    return speed;
}

std::string number(std::optional<double> x, int decimals) {
    return x ? fmt::format("{:.{}f}", *x, decimals) : "-";
}

std::string ulp_text(std::optional<double> ulp) {
    if (!ulp) return "-";
    if (*ulp >= not_finite) return "no number";
    return *ulp < 1000 ? fmt::format("{:.2f}", *ulp) : fmt::format("{:.1e}", *ulp);
}

class Summary {
  public:
    Summary(const json &speed, const json &accuracy) : context_(speed.at("context")) {
        for (const json &row : speed.at("benchmarks"))
            if (std::optional<Speed> parsed = parse(row)) rows_.push_back(std::move(*parsed));
        for (const json &row : accuracy)
            accuracy_[{row.at("function"), row.at("type"), row.at("level")}] = {row.value("ulp", json()),
                                                                                row.value("bits", json())};
    }

    // Function, type, level, largest error, core clocks of an element, ratio to the fastest peer of no better accuracy.
    std::string table() const {
        std::string text = fmt::format("{:<12} {:<4} {:<5}  {:>13}  {:>16}  {:>6}  {}\n", "function", "type", "level",
                                       "largest error", "clocks / element", "ratio", "fastest peer");
        for (const Speed &row : rows_)
            if (full(row) && ours(row))
                text +=
                    fmt::format("{:<12} {:<4} {:<5}  {:>13}  {:>16}  {:>6}  {}\n", row.function, row.type, row.owner,
                                error_of(row), number(row.get("clocks"), 2), number(row.get("ratio"), 2), row.rival);
        return text +
               fmt::format(
                   "\nClocks are core clocks at n = 1000 in the first-level cache ({}, {} GHz). The ratio is the "
                   "time over that\nof the fastest peer whose error is as large or larger, at EP of the fastest "
                   "peer; below 1 is faster than it.\n",
                   context("processor"), context("ghz_core"));
    }

    std::string document() const {
        return heading() + levels_section() + peers_section() + calls_section() + strided_section();
    }

    // How many rows of ours are slower than the peer that they are compared with.
    int slower() const {
        return static_cast<int>(std::ranges::count_if(
            rows_, [&](const Speed &row) { return full(row) && ours(row) && row.get("ratio").value_or(0) > 1; }));
    }

  private:
    static bool ours(const Speed &row) { return levels.contains(row.owner); }
    static bool full(const Speed &row) { return row.n == 1000 && row.stride == 0; }

    std::string context(const char *key) const { return context_.value(key, "unknown"); }

    const Speed *find(const Speed &like, const std::string &owner, bool (*which)(const Speed &)) const {
        for (const Speed &row : rows_)
            if (row.function == like.function && row.type == like.type && row.owner == owner && which(row)) return &row;
        return nullptr;
    }

    // By the accuracy program over the whole domain; from the benchmark's own arguments where it has no figure.
    std::string error_of(const Speed &row) const {
        const auto found = accuracy_.find({row.function, row.type, row.owner});
        if (found == accuracy_.end()) return ulp_text(row.get("ulp")) + " ulp";
        const auto &[ulp, bits] = found->second;
        if (row.owner == "EP") return bits.is_number() ? fmt::format("2^-{:.1f}", bits.get<double>()) : "exact";
        return ulp.is_number() ? fmt::format("{:.3f} ulp", ulp.get<double>()) : "infinite";
    }

    std::string heading() const {
        std::string text = fmt::format(
            "# Performance\n\n"
            "Times of the kernels beside their peers, written by `summary --output` from one run of "
            "`bench_vector_math`.\n\n"
            "- Machine: {}, core clock {} GHz, time-stamp counter {} GHz; {}.\n"
            "- Peers: ",
            context("processor"), context("ghz_core"), context("ghz_counter"), context("date").substr(0, 10));
        const char *separator = "";
        for (const char *peer : {"libm, libmvec", "sleef", "highway"})
            if (context_.contains(peer)) {
                text += fmt::format("{}{} ({})", separator, peer, context(peer));
                separator = "; ";
            }
        return text +
               ".\n  `sleef_u10` is the variant with the bound 1.0 ulp, and so on; `hardware` is a plain loop over the "
               "AVX2\n"
               "  instructions that compute the function by themselves; `libm` is scalar.\n"
               "- Method: all contestants of the run take turns on one processor; each keeps the minimum of many short "
               "runs "
               "spread\n  over seconds. Core clocks are calibrated by a chain of dependent integer adds in the same "
               "rounds. "
               "Arrays lie in the\n  first-level cache. Figures of different runs differ by more than the ratios "
               "within "
               "one.\n"
               "- Errors are the largest in units in the last place on the benchmark's arguments, zeros and ends "
               "included; "
               "those over\n  the whole domain stand in `accuracy.md`.\n"
               "- Ratio: time over that of the fastest peer whose error is equal or larger; at EP over that of the "
               "fastest "
               "peer.\n  The second ratio is over the fastest peer whatever its error.\n";
    }

    std::string levels_section() const {
        std::string text =
            "\n## The levels, n = 1000\n\n"
            "| Function | Type | Level | Core clocks / element | Counter cycles | ns | Error, ulp | Ratio | against | "
            "Ratio to any | against |\n|---|---|---|---|---|---|---|---|---|---|---|\n";
        for (const Speed &row : rows_)
            if (full(row) && ours(row))
                text += fmt::format("| {} | {} | {} | {} | {} | {} | {} | {} | {} | {} | {} |\n", row.function,
                                    row.type, row.owner, number(row.get("clocks"), 2), number(row.get("ticks"), 2),
                                    number(row.get("ns"), 3), ulp_text(row.get("ulp")), number(row.get("ratio"), 2),
                                    row.rival, number(row.get("ratio_any"), 2), row.rival_any);
        return text;
    }

    std::string peers_section() const {
        std::vector<std::string> owners;
        for (const Speed &row : rows_)
            if (!ours(row) && std::ranges::find(owners, row.owner) == owners.end()) owners.push_back(row.owner);
        if (owners.empty()) return "";
        std::string text = "\n## The peers, core clocks per element / error in ulp, n = 1000\n\n| Function | Type |";
        std::string rule = "|---|---|";
        for (const std::string &owner : owners) {
            text += " " + owner + " |";
            rule += "---|";
        }
        text += "\n" + rule + "\n";
        std::set<std::string> done;
        for (const Speed &row : rows_) {
            if (ours(row) || !full(row) || !done.insert(row.function + "/" + row.type).second) continue;
            text += fmt::format("| {} | {} |", row.function, row.type);
            for (const std::string &owner : owners) {
                const Speed *const peer = find(row, owner, full);
                text += peer == nullptr
                            ? " - |"
                            : fmt::format(" {} / {} |", number(peer->get("clocks"), 2), ulp_text(peer->get("ulp")));
            }
            text += "\n";
        }
        return text;
    }

    std::string calls_section() const {
        std::string text =
            "\n## Short calls, n = 8, core clocks\n\n"
            "The overhead is the call's time less 8 times the clocks per element of n = 1000. The peers are loops "
            "around "
            "their\nvector functions, which have no call of this kind to pay.\n\n"
            "| Function | Type | Level | Call | Overhead | Fastest peer | Its call |\n|---|---|---|---|---|---|---|\n";
        for (const Speed &row : rows_) {
            if (row.n != 8 || !ours(row)) continue;
            const Speed *const peer = find(row, row.rival_any, [](const Speed &one) { return one.n == 8; });
            text += fmt::format("| {} | {} | {} | {} | {} | {} | {} |\n", row.function, row.type, row.owner,
                                number(row.get("call_clocks"), 1), number(row.get("overhead"), 1),
                                row.rival_any.empty() ? "-" : row.rival_any,
                                peer == nullptr ? "-" : number(peer->get("call_clocks"), 1));
        }
        return text;
    }

    std::string strided_section() const {
        std::string text =
            "\n## Strided forms, n = 480, core clocks per element\n\n"
            "| Function | Type | Level | Stride 1 | Stride 3 | Unit-stride form, n = 1000 "
            "|\n|---|---|---|---|---|---|\n";
        for (const Speed &row : rows_) {
            if (row.stride != 1) continue;
            const Speed *const wide = find(row, row.owner, [](const Speed &one) { return one.stride == 3; });
            const Speed *const unit = find(row, row.owner, full);
            text += fmt::format("| {} | {} | {} | {} | {} | {} |\n", row.function, row.type, row.owner,
                                number(row.get("clocks"), 2), wide == nullptr ? "-" : number(wide->get("clocks"), 2),
                                unit == nullptr ? "-" : number(unit->get("clocks"), 2));
        }
        return text;
    }

    json context_;
    std::vector<Speed> rows_;
    std::map<std::array<std::string, 3>, std::pair<json, json>> accuracy_;
};

json read(const std::string &path) {
    std::ifstream in(path);
    return json::parse(in);
}

void write(const std::string &path, const std::string &text) {
    std::ofstream out(path);
    out << text;
    if (!out.flush()) throw std::runtime_error("can't write " + path);
}

}  // namespace

int main(int argc, char **argv) {
    CLI::App app("Prints what the accuracy program and the benchmark measured as one table.");
    std::string speed, accuracy, streams, output;
    CLI::Option_group *const source = app.add_option_group("Measured");
    source->add_option("--speed", speed, "JSON of bench_vector_math")->check(CLI::ExistingFile);
    source->add_option("--streams", streams, "JSON of bench_streams")->check(CLI::ExistingFile);
    source->require_option(1);
    app.add_option("--accuracy", accuracy,
                   "JSON of accuracy; without it the errors on the benchmark's arguments are shown")
        ->check(CLI::ExistingFile);
    app.add_option("-o,--output", output, "Also write the performance document to this file");
    CLI11_PARSE(app, argc, argv);
    try {
        if (!streams.empty()) {
            const std::string document = qorl::summary::streams_document(read(streams));
            fmt::print("{}", document);
            if (!output.empty()) write(output, document);
            return 0;
        }
        const Summary summary(read(speed), accuracy.empty() ? json::array() : read(accuracy));
        fmt::print("{}", summary.table());
        if (const int slower = summary.slower(); slower > 0)
            fmt::print("Rows slower than the peer they are compared with: {}.\n", slower);
        if (!output.empty()) write(output, summary.document());
    } catch (const std::exception &error) {
        fmt::print(stderr, "summary: {}\n", error.what());
        return 1;
    }
    return 0;
}
