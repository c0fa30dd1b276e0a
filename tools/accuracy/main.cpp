// accuracy: measures the errors of every function of the library against MPFR and Arb.
#include <fmt/format.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <CLI/CLI.hpp>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include "qorl/core.h"
#include "tools/accuracy/measure.hpp"
#include "tools/accuracy/report.hpp"

namespace {

using namespace qorl;

struct Arguments {
    std::vector<std::string> functions, types, levels;
    accuracy::Options options;
    bool exhaustive = false, json = false;
    std::string output, library, worst;
};

// A bar on standard error: redrawn in place on a terminal, a line every tenth elsewhere.
class Bar {
  public:
    Bar(std::string what, bool wanted) : what_(std::move(what)), wanted_(wanted) {}

    void show(double share) {
        using namespace std::chrono_literals;
        const auto now = std::chrono::steady_clock::now();
        if (!wanted_) return;
        const double seconds = std::chrono::duration<double>(now - start_).count();
        const double left = share > 0 ? seconds / share - seconds : 0;
        if (terminal_) {
            if (now - drawn_ < 100ms && share < 1) return;
            const auto filled = static_cast<std::size_t>(share * width);
            fmt::print(stderr, "\r{:<10} [{}{}] {:3.0f} %  {:4.0f} s left ", what_, std::string(filled, '#'),
                       std::string(width - filled, ' '), share * 100, left);
            if (share >= 1) fmt::print(stderr, "\r{:{}}\r", "", width + 36);
            std::fflush(stderr);
        } else if (share >= next_) {
            fmt::print(stderr, "{}: {:.0f} %, {:.0f} s\n", what_, share * 100, seconds);
            next_ = share + 0.1;
        }
        drawn_ = now;
    }

  private:
    static constexpr std::size_t width = 40;
    std::string what_;
    bool wanted_, terminal_ = isatty(STDERR_FILENO) == 1;
    double next_ = 0.1;
    std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now(), drawn_{};
};

// Parses the command line into arguments; returns an exit status, or -1 to go on.
int parse(int argc, char **argv, Arguments &arguments) {
    CLI::App app{
        "Measures the largest and the mean error of every function, type and level of the library, in units in the "
        "last\n"
        "place of the correctly rounded result, and compares them with the bounds that the library promises.\n"
        "Exit status: 0 all bounds are kept, 1 a bound is exceeded or a measurement is impossible, 2 wrong arguments."};
    std::vector<std::string> names;
    for (const Function &function : functions)
        if (std::ranges::count(names, function.name) == 0) names.emplace_back(function.name);
    app.add_option("-f,--function", arguments.functions, "Functions to measure, as Exp,Sinh (default: all there are)")
        ->delimiter(',')
        ->check(CLI::IsMember(names));
    app.add_option("-t,--type", arguments.types, "Element types: s, d (default: both)")
        ->delimiter(',')
        ->check(CLI::IsMember({"s", "d"}));
    app.add_option("-l,--level", arguments.levels, "Levels to report: LA, HA, EP (default: all)")
        ->delimiter(',')
        ->check(CLI::IsMember({"LA", "HA", "EP"}));
    app.add_option("-n,--points", arguments.options.points, "Random points of a sampled measurement")
        ->capture_default_str()
        ->check(CLI::Range(std::uint64_t{1}, std::uint64_t{1} << 40));
    app.add_option("--seed", arguments.options.seed, "Seed of the random points")->capture_default_str();
    arguments.options.threads = std::max(1u, std::thread::hardware_concurrency());
    app.add_option("--threads", arguments.options.threads, "Threads (default: one per processor)")
        ->check(CLI::Range(1, 1024));
    app.add_flag("--exhaustive", arguments.exhaustive,
                 "All 2^32 inputs of the single-precision functions of one argument; other functions are sampled");
    app.add_flag("--strided", arguments.options.strided,
                 "Also run the strided kernels, whose results must have the same bits");
    app.add_option("-o,--output", arguments.output,
                   "Write the accuracy document (Markdown), merged with the file's rows");
    app.add_option("--worst", arguments.worst, "Folder of found worst cases, such as Exp_d.txt, that are measured too")
        ->check(CLI::ExistingDirectory);
    app.add_flag("--json", arguments.json, "Print JSON instead of the table");
    app.add_option("--library", arguments.library, "Measure the kernels of this shared library")
        ->check(CLI::ExistingFile);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError &error) {
        return app.exit(error) == 0 ? 0 : 2;
    }
    return -1;
}

