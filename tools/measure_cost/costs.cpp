#include "tools/measure_cost/costs.hpp"

#include <fmt/format.h>

#include <algorithm>
#include <stdexcept>

namespace qorl::cost {

double marker(const Entry &entry) {
    constexpr std::string_view bessel[] = {"I0", "I1", "J0", "J1", "Y0", "Y1", "Jn", "Yn"};
    if (entry.shape == Shape::pack) return 1111.0;
    return std::ranges::find(bessel, entry.function) != std::end(bessel) ? 1.0 : 0.0;
}

std::string costs_text(std::string_view existing, std::span<const Cost> figures) {
    const std::size_t data = existing.find("\nQORL_COST(");
    if (data == std::string_view::npos) throw std::runtime_error("not a list of costs");
    std::string text(existing.substr(0, data + 1));
    for (const Entry &entry : entries) {
        if (entry.form == Form::strided) continue;
        const auto line = [&](const auto &...three) {
            fmt::format_to(std::back_inserter(text), "QORL_COST({}, {}, {}, {}, {})\n", entry.type, entry.function,
                           three...);
        };
        if (const double mark = marker(entry); mark != 0) {
            const std::string figure = fmt::format("{:.1f}", mark);
            line(figure, figure, figure);
            continue;
        }
        const auto found = std::ranges::find_if(
            figures, [&](const Cost &cost) { return cost.type == entry.type && cost.function == entry.function; });
        if (found == figures.end()) continue;
        const auto decimals = [&](std::size_t slot) { return fmt::format("{:.3f}", found->figures[slot]); };
        line(decimals(0), decimals(1), decimals(2));
    }
    return text;
}

}  // namespace qorl::cost
