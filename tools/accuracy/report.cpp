#include "tools/accuracy/report.hpp"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <optional>
#include <sstream>
#include <tuple>

namespace qorl::accuracy {
namespace {

std::string_view name_of(Level level) {
    return reference::level_names[static_cast<std::size_t>(level)];
}

double bound_of(const Function &function, Level level) {
    return level == Level::LA ? function.la_ulp : level == Level::HA ? function.ha_ulp : function.ep_bits;
}

const Function *find_function(char type, std::string_view name) {
    const auto found =
        std::ranges::find_if(functions, [&](const Function &f) { return f.type == type && f.name == name; });
    return found == std::end(functions) ? nullptr : found;
}

std::string bound_text(const Row &row) {
    return row.level == Level::EP ? fmt::format("2^-{:g}", row.bound) : fmt::format("{:g} ulp", row.bound);
}

// Errors are rounded up, so that a table never states less than was measured.
std::string up(double x, int decimals) {
    if (!std::isfinite(x)) return fmt::format("{}", x);
    const double scale = std::pow(10.0, decimals);
    return fmt::format("{:.{}f}", std::ceil(x * scale * (1 - 1e-12)) / scale, decimals);
}

std::string worst_text(const Row &row) {
    if (row.level != Level::EP) return up(row.worst, 4);
    return std::isinf(row.bits) && row.bits > 0 ? "exact" : fmt::format("2^{:.2f}", std::ceil(row.bits * -100) / 100);
}

// The order of the document: as in the list of functions, then by level.
std::tuple<std::ptrdiff_t, int> place(const Row &row) {
    return {find_function(row.type, row.function) - std::begin(functions), static_cast<int>(row.level)};
}

// A row of an earlier document, or nothing for any other line.
std::optional<Row> parse(const std::string &line) {
    std::vector<std::string> cells;
    std::istringstream in(line);
    for (std::string cell; std::getline(in, cell, '|');) {
        const auto first = cell.find_first_not_of(" `"), last = cell.find_last_not_of(" `");
        cells.push_back(first == std::string::npos ? "" : cell.substr(first, last - first + 1));
    }
    if (cells.size() < 11 || cells[2].size() != 1) return std::nullopt;
    const auto level = std::ranges::find(reference::level_names, cells[3]);
    const Function *function = find_function(cells[2][0], cells[1]);
    if (level == reference::level_names.end() || function == nullptr) return std::nullopt;
    Row row;
    row.function = cells[1];
    row.type = cells[2][0];
    row.level = static_cast<Level>(level - reference::level_names.begin());
    row.bound = bound_of(*function, row.level);
    row.worst = std::strtod(cells[5].c_str(), nullptr);
    row.bits = cells[6].starts_with("2^-") ? std::strtod(cells[6].c_str() + 3, nullptr) : HUGE_VAL;
    row.argument = cells[7];
    row.mean = std::strtod(cells[8].c_str(), nullptr);
    row.points = std::strtod(cells[9].c_str(), nullptr);
    row.exhaustive = cells[10] == "exhaustive";
    return row;
}

}  // namespace

std::vector<Row> rows_of(const Measurement &measurement, const std::vector<Level> &levels) {
    std::vector<Row> rows;
    for (const Level level : levels) {
        const Tally &tally = measurement.levels[static_cast<std::size_t>(level)];
        const Worst &worst = level == Level::EP ? tally.relative : tally.ulp;
        Row row;
        row.function = measurement.function.name;
        row.type = measurement.function.type;
        row.level = level;
        row.bound = bound_of(measurement.function, level);
        row.worst = tally.ulp.size;
        row.bits = -std::log2(tally.relative.size);
        row.mean = tally.mean();
        row.points = static_cast<double>(tally.points);
        row.argument =
            measurement.two_arguments ? fmt::format("{:a}, {:a}", worst.a, worst.b) : fmt::format("{:a}", worst.a);
        row.exhaustive = measurement.exhaustive;
        row.within = within_bound(measurement, level);
        rows.push_back(std::move(row));
    }
    return rows;
}

std::string terminal_table(const std::vector<Row> &rows) {
    std::string text = fmt::format("{:<12} {:<4} {:<5} {:>9} {:>14} {:>9} {:>12}  {}\n", "function", "type", "level",
                                   "bound", "largest error", "mean ulp", "points", "at");
    for (const Row &row : rows)
        text += fmt::format("{:<12} {:<4} {:<5} {:>9} {:>14} {:>9} {:>12}  {}{}\n", row.function, row.type,
                            name_of(row.level), bound_text(row),
                            worst_text(row) + (row.level == Level::EP ? "" : " ulp"), up(row.mean, 4),
                            fmt::format("{:.0f}", row.points), row.argument, row.within ? "" : "  ABOVE THE BOUND");
    return text;
}

std::string json(const std::vector<Row> &rows) {
    const auto number = [](double x) { return std::isfinite(x) ? fmt::format("{}", x) : std::string("null"); };
    std::string text = "[";
    for (const Row &row : rows)
        text += fmt::format(
            "{}\n  {{\"function\": \"{}\", \"type\": \"{}\", \"level\": \"{}\", \"bound\": {}, \"unit\": \"{}\", "
            "\"ulp\": {}, \"bits\": {}, \"mean\": {}, \"points\": {:.0f}, \"argument\": \"{}\", \"method\": \"{}\", "
            "\"within\": {}}}",
            &row == &rows.front() ? "" : ",", row.function, row.type, name_of(row.level), number(row.bound),
            row.level == Level::EP ? "bits" : "ulp", number(row.worst),
            row.level == Level::EP ? number(row.bits) : "null", number(row.mean), row.points, row.argument,
            row.exhaustive ? "exhaustive" : "sampled", row.within);
    return text + "\n]\n";
}

std::string document(const std::vector<Row> &measured, const std::string &old) {
    std::vector<Row> rows = measured;
    std::istringstream lines(old);
    for (std::string line; std::getline(lines, line);) {
        const std::optional<Row> kept = parse(line);
        if (!kept) continue;
        const auto now = std::ranges::find_if(rows, [&](const Row &row) { return place(row) == place(*kept); });
        if (now == rows.end())
            rows.push_back(*kept);
        else if (kept->exhaustive && !now->exhaustive && now->worst <= kept->worst)
            *now = *kept;
    }
    std::ranges::sort(rows, {}, place);

    std::string text =
        "# Accuracy\n"
        "\n"
        "Largest errors of the kernels against a reference of 128 bits (MPFR and Arb), written by `accuracy "
        "--output`.\n"
        "One ulp is one unit in the last place of the correctly rounded result, denormal results included. LA and HA "
        "are\n"
        "bounded in ulp, EP by its relative error, given as a power of two; a denormal EP result is judged by what it "
        "is\n"
        "off beyond the half unit of rounding. The bounds are those of `frame/functions.inc`, enforced by the "
        "accuracy\n"
        "tests. The argument is that of the largest error in the bounded measure. An exhaustive row covers every "
        "finite\n"
        "single-precision argument; a sampled row covers stratified random points and clusters around the adversarial\n"
        "points of the function (ends, thresholds, zeros, poles, denormals), and its largest error is one that was\n"
        "found, not a proven maximum. Strided kernels give the same bits.\n"
        "\n"
        "| Function | Type | Level | Bound | Largest error, ulp | Relative error | Argument | Mean error, ulp | Points "
        "| Method |\n"
        "|---|---|---|---|---|---|---|---|---|---|\n";
    for (const Row &row : rows)
        text += fmt::format("| {} | {} | {} | {} | {} | {} | `{}` | {} | {:.0f} | {} |\n", row.function, row.type,
                            name_of(row.level), bound_text(row), up(row.worst, 4),
                            row.level == Level::EP ? worst_text(row) : "", row.argument, up(row.mean, 4), row.points,
                            row.exhaustive ? "exhaustive" : "sampled");
    return text;
}

}  // namespace qorl::accuracy