bool chosen(const std::vector<std::string> &list, std::string_view name) {
    return list.empty() || std::ranges::count(list, name) != 0;
}

std::string read(const std::string &file) {
    std::ifstream in(file);
    std::ostringstream text;
    text << in.rdbuf();
    return in ? text.str() : std::string();
}

void write(const std::string &file, const std::string &text) {
    const std::string temporary = file + ".new";  // so that an interrupted run leaves the old document
    std::ofstream out(temporary);
    out << text;
    out.close();
    if (!out) throw std::runtime_error(fmt::format("cannot write {}", temporary));
    std::filesystem::rename(temporary, file);
}

int run(const Arguments &arguments) {
    const auto library = arguments.library.empty() ? std::make_unique<reference::Library>()
                                                   : std::make_unique<reference::Library>(arguments.library);
    std::vector<Level> levels;
    for (const Level level : {Level::LA, Level::HA, Level::EP})
        if (chosen(arguments.levels, reference::level_names[static_cast<std::size_t>(level)])) levels.push_back(level);

    std::vector<accuracy::Row> rows;
    bool good = true;
    for (const Function &function : functions) {
        if (!chosen(arguments.functions, function.name) ||
            !chosen(arguments.types, std::string_view(&function.type, 1)))
            continue;
        const std::string name = std::string(1, function.type) + std::string(function.name);
        if (const auto reason = accuracy::obstacle(*library, function, false); !reason.empty()) {
            fmt::print(stderr, "{}: not measured: {}\n", name, reason);
            good = false;
            continue;
        }
        bool exhaustive = arguments.exhaustive;
        if (const auto reason = accuracy::obstacle(*library, function, true); exhaustive && !reason.empty()) {
            fmt::print(stderr, "{}: sampled: {}\n", name, reason);
            exhaustive = false;
        }
        Bar bar(name, exhaustive || isatty(STDERR_FILENO) == 1);
        accuracy::Options options = arguments.options;
        if (!arguments.worst.empty())
            options.extra = accuracy::read_points(arguments.worst + "/" + accuracy::worst_file(function));
        const auto progress = [&](double share) { bar.show(share); };
        const accuracy::Measurement measurement = exhaustive ? accuracy::exhaust(*library, function, options, progress)
                                                             : accuracy::sample(*library, function, options, progress);
        if (exhaustive) {
            fmt::print(stderr, "{}: filter within {:.2g} ulp of the exact value at {} points\n", name,
                       measurement.filter_error, measurement.filter_points);
            if (!(measurement.filter_error <= accuracy::filter_tolerance)) {
                fmt::print(stderr, "{}: this filter is not good enough; the row is not to be trusted\n", name);
                good = false;
                continue;
            }
        }
        for (const Level level : levels) {
            const accuracy::Tally &tally = measurement.levels[static_cast<std::size_t>(level)];
            if (tally.points == 0) fmt::print(stderr, "{}: no point has a finite exact value\n", name);
            if (tally.unlike != 0)
                fmt::print(stderr, "{} {}: {} strided results differ, one at {:a}, {:a}: {:a} instead of {:a}\n", name,
                           reference::level_names[static_cast<std::size_t>(level)], tally.unlike, tally.unlike_at.a,
                           tally.unlike_at.b, tally.unlike_at.result, tally.unlike_at.expected);
        }
        for (accuracy::Row &row : accuracy::rows_of(measurement, levels)) {
            good &= row.within;
            rows.push_back(std::move(row));
        }
    }
    if (rows.empty()) {
        fmt::print(stderr, "accuracy: nothing was measured\n");
        return 1;
    }
    fmt::print("{}", arguments.json ? accuracy::json(rows) : accuracy::terminal_table(rows));
    if (!arguments.output.empty()) write(arguments.output, accuracy::document(rows, read(arguments.output)));
    return good ? 0 : 1;
}

}  // namespace

int main(int argc, char **argv) {
    Arguments arguments;
    if (const int status = parse(argc, argv, arguments); status >= 0) return status;
    if (qorl_serv_processor_has(QORL_PROCESSOR_AVX2_FMA) == 0) {
        std::fputs("accuracy: this processor has no AVX2 or no FMA; the kernels need both.\n", stderr);
        return 1;
    }
    try {
        return run(arguments);
    } catch (const std::exception &error) {
        fmt::print(stderr, "accuracy: {}\n", error.what());
        return 1;
    }
}
